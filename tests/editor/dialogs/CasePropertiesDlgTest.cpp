#include "dialogs/CasePropertiesDlg.h"

#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;
using Ids = std::vector<std::int32_t>;

// In the sample CaseOpening holds EscortLeg and ReconSweep, CaseThreat holds
// Interceptors; nine phases have no case.
class CasePropertiesDlgTest : public ::testing::Test {
protected:
    void SetUp() override { e.Open("scg\\sample_rich.mt"); }
    std::int32_t PhaseId(const std::string& name) { return e.weaver.FindPhaseByName(name)->id; }
    Case& opening() { return *e.weaver.FindCaseByName("CaseOpening"); }

    test::SampleEditor e;
};

TEST_F(CasePropertiesDlgTest, OkChecksInOrderAndWritesNothingWhenRefused) {
    CasePropertiesDlg dlg(e.weaver, opening(), {});
    EXPECT_EQ(dlg.name, "CaseOpening");
    dlg.name = "";
    dlg.memberList.Select(0);
    dlg.memberList.Select(1);
    dlg.OnRemove();
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.name = "CaseThreat";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.name = "Anything";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    // A phase of another case is never offered, but it can be typed.
    EXPECT_EQ(dlg.candidateCombo.Count(), 11);
    dlg.candidateCombo.SetEditText("Interceptors");
    dlg.OnAdd();
    EXPECT_FALSE(dlg.Ok(e.prompts));

    EXPECT_EQ(e.prompts.MessageTexts(),
              (Texts{"Name must not be empty!", "Case name is used by other case!",
                     "Case must have at least one phase!",
                     "Phase \"Interceptors\" already has connected case!"}));
    EXPECT_EQ(e.prompts.Log().back().icon, MessageIcon::Stop);
    EXPECT_EQ(opening().phaseIds, (Ids{PhaseId("EscortLeg"), PhaseId("ReconSweep")}));
    EXPECT_EQ(e.weaver.FindPhaseByName("EscortLeg")->caseId, opening().id);
}

// A phase taken out of the case no longer names it; one put in does.
TEST_F(CasePropertiesDlgTest, OkRewiresBothSides) {
    Case& caseObject = opening();
    CasePropertiesDlg dlg(e.weaver, caseObject, {});
    dlg.memberList.Select(0);
    dlg.OnRemove();
    dlg.candidateCombo.SelectByText("WaypointNorth");
    dlg.OnAdd();
    ASSERT_TRUE(dlg.Ok(e.prompts));
    EXPECT_EQ(e.weaver.FindPhaseByName("EscortLeg")->caseId, 0);
    EXPECT_EQ(e.weaver.FindPhaseByName("WaypointNorth")->caseId, caseObject.id);
}

} // namespace
} // namespace lw
