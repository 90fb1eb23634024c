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

TEST_F(ContextMenuTest, WithoutOneOrTwoPhasesSelectedTheMenuHasItsFiveEntries) {
    const ContextMenu menu = weaver.BuildContextMenu();
    ASSERT_EQ(menu.size(), 5u);
    EXPECT_EQ(menu[0].command, CommandId::AddPhase);
    EXPECT_EQ(menu[1].command, CommandId::AddUnlinker);
    EXPECT_EQ(menu[2].command, CommandId::AddCase);
    EXPECT_EQ(menu[3].command, CommandId::AddSwitch);
    EXPECT_EQ(MenuTexts(), kFixedEntries);

    Phase* phase = PhaseAt("A", 0, 0);
    Select(CaseAt("K", 0, 0));
    EXPECT_EQ(MenuTexts(), kFixedEntries);
    Select(phase);
    EXPECT_EQ(MenuTexts(), kFixedEntries); // a case and a phase
    weaver.selection.Clear();
    Select(phase);
    Select(PhaseAt("B", 0, 0));
    Select(PhaseAt("C", 0, 0));
    EXPECT_EQ(MenuTexts(), kFixedEntries); // three phases
}

TEST_F(ContextMenuTest, OnePhaseIsOfferedTheChecksItLacksAndThoseOfThePrimaryLinkOnlyWithOne) {
    Phase* phase = PhaseAt("A", 0, 0);
    CheckOf(*phase, CheckSquad);
    Select(phase);
    EXPECT_EQ(MenuTexts(),
              Join(kFixedEntries,
                   {"Add Rule...", "Add Location Type Check", "Add Coalition Check",
                    "Add Free Check", "-", "Add Primary Link\tShift+T", "-", "Delete Links..."}));

    phase->primaryLinkId = PhaseAt("B", 400, 0)->id;
    CheckOf(*phase, CheckRange);
    EXPECT_EQ(MenuTexts(),
              Join(kFixedEntries, {"Add Rule...", "Add Location Type Check", "Add Coalition Check",
                                   "Add In Radius Check", "Add In Sector Check", "Add Free Check",
                                   "-", "Add Primary Link\tShift+T", "-", "Delete Links..."}));
    const ContextMenu menu = weaver.BuildContextMenu();
    EXPECT_EQ(menu[5].command, CommandId::AddRule);
    EXPECT_EQ(menu[8].command, CommandId::AddInRadiusCheck);
    EXPECT_EQ(menu.back().command, CommandId::DeleteLinks);
}

