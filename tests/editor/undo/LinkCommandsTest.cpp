#include "UndoDocument.h"
#include "support/SampleEditor.h"
#include "undo/UR_AddCommands.h"
#include "undo/UR_DeleteLinksCmd.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

class LinkCommandsTest : public ::testing::Test {
protected:
    test::SampleEditor editor;
    Weaver& weaver = editor.weaver;
    Phase* from = PhaseAt(weaver);
    Phase* to = PhaseAt(weaver);
    Link link = LinkBetween(*from, *to);
};

} // namespace

TEST_F(LinkCommandsTest, DeletedLinksComeBackAtTheEndInTheirOrder) {
    const Link back = LinkBetween(*to, *from);
    Link other = link;
    other.isObjectLink = false;
    weaver.links = {link, other, back};
    UR_DeleteLinksCmd command(&weaver, {link, back});
    // Its caller removes the links.
    weaver.RemoveLink(link);
    weaver.RemoveLink(back);

    command.Undo();
    EXPECT_EQ(weaver.links, (std::vector<Link>{other, link, back}));
    EXPECT_FALSE(to->outputs[0].openMark);
    command.Redo();
    EXPECT_EQ(weaver.links, std::vector<Link>{other});
    EXPECT_TRUE(to->outputs[0].openMark);
    command.Undo();
    EXPECT_EQ(weaver.links, (std::vector<Link>{other, link, back}));
}
