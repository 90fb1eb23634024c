#include "dialogs/ActionCountryPropertiesDlg.h"
#include "dialogs/ActionModelPropertiesDlg.h"
#include "dialogs/ActionSkinPropertiesDlg.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;

// The sample model list has ordinary types such as "fighter" (three ally and
// two foe models) and "recon", and every type of a special meaning.
class ActionModelDialogsTest : public ::testing::Test {
protected:
    void SetUp() override { e.StartUp(); }

    Action& MakeAction(std::vector<ActionRule> rules) {
        Action& action = *e.weaver.NewAction();
        action.rules = std::move(rules);
        return action;
    }

    test::SampleEditor e;
};

TEST_F(ActionModelDialogsTest, SkinAndCountryOkRefuseNoChoiceThenKeepOneRuleAndItsCondition) {
    Action& skinAction = MakeAction({{"set_skin", {"unknown"}, ""}, {"second", {"a"}, "b"}});
    ActionSkinPropertiesDlg skin(skinAction);
    EXPECT_EQ(skin.skinCombo.Current(), -1) << "a stored word not in the list";
    EXPECT_FALSE(skin.Ok(e.prompts));
    EXPECT_EQ(skinAction.rules.size(), 2u) << "nothing written";
    skin.skinCombo.SelectByText("$enemy_skin_2");
    EXPECT_TRUE(skin.Ok(e.prompts));
    EXPECT_EQ(skinAction.rules, (std::vector<ActionRule>{{"set_skin", {"$enemy_skin_2"}, ""}}));

    Action& countryAction =
        MakeAction({{"old_rule", {"enemy", "x", "y"}, "cond"}, {"second", {}, ""}});
    ActionCountryPropertiesDlg country(countryAction);
    country.countryCombo.SetCurrent(-1);
    EXPECT_FALSE(country.Ok(e.prompts));
    EXPECT_EQ(countryAction.rules.size(), 2u);
    country.countryCombo.SelectByText("from_server");
    EXPECT_TRUE(country.Ok(e.prompts));
    EXPECT_EQ(countryAction.rules,
              (std::vector<ActionRule>{{"set_country", {"from_server"}, "cond"}}));

    EXPECT_EQ(e.prompts.MessageTexts(),
              (Texts{"Skin Type must be selected!", "Country Type must be selected!"}));
}

TEST_F(ActionModelDialogsTest, MakeItListFollowsTheTypeText) {
    ActionModelPropertiesDlg dlg(e.weaver.modelList, MakeAction({}));
    EXPECT_EQ(dlg.typeCombo.Count(), 21);
    EXPECT_EQ(dlg.typeCombo.At(0), "balloon") << "sorted";
    EXPECT_EQ(dlg.makeItCombo.Texts(), (Texts{"random enemy", "random friendly", "server decides"}))
        << "no type found: the server's choices only";

    const auto makeItFor = [&](const std::string& type) {
        EXPECT_TRUE(dlg.typeCombo.SelectByText(type));
        dlg.OnTypeChanged();
        return dlg.makeItCombo.Texts();
    };
    EXPECT_EQ(makeItFor("fighter"),
              (Texts{"ally:fighter:kestrel_mk2", "ally:fighter:kestrel_mk3",
                     "ally:fighter:tamsel_f1", "foe:fighter:corvane_e", "foe:fighter:vantry_d2",
                     "random enemy", "random friendly", "server decides"}));
    for (const char* fixed :
         {"player model", "friendly model 1", "friendly model 2", "friendly model 3",
          "enemy model 1", "enemy model 2", "enemy model 3"})
        EXPECT_EQ(makeItFor(fixed), Texts{"server decides"}) << fixed;
    for (const char* random : {"unique random plane", "unique random fighter",
                               "unique random recon", "unique random bomber"})
        EXPECT_EQ(makeItFor(random), (Texts{"random enemy", "random friendly"})) << random;

    const Texts career = makeItFor("by career squadrons"); // no "server decides"
    EXPECT_EQ(career.size(), 25u);
    EXPECT_EQ(career.front(), "$by_enemy_bomber_squadron_1");
    EXPECT_EQ(career.back(), "$plane_5_model");
}

TEST_F(ActionModelDialogsTest, ModelOkChecksInOrderThenWritesOneRuleOfTwoParams) {
    Action& action =
        MakeAction({{"set_model", {"glider", "random enemy"}, "cond"}, {"second", {"a"}, ""}});
    ActionModelPropertiesDlg dlg(e.weaver.modelList, action);
    EXPECT_EQ(dlg.makeItCombo.Text(), "random enemy") << "an unknown type still offers these";
    EXPECT_FALSE(dlg.Ok(e.prompts));
    dlg.typeCombo.SelectByText("recon");
    dlg.OnTypeChanged();
    dlg.makeItCombo.SetCurrent(-1);
    EXPECT_FALSE(dlg.Ok(e.prompts));
    EXPECT_EQ(e.prompts.MessageTexts(),
              (Texts{"Type must be selected!", "Make it must be selected!"}));
    EXPECT_EQ(action.rules.size(), 2u) << "nothing written";

    dlg.makeItCombo.SelectByText("foe:recon:ildra_r");
    EXPECT_TRUE(dlg.Ok(e.prompts));
    EXPECT_EQ(action.rules,
              (std::vector<ActionRule>{{"set_model", {"recon", "foe:recon:ildra_r"}, "cond"}}));
}

} // namespace
} // namespace lw
