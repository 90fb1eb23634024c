#include "GestureFixture.h"
#include "app/EditorCommands.h"
#include "document/TemplateDesc.h"
#include "seams/ScriptedFileDialogs.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

using Texts = std::vector<std::string>;

const Texts kFixedEntries{"Add Phase", "Add Unlinker", "Add Case", "Add Switch", "-"};

Texts Join(Texts head, const Texts& tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

class ContextMenuTest : public GestureFixture {
protected:
    // The entries' texts, a separator as "-".
    Texts MenuTexts() const {
        Texts texts;
        for (const MenuEntry& entry : weaver.BuildContextMenu())
            texts.push_back(entry.IsSeparator() ? "-" : entry.text);
        return texts;
    }
    bool Offers(const std::string& text) const {
        const Texts texts = MenuTexts();
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }

    ScriptedFileDialogs fileDialogs;
    EditorCommands commands{weaver, fileDialogs};
};

using EnableRulesTest = ContextMenuTest;

} // namespace

TEST_F(ContextMenuTest, TheGenerationTypeDecidesWhichGeometryLinksCanBeDrawn) {
    Phase* phase = PhaseAt(weaver, "A", 0, 0);
    Select(phase);
    for (std::int32_t type = 0; type < kGenerationTypeCount; ++type) {
        phase->generationType = type;
        const bool primary = type < GenerationServerSetPos;
        const bool secondary = type == GenerationFractal || type == GenerationLine;
        EXPECT_EQ(Offers("Add Primary Link\tShift+T"), primary) << type;
        EXPECT_EQ(Offers("Add Secondary Link\tCtrl+T"), secondary) << type;

        // The keys do as the menu offers.
        commands.Run(CommandId::AddPrimaryLink);
        EXPECT_EQ(weaver.interactionState(),
                  primary ? InteractionState::StatePrimaryLink : InteractionState::StateIdle)
            << type;
        weaver.EscapeKey();
        commands.Run(CommandId::AddSecondaryLink);
        EXPECT_EQ(weaver.interactionState(),
                  secondary ? InteractionState::StateSecondaryLink : InteractionState::StateIdle)
            << type;
        weaver.EscapeKey();
    }
}

// Each entry makes the link it names, in the direction it names: a designer
// who chose "from Bravo to Alpha" must not get a link the other way.
TEST_F(ContextMenuTest, TwoPhasesGetFourLinkEntriesThatEachDoWhatTheyName) {
    Phase* a = PhaseAt(weaver, "Alpha", 0, 0);
    Phase* b = PhaseAt(weaver, "Bravo", 400, 0);
    Select(a);
    Select(b);
    const ContextMenu menu = weaver.BuildContextMenu();
    EXPECT_EQ(MenuTexts(),
              Join(kFixedEntries,
                   {"Add Target Link from Alpha to Bravo", "Add Object Link from Alpha to Bravo",
                    "Add Target Link from Bravo to Alpha", "Add Object Link from Bravo to Alpha"}));
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
