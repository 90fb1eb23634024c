#include "GestureFixture.h"
#include "app/EditorCommands.h"
#include "document/TemplateDesc.h"
#include "seams/ScriptedFileDialogs.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

class ContextMenuTest : public GestureFixture {
protected:
    ScriptedFileDialogs fileDialogs;
    EditorCommands commands{weaver, fileDialogs};
};

using EnableRulesTest = ContextMenuTest;

} // namespace

// Each entry makes the link it names, in the direction it names: a designer
// who chose "from Bravo to Alpha" must not get a link the other way.
TEST_F(ContextMenuTest, TwoPhasesGetFourLinkEntriesThatEachDoWhatTheyName) {
    Phase* a = PhaseAt(weaver, "Alpha", 0, 0);
    Phase* b = PhaseAt(weaver, "Bravo", 400, 0);
    Select(a);
    Select(b);
    const ContextMenu menu = weaver.BuildContextMenu();
    ASSERT_EQ(menu.size(), 9u);

    struct Expected {
        CommandId command;
        bool isObjectLink;
        const Phase* from;
        const Phase* to;
    };
    const std::vector<Expected> expected{
        {CommandId::AddTargetLink01, false, a, b},
        {CommandId::AddObjectLink01, true, a, b},
        {CommandId::AddTargetLink10, false, b, a},
        {CommandId::AddObjectLink10, true, b, a},
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ASSERT_EQ(menu[5 + i].command, expected[i].command);
        Link offered;
        dialogs.QueueOutcome(false, [&](DialogCall& call) { offered = *call.link; });
        EXPECT_TRUE(commands.Run(*menu[5 + i].command));
        EXPECT_EQ(offered.isObjectLink, expected[i].isObjectLink) << i;
        EXPECT_EQ(offered.fromPhaseId, expected[i].from->id) << i;
        EXPECT_EQ(offered.toPhaseId, expected[i].to->id) << i;
    }
}

TEST_F(EnableRulesTest, SaveNeedsAChangeAndCutCopyAndFitSelectionNeedASelection) {
    weaver.fileName = "scg\\mine.mt";
    Phase* phase = PhaseAt(weaver, "A", 0, 0);
    EXPECT_FALSE(commands.IsEnabled(CommandId::FileSave));
    EXPECT_FALSE(commands.IsEnabled(CommandId::ViewZoomSelection));
    EXPECT_FALSE(commands.Run(CommandId::EditCut));
    EXPECT_FALSE(commands.Run(CommandId::EditCopy));
    EXPECT_EQ(e.DataFileText(Weaver::kClipboardPath), "<missing>");
    EXPECT_EQ(weaver.objects.size(), 1u);

    Select(phase);
    EXPECT_TRUE(commands.IsEnabled(CommandId::EditCut));
    EXPECT_TRUE(commands.IsEnabled(CommandId::ViewZoomSelection));
    commands.Run(CommandId::AddFreeCheck);
    EXPECT_TRUE(commands.IsEnabled(CommandId::FileSave));
    EXPECT_TRUE(commands.Run(CommandId::FileSave));
    EXPECT_NE(e.DataFileText("scg\\mine.mt"), "<missing>");
    EXPECT_FALSE(commands.IsEnabled(CommandId::FileSave));
}
