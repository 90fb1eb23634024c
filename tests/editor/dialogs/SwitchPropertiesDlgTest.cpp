#include "dialogs/SwitchPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;
using Ids = std::vector<std::int32_t>;

// In the sample SwitchAir holds CaseOpening and CaseThreat with number 1 and
// no preliminary check; SwitchWater holds CaseNaval, checks index 5 and has
// plane type 2; CaseFront is free.
class SwitchPropertiesDlgTest : public ::testing::Test {
protected:
    void SetUp() override { e.Open("scg\\sample_rich.mt"); }

    Switch& Named(const std::string& name) {
        Switch* found = nullptr;
        e.weaver.ForEach<Switch>([&](Switch& s) { found = s.name == name ? &s : found; });
        return *found;
    }
    std::int32_t CaseId(const std::string& name) { return e.weaver.FindCaseByName(name)->id; }

    test::SampleEditor e;
};

TEST_F(SwitchPropertiesDlgTest, OkChecksInOrderAndWritesNothingWhenRefused) {
    Switch& air = Named("SwitchAir");
    SwitchPropertiesDlg dlg(e.weaver, air, {});
    dlg.number.text = "x";
    dlg.name = "";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.number.text = "1";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.name = "SwitchWater";
    dlg.memberList.Select(0);
    dlg.memberList.Select(1);
    dlg.OnRemove();
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.name = "Renamed";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.candidateCombo.SelectByText("CaseFront");
    dlg.OnAdd();
    dlg.number.text = "2";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.number.text = "-1";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.number.text = "0";
    dlg.preliminaryCombo.SetCurrent(-1);
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.preliminaryCombo.SetCurrent(1);
    dlg.memberList.Add("CaseNaval");
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.memberList.Select(dlg.memberList.FindExact("CaseNaval"));
    dlg.OnRemove();
    dlg.planeType = -1;
    EXPECT_FALSE(dlg.Ok(e.prompts));

    EXPECT_EQ(e.prompts.MessageTexts(),
              (Texts{"Please enter a whole number.", "Name must not be empty!",
                     "Switch name is used by other switch!", "Switch must have at least one case!",
                     "Switch number can't be large than total case number in the list",
                     "Switch number can't be negative", "Select Preliminary check type!",
                     "Case \"CaseNaval\" already has connected switch!", "Select Plane type!"}));
    EXPECT_EQ(e.prompts.Log().back().icon, MessageIcon::Stop);
    EXPECT_EQ(air.name, "SwitchAir");
    EXPECT_EQ(air.caseIds, (Ids{CaseId("CaseOpening"), CaseId("CaseThreat")}));

    dlg.planeType = 1;
    EXPECT_TRUE(dlg.Ok(e.prompts)) << "a number of 0 is accepted";
}

} // namespace
} // namespace lw
