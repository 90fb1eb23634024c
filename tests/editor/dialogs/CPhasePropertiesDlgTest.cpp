#include "dialogs/CPhasePropertiesDlg.h"

#include "dialogs/AzimuthAdditionalDlg.h"
#include "dialogs/CAddBlocksDlg.h"
#include "dialogs/GeometryAspectDlg.h"
#include "dialogs/PhaseSubDialogs.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;
using Blocks = std::map<std::string, std::string>;

const std::string kPatrol = "scg\\0\\blocks\\air\\patrol.group";
const std::string kPatrolHigh = "scg\\0\\blocks\\air\\patrol_high.group";
const std::string kPatrolLow = "scg\\0\\blocks\\air\\patrol_low.group";

// Answers the nested dialogs as a user would: picks references in "Add
// Blocks", hands back three texts from a geometry dialog, or cancels.
struct ScriptedSubDialogs : PhaseSubDialogs {
    bool Run(CAddBlocksDlg& dialog) override {
        opened.push_back(CAddBlocksDlg::kTitle);
        for (const std::string& reference : pick)
            dialog.blockList.Select(dialog.blockList.FindExact(reference));
        return accept && dialog.Ok(prompts);
    }
    bool Run(AzimuthAdditionalDlg& dialog) override { return Geometry(dialog); }
    bool Run(CFractalAdditionalDlg& dialog) override { return Geometry(dialog); }
    bool Run(LineAdditionalDlg& dialog) override { return Geometry(dialog); }

    template <typename Dialog> bool Geometry(Dialog& dialog) {
        opened.push_back(Dialog::kTitle);
        given = {dialog.param1, dialog.param2, dialog.param3};
        dialog.param1 = params[0];
        dialog.param2 = params[1];
        dialog.param3 = params[2];
        return accept;
    }

    bool accept = true;
    Texts pick;
    Texts params{"7", "8", "9"};
    Texts given;
    Texts opened;
    RecordingPrompts prompts;
};

class PhaseDialogTest : public ::testing::Test {
protected:
    PhaseDialogTest() { e.Open("scg\\sample_rich.mt"); }

    static CPhasePropertiesDlg Dialog(Weaver& weaver, Phase& phase) {
        return {weaver, weaver.blockPool, weaver.blockFolders, phase};
    }
    Phase& Named(const std::string& name) { return *e.weaver.FindPhaseByName(name); }
    std::string LastMessage() const { return e.prompts.MessageTexts().back(); }
    static void SetGeneration(CPhasePropertiesDlg& dialog, int type) {
        dialog.generationCombo.SetCurrent(type);
        dialog.OnGenerationChanged();
    }
    static void ChooseMainBlock(CPhasePropertiesDlg& dialog, const std::string& reference) {
        dialog.mainBlockCombo.SelectByText(reference);
        dialog.OnMainBlockChanged();
    }

    test::SampleEditor e;
    ScriptedSubDialogs sub;
};