TEST_F(ContextMenuTest, TheGenerationTypeDecidesWhichGeometryLinksCanBeDrawn) {
    Phase* phase = PhaseAt("A", 0, 0);
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
    Phase* a = PhaseAt("Alpha", 0, 0);
    Phase* b = PhaseAt("Bravo", 400, 0);
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

// While a phase waits to be placed, only Escape, the view commands and the
// placing click are taken: anything else could leave the half-made phase
// behind, or save it.
TEST_F(EnableRulesTest, WhilePlacingAPhaseOnlyTheViewCommandsStayEnabled) {
    Phase* phase = PhaseAt("A", 0, 0);
    Select(phase);
    commands.Run(CommandId::AddFreeCheck);
    commands.Run(CommandId::AddFreeCheck);
    commands.Run(CommandId::EditUndo);
    dialogs.QueueOutcome(true, [](DialogCall& call) {
        As<Phase>(call.object)->blocks["main"] = "scg\\0\\blocks\\air\\patrol.group";
    });
    ASSERT_TRUE(commands.Run(CommandId::AddPhase));
    ASSERT_EQ(weaver.interactionState(), InteractionState::StatePlacePhase);
    Phase* placing = weaver.pendingPhase;

    for (CommandId idleOnly :
         {CommandId::FileNew,        CommandId::FileOpen,         CommandId::FileSave,
          CommandId::FileSaveAs,     CommandId::EditCut,          CommandId::EditCopy,
          CommandId::EditPaste,      CommandId::PasteAtPointer,   CommandId::ReloadBlocks,
          CommandId::SaveSelection,  CommandId::ImportTemplate,   CommandId::AddPhase,
          CommandId::AddUnlinker,    CommandId::AddCase,          CommandId::AddSwitch,
          CommandId::EditUndo,       CommandId::EditRedo,         CommandId::AddRule,
          CommandId::AddFreeCheck,   CommandId::AddTargetLink01,  CommandId::DeleteLinks,
          CommandId::AddPrimaryLink, CommandId::AddSecondaryLink, CommandId::FindNext,
          CommandId::RecentFile1})
        EXPECT_FALSE(commands.IsEnabled(idleOnly)) << CommandName(idleOnly);
    for (CommandId looking : {CommandId::DrawChecks, CommandId::ViewZoomFit, CommandId::ViewZoomIn,
                              CommandId::ViewZoomOut})
        EXPECT_TRUE(commands.IsEnabled(looking)) << CommandName(looking);

    // A disabled command does not run: Shift+T does not take the phase over,
    // and no undo takes away what the placing stands on.
    const std::size_t opened = dialogs.Log().size();
    EXPECT_FALSE(commands.Run(CommandId::AddCase));
    EXPECT_FALSE(commands.Run(CommandId::AddPrimaryLink));
    EXPECT_FALSE(commands.Run(CommandId::EditUndo));
    EXPECT_EQ(dialogs.Log().size(), opened);
    EXPECT_EQ(phase->checkIds.size(), 1u);
    EXPECT_EQ(weaver.pendingPhase, placing);
    EXPECT_EQ(weaver.interactionState(), InteractionState::StatePlacePhase);
}

TEST_F(EnableRulesTest, SaveNeedsAChangeAndCutAndCopyNeedASelection) {
    weaver.fileName = "scg\\mine.mt";
    Phase* phase = PhaseAt("A", 0, 0);
    EXPECT_FALSE(commands.IsEnabled(CommandId::FileSave));
    EXPECT_FALSE(commands.Run(CommandId::EditCut));
    EXPECT_FALSE(commands.Run(CommandId::EditCopy));
    EXPECT_EQ(e.DataFileText(Weaver::kClipboardPath), "<missing>");
    EXPECT_EQ(weaver.objects.size(), 1u);

    Select(phase);
    EXPECT_TRUE(commands.IsEnabled(CommandId::EditCut));
    commands.Run(CommandId::AddFreeCheck);
    EXPECT_TRUE(commands.IsEnabled(CommandId::FileSave));
    EXPECT_TRUE(commands.Run(CommandId::FileSave));
    EXPECT_NE(e.DataFileText("scg\\mine.mt"), "<missing>");
    EXPECT_FALSE(commands.IsEnabled(CommandId::FileSave));
}

TEST_F(EnableRulesTest, TogglesFlipTheirOptionInAnyStateAndKeepTheSelection) {
    const std::vector<std::pair<CommandId, bool*>> toggles{
        {CommandId::DrawIo, &weaver.options.DrawInputOutputs},
        {CommandId::DrawSwitches, &weaver.options.DrawSwitchAndCases},
        {CommandId::DrawChecks, &weaver.options.DrawChecks},
        {CommandId::DrawActions, &weaver.options.DrawActions},
        {CommandId::DrawGeometry, &weaver.options.DrawGeometry},
        {CommandId::OpenLastOnStart, &weaver.options.OpenLastUsedTemplateOnStart},
    };
    weaver.PointerDown(900, 900); // a band, under way while the toggles run
    ASSERT_FALSE(weaver.IsIdle());
    for (const auto& [command, flag] : toggles) {
        const bool before = *flag;
        EXPECT_EQ(commands.IsChecked(command), before) << CommandName(command);
        const int repaints = e.host.repaints;
        EXPECT_TRUE(commands.Run(command));
        EXPECT_EQ(*flag, !before) << CommandName(command);
        EXPECT_EQ(commands.IsChecked(command), !before) << CommandName(command);
        if (command != CommandId::OpenLastOnStart) { // the canvas shows the others
            EXPECT_EQ(e.host.repaints, repaints + 1);
        }
    }
    EXPECT_FALSE(commands.IsChecked(CommandId::FileNew));

    // A check hidden while selected stays selected.
    weaver.PointerUp(900, 900);
    weaver.options.DrawChecks = true;
    Phase* phase = PhaseAt("A", 0, 0);
    Check* check = CheckOf(*phase, CheckSquad, 66, 172);
    ClickAt(66, 172);
    ASSERT_EQ(Selected(), std::vector<EditorObject*>{check});
    commands.Run(CommandId::DrawChecks);
    EXPECT_FALSE(weaver.options.DrawChecks);
    EXPECT_EQ(Selected(), std::vector<EditorObject*>{check});

    // The window carries out its own commands.
    EXPECT_TRUE(commands.IsEnabled(CommandId::AppExit));
    EXPECT_FALSE(commands.Run(CommandId::AppExit));
}
