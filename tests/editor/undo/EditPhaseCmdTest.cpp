#include "UndoDocument.h"
#include "support/SampleEditor.h"
#include "undo/UR_EditPhaseCmd.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

// Phase 1 stands on phase 2 by its primary link and has checks 3 to 6:
// range, free, in radius and in sector.
class EditPhaseCmdTest : public ::testing::Test {
protected:
    EditPhaseCmdTest() {
        PhaseAt(weaver);
        phase->primaryLinkId = 2;
        for (std::int32_t type : {CheckRange, CheckFree, CheckInRadius, CheckInSector})
            CheckOf(weaver, *phase, type);
    }

    test::SampleEditor editor;
    Weaver& weaver = editor.weaver;
    Phase* phase = PhaseAt(weaver);
};

} // namespace

TEST_F(EditPhaseCmdTest, LosingThePrimaryLinkTakesTheChecksMeasuredFromIt) {
    const std::string linked = Describe(weaver);
    UR_EditPhaseCmd command(&weaver, *phase);
    phase->primaryLinkId = 0;
    command.Complete(*phase);
    EXPECT_EQ(ObjectOrder(weaver), (Ids{1, 2, 4}));
    const std::string unlinked = Describe(weaver);

    command.Undo();
    EXPECT_EQ(phase->checkIds, (Ids{4, 3, 5, 6}));
    EXPECT_EQ(ObjectOrder(weaver), (Ids{1, 2, 4, 3, 5, 6}));
    command.Redo();
    EXPECT_EQ(Describe(weaver), unlinked);
    command.Undo();
    phase->checkIds = {3, 4, 5, 6};
    EXPECT_EQ(Describe(weaver), linked);

    // A link moved to another phase is no loss.
    UR_EditPhaseCmd moved(&weaver, *phase);
    phase->primaryLinkId = 1;
    moved.Complete(*phase);
    EXPECT_EQ(phase->checkIds.size(), 4u);
}

TEST_F(EditPhaseCmdTest, OnlyTheFieldsOfTheDialogAreWrittenBack) {
    UR_EditPhaseCmd command(&weaver, *phase);
    phase->name = "renamed";
    phase->blocks["main"] = "blocks\\b.group";
    phase->generationType = 0;
    phase->allocationType = "new";
    phase->secondaryLinkId = 2;
    phase->blockProperties["Plane"] = {"a"};
    phase->actionIds = {9};
    phase->geoParams = {"5"};
    phase->inputs = {GateSlot{"new"}};
    phase->colorIndex = 3;
    phase->caseId = 8;
    command.Complete(*phase);

    command.Undo();
    EXPECT_EQ(phase->name, "phase_1");
    EXPECT_EQ(phase->blocks.at("main"), "scg\\0\\blocks\\air\\patrol.group");
    EXPECT_TRUE(phase->blocks.size() == 1 && phase->blockProperties.empty());
    EXPECT_EQ(phase->generationType, 4);
    EXPECT_EQ(phase->allocationType, "clone_location");
    EXPECT_EQ(phase->secondaryLinkId, 0);
    EXPECT_TRUE(phase->actionIds.empty() && phase->geoParams.empty());
    // The gates of the new block, the colour and the case stay.
    EXPECT_EQ(phase->inputs[0].name, "new");
    EXPECT_EQ(phase->colorIndex, 3);
    EXPECT_EQ(phase->caseId, 8);
    command.Redo();
    EXPECT_EQ(phase->name, "renamed");
    EXPECT_EQ(phase->geoParams, std::vector<std::string>{"5"});

    // A change that kept the name does not write it, whatever it is now.
    UR_EditPhaseCmd colourOnly(&weaver, *phase);
    phase->colorIndex = 5;
    colourOnly.Complete(*phase);
    phase->name = "elsewhere";
    colourOnly.Undo();
    EXPECT_EQ(phase->name, "elsewhere");
    EXPECT_EQ(phase->colorIndex, 5);
}
