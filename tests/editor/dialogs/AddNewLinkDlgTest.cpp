#include "dialogs/AddNewLinkDlg.h"

#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Texts = std::vector<std::string>;

class AddNewLinkDlgTest : public ::testing::Test {
protected:
    void SetUp() override {
        e.StartUp();
        from.name = "Source";
        from.outputs = {{"out_b"}, {"OUT_a"}, {"out_c"}};
        from.inputs = {{"not_offered"}};
        to.name = "Target";
        to.inputs = {{"in_z"}, {"in_y"}};
    }

    test::SampleEditor e;
    Phase& from = *e.weaver.NewPhase();
    Phase& to = *e.weaver.NewPhase();
};

TEST_F(AddNewLinkDlgTest, ASecondLinkOfTheSameKindIsRefused) {
    for (bool isObjectLink : {false, true}) {
        AddNewLinkDlg dialog(e.weaver, from, to, isObjectLink);
        dialog.fromCombo.SetCurrent(1);
        dialog.toCombo.SetCurrent(0);
        ASSERT_TRUE(dialog.Ok(e.prompts)) << isObjectLink;
        const Link expected{isObjectLink, from.id, "out_b", to.id, "in_y"};
        EXPECT_EQ(dialog.link, expected);
        e.weaver.links.push_back(dialog.link);
    }

    AddNewLinkDlg again(e.weaver, from, to, true);
    again.fromCombo.SetCurrent(1);
    again.toCombo.SetCurrent(0);
    EXPECT_FALSE(again.Ok(e.prompts));
    EXPECT_EQ(e.prompts.MessageTexts(), Texts{"Such Link Already Exists!"});
    EXPECT_EQ(e.prompts.Log().back().icon, MessageIcon::None);
    EXPECT_EQ(e.prompts.Log().back().buttons, MessageButtons::OkCancel);
    EXPECT_EQ(again.link, Link{});
}

} // namespace
} // namespace lw
