#include "dialogs/UnlinkPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;

// The sample has unlinkers on EscortLeg (input "abort", output "failed"),
// BomberRaid and ConvoyColumn. PlayerStart stands at (400, 400) with the
// input abort and the outputs start, done, failed, OBJECT_plane, OBJECT_leader.
class UnlinkPropertiesDlgTest : public ::testing::Test {
protected:
    void SetUp() override { e.Open("scg\\sample_rich.mt"); }

    std::int32_t PhaseId(const std::string& name) { return e.weaver.FindPhaseByName(name)->id; }
    Unlinker& UnlinkerOf(const std::string& phaseName) {
        Unlinker* found = nullptr;
        e.weaver.ForEach<Unlinker>(
            [&](Unlinker& u) { found = u.phaseId == PhaseId(phaseName) ? &u : found; });
        return *found;
    }

    test::SampleEditor e;
};

TEST_F(UnlinkPropertiesDlgTest, AnExistingUnlinkerKeepsItsPhaseAndDropsALostGate) {
    Unlinker& unlinker = UnlinkerOf("EscortLeg");
    unlinker.inputGates.push_back("vanished");
    UnlinkPropertiesDlg dlg(e.weaver, unlinker, 0);
    EXPECT_EQ(dlg.phaseCombo.Text(), "EscortLeg");
    EXPECT_FALSE(dlg.phaseCombo.enabled);
    EXPECT_EQ(dlg.unlinkList.Texts(), (Texts{"input:abort", "output:failed"}));
    EXPECT_EQ(dlg.gateList.Texts(),
              (Texts{"input:OBJECT_plane", "input:start", "output:done", "output:OBJECT_plane"}));

    unlinker.posX = 10;
    dlg.unlinkList.Select(0);
    dlg.OnMoveBack();
    ASSERT_TRUE(dlg.Ok(e.prompts));
    EXPECT_TRUE(unlinker.inputGates.empty());
    EXPECT_EQ(unlinker.outputGates, Texts{"failed"});
    EXPECT_EQ(unlinker.posX, 10) << "placed once only";
}

TEST_F(UnlinkPropertiesDlgTest, OkChecksInOrderAndWritesNothingWhenRefused) {
    Unlinker& fresh = *e.weaver.NewUnlinker();
    UnlinkPropertiesDlg dlg(e.weaver, fresh, 0);
    EXPECT_TRUE(dlg.phaseCombo.enabled);
    EXPECT_FALSE(dlg.gateList.enabled || dlg.moveToUnlinkEnabled || dlg.moveBackEnabled);
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.phaseCombo.SelectByText("PlayerStart");
    dlg.OnPhaseChanged();
    EXPECT_TRUE(dlg.unlinkList.enabled && dlg.moveToUnlinkEnabled && dlg.moveBackEnabled);
    e.weaver.FindPhaseByName("PlayerStart")->name = "Renamed";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.phaseCombo.SelectByText("BomberRaid");
    dlg.OnPhaseChanged();
    EXPECT_FALSE(dlg.Ok(e.prompts)) << "checked before the empty list";
    // A phase without gates leaves nothing to unlink.
    e.weaver.NewPhase()->name = "Bare";
    UnlinkPropertiesDlg bare(e.weaver, fresh, PhaseId("Bare"));
    EXPECT_EQ(bare.gateList.Count() + bare.unlinkList.Count(), 0);
    EXPECT_FALSE(bare.Ok(e.prompts));

    EXPECT_EQ(e.prompts.MessageTexts(),
              (Texts{"Phase must be selected!", "Corrupted phase selected!",
                     "This phase already has an Unlinker connected!",
                     "At least one gate must be in unlink gates list!"}));
    EXPECT_EQ(e.prompts.Log().back().icon, MessageIcon::Stop);
    EXPECT_EQ(fresh.phaseId, 0);
}

TEST_F(UnlinkPropertiesDlgTest, ANewUnlinkerIsPlacedAboveItsPhase) {
    Unlinker& fresh = *e.weaver.NewUnlinker();
    UnlinkPropertiesDlg dlg(e.weaver, fresh, PhaseId("PlayerStart"));
    for (int row = 0; row < dlg.gateList.Count(); ++row)
        dlg.gateList.Select(row, dlg.gateList.At(row) != "output:done");
    dlg.OnMoveToUnlink();
    EXPECT_EQ(dlg.gateList.Texts(), Texts{"output:done"});
    EXPECT_FALSE(dlg.IsResultValid());

    ASSERT_TRUE(dlg.Ok(e.prompts));
    EXPECT_EQ(fresh.phaseId, PhaseId("PlayerStart"));
    EXPECT_EQ(fresh.posX, 400);
    EXPECT_EQ(fresh.posY, 250);
    EXPECT_EQ(fresh.inputGates, Texts{"abort"});
    EXPECT_EQ(fresh.outputGates, (Texts{"failed", "OBJECT_leader", "OBJECT_plane", "start"}));
    EXPECT_TRUE(dlg.IsResultValid());
    fresh.phaseId = e.weaver.FindCaseByName("CaseNaval")->id;
    EXPECT_FALSE(dlg.IsResultValid());
}

} // namespace
} // namespace lw
