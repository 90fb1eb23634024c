#include "dialogs/ActionGeneralPropertiesDlg.h"

#include "support/SampleEditor.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;
using Rules = std::vector<ActionRule>;

class ActionGeneralPropertiesDlgTest : public ::testing::Test {
protected:
    void SetUp() override {
        e.StartUp();
        action.name = "Fuel";
    }

    // Chooses the rule in the combo as the user would, by its exact name.
    static void Choose(ActionGeneralPropertiesDlg& dialog, const std::string& name) {
        const Texts offered = dialog.ruleCombo.Texts();
        const auto found = std::find(offered.begin(), offered.end(), name);
        dialog.ruleCombo.SetCurrent(found == offered.end() ? -1 : int(found - offered.begin()));
        dialog.OnRuleChanged();
    }

    // Chooses, types and adds on a fresh dialog; answers its rules then.
    Rules Add(const std::string& rule, const std::string& parameter = "",
              const std::string& condition = "") {
        ActionGeneralPropertiesDlg dialog(e.weaver.ruleCatalogue, action);
        Choose(dialog, rule);
        dialog.parameter = parameter;
        dialog.condition = condition;
        dialog.OnAddRule(e.prompts);
        return dialog.workingRules;
    }

    test::SampleEditor e;
    Action& action = *e.weaver.NewAction();
};

TEST_F(ActionGeneralPropertiesDlgTest, PreviewFillsEveryPlaceholderAndIsStoredAsShown) {
    ActionGeneralPropertiesDlg sample(e.weaver.ruleCatalogue, action);
    EXPECT_EQ(sample.BuildParameterText(), "");
    Choose(sample, "spawn_delay");
    sample.parameter = "30";
    EXPECT_EQ(sample.BuildParameterText(), "spawn_delay(30, 30); ");

    RuleDef rule;
    rule.name = "set_value";
    rule.format = "set_value($property, $value)";
    e.weaver.ruleCatalogue.rules = {rule};
    ActionGeneralPropertiesDlg dialog(e.weaver.ruleCatalogue, action);
    Choose(dialog, "set_value");
    dialog.parameter = "50";
    dialog.OnParameterChanged();
    dialog.condition = "a > 1; b==2";
    dialog.OnConditionChanged();
    EXPECT_EQ(dialog.format, "set_value(Fuel, 50); if(a>1); if(b==2); ");

    // The fields stay, so the same rule goes in twice.
    dialog.OnAddRule(e.prompts);
    dialog.OnAddRule(e.prompts);
    const ActionRule stored{"set_value", {"Fuel", "50"}, "if(a>1); if(b==2); "};
    EXPECT_EQ(dialog.workingRules, (Rules{stored, stored}));
    EXPECT_EQ(dialog.ruleList[1].texts[0], "set_value(Fuel,50);");
}

TEST_F(ActionGeneralPropertiesDlgTest, RefusalsAreSilentButForAMissingChoice) {
    RuleDef empty;
    empty.name = "empty_pack";
    empty.complex = true;
    e.weaver.ruleCatalogue.rules.push_back(empty);
    EXPECT_TRUE(Add("empty_pack").empty());
    EXPECT_TRUE(Add("reserved_slot", "1").empty());
    EXPECT_TRUE(Add("note_text", "5", "a>1").empty());
    EXPECT_TRUE(e.prompts.Log().empty());

    EXPECT_TRUE(Add("").empty());
    ASSERT_EQ(e.prompts.Log().size(), 1u);
    EXPECT_EQ(e.prompts.Log()[0].text, "Select one of the rules!");
    EXPECT_EQ(e.prompts.Log()[0].icon, MessageIcon::Stop);
}

} // namespace
} // namespace lw