TEST_F(PhaseDialogTest, OkChecksRunInOrderAndWriteNothingWhenOneFails) {
    Phase& phase = *e.weaver.NewPhase();
    const std::string stored = phase.name;
    CPhasePropertiesDlg dialog = Dialog(e.weaver, phase);
    auto refused = [&](const char* message) {
        EXPECT_FALSE(dialog.Ok(e.prompts));
        EXPECT_EQ(LastMessage(), message);
        EXPECT_EQ(e.prompts.Log().back().icon, MessageIcon::Stop);
    };
    dialog.name = "";
    refused("Empty phase name!");
    dialog.name = "ReconSweep";
    refused("Phase name is used by other phase!");
    dialog.name = "Fresh";
    refused("Phase main blocks set must be selected!");
    ChooseMainBlock(dialog, kPatrol);
    SetGeneration(dialog, -1);
    refused("Phase Generation type must be set!");
    SetGeneration(dialog, 4);
    dialog.allocationCombo.SetCurrent(-1);
    refused("Phase Allocation type must be set!");
    dialog.allocationCombo.SetCurrent(0);
    dialog.primaryCombo.SetEditText(stored);
    refused("Primary link must not look at its own phase!");
    SetGeneration(dialog, 2);
    dialog.primaryCombo.SetEditText("ReconSweep");
    dialog.secondaryCombo.SetEditText(stored);
    refused("Secondary link must not look at its own phase!");
    dialog.secondaryCombo.SetEditText("ReconSweep");
    refused("Secondary link must not look at the same phase as Primary link!");
    dialog.secondaryCombo.SetEditText("EscortLeg");
    refused("Geo Parameters must be set! (More Parameters button)");
    EXPECT_EQ(phase.name, stored);
    EXPECT_TRUE(phase.blocks.empty());

    dialog.geoParam1 = dialog.geoParam2 = dialog.geoParam3 = "0";
    EXPECT_TRUE(dialog.Ok(e.prompts));
    EXPECT_EQ(phase.name, "Fresh");
    EXPECT_EQ(phase.primaryLinkId, Named("ReconSweep").id);
    EXPECT_EQ(phase.secondaryLinkId, Named("EscortLeg").id);
    EXPECT_TRUE(dialog.IsResultValid());
}

TEST_F(PhaseDialogTest, TheLinkChecksCompareWithTheStoredName) {
    Phase& escort = Named("EscortLeg");
    CPhasePropertiesDlg dialog = Dialog(e.weaver, escort);
    dialog.name = "EscortRenamed";
    dialog.primaryCombo.SetEditText("EscortLeg");
    EXPECT_FALSE(dialog.Ok(e.prompts));
    EXPECT_EQ(LastMessage(), "Primary link must not look at its own phase!");
    dialog.primaryCombo.SetEditText("EscortRenamed");
    ASSERT_TRUE(dialog.Ok(e.prompts));
    EXPECT_EQ(escort.primaryLinkId, escort.id) << "the new name finds the phase itself";
}

// FrontSector starts as a line phase linked to AAPositions and FuelDepot.
struct GenerationCase {
    int type;
    int allocationIndex;
    const char* allocation;
    bool keepsPrimary;
    bool keepsSecondary;
    bool keepsGeometry;
};

TEST_F(PhaseDialogTest, OkWritesWhatEachGenerationTypeCarries) {
    const GenerationCase cases[] = {{0, 2, "in_range", true, false, false},
                                    {1, -1, "", true, false, true},
                                    {2, -1, "", true, true, true},
                                    {3, -1, "", true, true, true},
                                    {4, 5, "rear_board", true, false, false},
                                    {5, -1, "", false, false, false},
                                    {6, 0, "takeoff ", false, false, false},
                                    {6, 12, "land", false, false, false},
                                    {7, -1, "", false, false, false}};
    for (const GenerationCase& c : cases) {
        test::SampleEditor fresh;
        fresh.Open("scg\\sample_rich.mt");
        Phase& phase = *fresh.weaver.FindPhaseByName("FrontSector");
        const Phase before = phase;
        CPhasePropertiesDlg dialog = Dialog(fresh.weaver, phase);
        SetGeneration(dialog, c.type);
        if (c.allocationIndex >= 0)
            dialog.allocationCombo.SetCurrent(c.allocationIndex);
        ASSERT_TRUE(dialog.Ok(fresh.prompts)) << c.type;
        EXPECT_EQ(phase.generationType, c.type);
        EXPECT_EQ(phase.allocationType, c.allocation) << c.type;
        EXPECT_EQ(phase.primaryLinkId, c.keepsPrimary ? before.primaryLinkId : 0) << c.type;
        EXPECT_EQ(phase.secondaryLinkId, c.keepsSecondary ? before.secondaryLinkId : 0) << c.type;
        EXPECT_EQ(phase.geoParams, c.keepsGeometry ? before.geoParams : Texts{}) << c.type;
    }
}

