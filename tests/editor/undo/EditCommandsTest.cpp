#include "UndoDocument.h"
#include "support/SampleEditor.h"
#include "undo/UR_EditCommands.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

using Words = std::vector<std::string>;

class EditCommandsTest : public ::testing::Test {
protected:
    test::SampleEditor editor;
    Weaver& weaver = editor.weaver;
    Phase* phase = PhaseAt(weaver);
};

} // namespace

TEST_F(EditCommandsTest, OnlyTheFieldsOfTheDialogAreWrittenBack) {
    Action* action = ActionOf(weaver, *phase, "Plane");
    action->name = "Skin";
    Check* check = CheckOf(weaver, *phase, CheckRange);
    check->params = {"1"};
    Unlinker* unlinker = weaver.NewUnlinker();
    unlinker->phaseId = phase->id;
    unlinker->inputGates = {"in"};
    UR_EditActionCmd editAction(&weaver, *action);
    UR_EditCheckCmd editCheck(&weaver, *check);
    UR_EditUnlinkerCmd editUnlinker(&weaver, *unlinker);
    action->name = "Country";
    action->rules = {ActionRule{"set_country", {"a"}, ""}};
    action->objectName = "Ship";
    check->params = {"2"};
    check->type = CheckFree;
    unlinker->inputGates.clear();
    unlinker->phaseId = 0;
    editAction.Complete(*action);
    editCheck.Complete(*check);
    editUnlinker.Complete(*unlinker);

    editAction.Undo();
    editCheck.Undo();
    editUnlinker.Undo();
    EXPECT_EQ(action->name, "Skin");
    EXPECT_TRUE(action->rules.empty());
    EXPECT_EQ(check->params, Words{"1"});
    EXPECT_EQ(unlinker->inputGates, Words{"in"});
    // What the dialogs do not edit stays as it is now.
    EXPECT_EQ(action->objectName, "Ship");
    EXPECT_EQ(check->type, CheckFree);
    EXPECT_EQ(unlinker->phaseId, 0);

    editAction.Redo();
    editCheck.Redo();
    editUnlinker.Redo();
    EXPECT_EQ(action->rules.size(), 1u);
    EXPECT_EQ(check->params, Words{"2"});
    EXPECT_TRUE(unlinker->inputGates.empty());

    // An object that is gone, or an id of another kind, ends the step.
    weaver.RemoveObject(action);
    const std::string before = Describe(weaver);
    editAction.Undo();
    UR_EditCheckCmd(&weaver, Check(phase->id)).Undo();
    EXPECT_EQ(Describe(weaver), before);
}

TEST_F(EditCommandsTest, CaseAndSwitchEditsMoveTheirMembersInAndOut) {
    Phase* second = PhaseAt(weaver);
    Case* aCase = weaver.NewCase();
    Case* other = weaver.NewCase();
    Switch* aSwitch = weaver.NewSwitch();
    aCase->phaseIds = {phase->id};
    phase->caseId = aCase->id;
    aSwitch->caseIds = {aCase->id};
    aCase->switchId = aSwitch->id;
    UR_EditCaseCmd editCase(&weaver, *aCase);
    UR_EditSwitchCmd editSwitch(&weaver, *aSwitch);
    // The dialogs rename, and trade the first phase for the second; the
    // switch keeps its case and takes the other.
    aCase->name = aSwitch->name = "renamed";
    aCase->phaseIds = {second->id};
    phase->caseId = 0;
    second->caseId = aCase->id;
    aSwitch->number = aSwitch->preliminaryCheck = aSwitch->planeType = 2;
    aSwitch->caseIds = {other->id, aCase->id};
    other->switchId = aSwitch->id;
    editCase.Complete(*aCase);
    editSwitch.Complete(*aSwitch);
    const std::string edited = Describe(weaver);

    editSwitch.Undo();
    editCase.Undo();
    EXPECT_EQ(aCase->name, "case_3");
    EXPECT_EQ(aSwitch->name, "switch_5");
    EXPECT_EQ((Ids{aSwitch->number, aSwitch->preliminaryCheck, aSwitch->planeType}),
              (Ids{0, 0, 0}));
    EXPECT_EQ(phase->caseId, 3);
    EXPECT_EQ(second->caseId, 0);
    EXPECT_EQ(aCase->switchId, 5);
    EXPECT_EQ(other->switchId, 0);
    EXPECT_EQ(aSwitch->caseIds, Ids{3});

    editCase.Redo();
    editSwitch.Redo();
    EXPECT_EQ(Describe(weaver), edited);
    EXPECT_EQ(aCase->name, "renamed");
    EXPECT_EQ(aSwitch->planeType, 2);
}
