#include "dialogs/DeleteLinksDlg.h"

#include "dialogs/InputStringDlg.h"
#include "support/SampleEditor.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Links = std::vector<Link>;
using Texts = std::array<std::string, 5>;

class DeleteLinksDlgTest : public ::testing::Test {
protected:
    void SetUp() override {
        e.StartUp();
        phase.name = "Hub";
        other.name = "Spoke";
    }

    test::SampleEditor e;
    Phase& phase = *e.weaver.NewPhase();
    Phase& other = *e.weaver.NewPhase();
};

TEST_F(DeleteLinksDlgTest, ALinkToItselfComesTwiceAndBothCanGo) {
    const Link loop{false, phase.id, "out", phase.id, "in"};
    const Link outward{true, phase.id, "out", other.id, "in"};
    const Link elsewhere{true, other.id, "out", other.id, "in"};
    e.weaver.links = {elsewhere, loop, outward};

    DeleteLinksDlg dialog(e.weaver, phase);
    EXPECT_EQ(dialog.shown, (Links{loop, loop, outward}));
    ASSERT_EQ(dialog.linkView.size(), 3u);
    EXPECT_EQ(dialog.linkView[0].texts, (Texts{"Hub", "out", "Hub", "in", "False"}));
    EXPECT_EQ(dialog.linkView[2].texts, (Texts{"Hub", "out", "Spoke", "in", "True"}));

    dialog.linkView[0].selected = true;
    dialog.linkView[1].selected = true;
    dialog.OnDeleteSelected();
    EXPECT_EQ(dialog.toDelete, (Links{loop, loop}));
    EXPECT_EQ(dialog.shown, Links{outward});
    ASSERT_EQ(dialog.linkView.size(), 1u);
    EXPECT_EQ(dialog.linkView[0].texts[2], "Spoke");
    EXPECT_EQ(e.weaver.links.size(), 3u);
}

} // namespace
} // namespace lw