// The gates come from the main block alone, all open, so that the outline
// shows the links the phase lacks; the colour chosen is kept.
TEST_F(PhaseDialogTest, GatesComeOpenFromTheMainBlockAndTheColourIsKept) {
    Phase& phase = *e.weaver.NewPhase();
    CPhasePropertiesDlg dialog = Dialog(e.weaver, phase);
    ChooseMainBlock(dialog, kPatrol);
    dialog.additionalList.Add("scg\\0\\blocks\\air\\playerflight.group");
    dialog.colorCombo.SetCurrent(6);
    ASSERT_TRUE(dialog.Ok(e.prompts));
    const BlockInfo patrol = e.weaver.blockPool.GetBlock(kPatrol);
    ASSERT_EQ(phase.inputs.size(), patrol.inputs.size());
    EXPECT_EQ(phase.inputs[0], (GateSlot{patrol.inputs[0], true}));
    EXPECT_EQ(phase.colorIndex, 6);
}

TEST_F(PhaseDialogTest, AllocationFollowsTheGenerationType) {
    Phase& phase = *e.weaver.NewPhase();
    CPhasePropertiesDlg dialog = Dialog(e.weaver, phase);
    ChooseMainBlock(dialog, kPatrol);
    SetGeneration(dialog, 6);
    EXPECT_EQ(dialog.allocationCombo.Current(), -1) << "the default is no waypoint gate";
    EXPECT_FALSE(dialog.Ok(e.prompts));
    EXPECT_EQ(LastMessage(), "Phase Allocation type must be set!");
    SetGeneration(dialog, 4);
    EXPECT_EQ(dialog.allocationCombo.Text(), "clone_location");
    SetGeneration(dialog, 1);
    EXPECT_EQ(dialog.allocationCombo.Current(), -1);
    EXPECT_FALSE(dialog.allocationCombo.enabled);
    dialog.geoParam1 = dialog.geoParam2 = dialog.geoParam3 = "1";
    ASSERT_TRUE(dialog.Ok(e.prompts));
    EXPECT_EQ(phase.allocationType, "");

    // Reopened, an empty allocation selects nothing, so that OK writes back
    // the empty text rather than the first entry.
    CPhasePropertiesDlg again = Dialog(e.weaver, phase);
    EXPECT_EQ(again.allocationCombo.Current(), -1);
    ASSERT_TRUE(again.Ok(e.prompts));
    EXPECT_EQ(phase.allocationType, "");
}

TEST_F(PhaseDialogTest, AddBlocksAndTheDeleteButtonsEditTheAdditionalList) {
    Phase& phase = *e.weaver.NewPhase();
    CPhasePropertiesDlg dialog = Dialog(e.weaver, phase);
    dialog.OnAddBlocks(sub);
    EXPECT_TRUE(sub.opened.empty()) << "nothing to add to without a main block";

    ChooseMainBlock(dialog, kPatrol);
    EXPECT_TRUE(dialog.addBlocksEnabled);
    sub.pick = {kPatrolLow, kPatrolHigh};
    sub.accept = false;
    dialog.OnAddBlocks(sub);
    EXPECT_EQ(dialog.additionalList.Count(), 0);
    sub.accept = true;
    dialog.OnAddBlocks(sub);
    dialog.OnAddBlocks(sub);
    EXPECT_EQ(dialog.additionalList.Texts(),
              (Texts{kPatrolHigh, kPatrolHigh, kPatrolLow, kPatrolLow}));

    dialog.additionalList.Select(1);
    dialog.additionalList.Select(2);
    dialog.OnDeleteSelected();
    EXPECT_EQ(dialog.additionalList.Texts(), (Texts{kPatrolHigh, kPatrolLow}));
    ChooseMainBlock(dialog, kPatrolHigh);
    EXPECT_EQ(dialog.additionalList.Count(), 0) << "another main block drops the sets";
    dialog.additionalList.Add(kPatrol);
    dialog.OnDeleteAll();
    EXPECT_EQ(dialog.additionalList.Count(), 0);
}

} // namespace
} // namespace lw
