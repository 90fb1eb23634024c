#include "UndoDocument.h"
#include "support/SampleEditor.h"
#include "undo/UR_AddCommands.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

class AddCommandsTest : public ::testing::Test {
protected:
    test::SampleEditor editor;
    Weaver& weaver = editor.weaver;
    Phase* phase = PhaseAt(weaver);
};

} // namespace

TEST_F(AddCommandsTest, ObjectsLeaveAndReenterWhatPointsBackAtThem) {
    Check* check = CheckOf(weaver, *phase, CheckRange);
    CheckOf(weaver, *phase, CheckFree);
    Action* action = ActionOf(weaver, *phase, "");
    Switch* aSwitch = weaver.NewSwitch();
    Case* aCase = weaver.NewCase();
    // Ids that name nothing, or an object of another kind, are stepped over.
    aCase->phaseIds = {phase->id, 99, aSwitch->id};
    phase->caseId = aCase->id;
    aSwitch->caseIds = {aCase->id, phase->id};
    aCase->switchId = aSwitch->id;
    Unlinker* unlinker = weaver.NewUnlinker();
    std::vector<std::unique_ptr<UR_Command>> commands;
    commands.push_back(std::make_unique<UR_AddNewCheckCmd>(&weaver, *check));
    commands.push_back(std::make_unique<UR_AddNewActionCmd>(&weaver, *action));
    commands.push_back(std::make_unique<UR_AddNewCaseCmd>(&weaver, *aCase));
    commands.push_back(std::make_unique<UR_AddNewSwitchCmd>(&weaver, *aSwitch));
    commands.push_back(std::make_unique<UR_AddNewUnlinkerCmd>(&weaver, *unlinker));
    const std::string added = Describe(weaver);

    for (auto command = commands.rbegin(); command != commands.rend(); ++command)
        (*command)->Undo();
    EXPECT_EQ(ObjectOrder(weaver), (Ids{1, 3}));
    EXPECT_EQ(Describe(weaver), "1 at 0,0: phase phase_1 case 0 links 0,0 checks [3] actions [] "
                                "in open out open \n3 at 0,0: check of 1 type 5\n");

    for (const auto& command : commands)
        command->Redo();
    EXPECT_EQ(ObjectOrder(weaver), (Ids{1, 3, 2, 4, 6, 5, 7}));
    // The check re-enters its phase's list at the end.
    EXPECT_EQ(phase->checkIds, (Ids{3, 2}));
    phase->checkIds = {2, 3};
    EXPECT_EQ(Describe(weaver), added);
}
