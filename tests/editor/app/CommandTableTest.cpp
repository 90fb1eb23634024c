#include "app/CommandTable.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace lw;

namespace {

const MenuDefinition& Menu(const std::string& title) {
    const auto& menus = MainMenu();
    return *std::find_if(menus.begin(), menus.end(),
                         [&](const MenuDefinition& menu) { return menu.title == title; });
}

} // namespace

TEST(CommandTableTest, MenusKeepTheirOddSeparatorsAndTexts) {
    std::vector<std::string> titles;
    for (const MenuDefinition& menu : MainMenu())
        titles.push_back(menu.title);
    EXPECT_EQ(titles,
              (std::vector<std::string>{"&File", "&Edit", "&View", "&Phase", "&Options", "&Help"}));
    EXPECT_TRUE(Menu("&View").entries.front().IsSeparator());
    EXPECT_TRUE(Menu("&Options").entries.back().IsSeparator());
    // The key's name is spelled right: a user must never read a slip in it.
    EXPECT_EQ(Menu("&File").entries[3].text, "Save As\tCtrl+Shift+S");
    EXPECT_EQ(Menu("&Edit").entries[5].text, "&Paste\tCtrl+V");
    EXPECT_EQ(Menu("&Edit").entries[5].command, CommandId::EditPaste);
    EXPECT_EQ(Menu("&Edit").entries[7].text, "Reload Blocks \"on the fly\"");
}

TEST(CommandTableTest, ToolbarHasTwentyTwoButtonsInSixGroupsPlusAbout) {
    const auto& buttons = ToolbarButtons();
    EXPECT_EQ(std::count(buttons.begin(), buttons.end(), std::nullopt), 6);
    EXPECT_EQ(buttons.size(), 28u);
    EXPECT_EQ(buttons.front(), CommandId::FileNew);
    EXPECT_EQ(buttons.back(), CommandId::AppAbout);
    for (const auto& button : buttons) {
        if (button) {
            EXPECT_FALSE(ToolTipText(*button).empty()) << CommandName(*button);
        }
    }
}

TEST(CommandTableTest, CtrlVPastesAtThePointerWhileShiftInsertIsTheMenusPaste) {
    auto command = [](const std::string& keys) {
        for (const Accelerator& key : Accelerators()) {
            if (key.keys == keys)
                return std::optional<CommandId>(key.command);
        }
        return std::optional<CommandId>();
    };
    EXPECT_EQ(command("Ctrl+V"), CommandId::PasteAtPointer);
    EXPECT_EQ(command("Shift+Insert"), CommandId::EditPaste);
    EXPECT_EQ(command("Alt+Backspace"), CommandId::EditUndo);
    EXPECT_EQ(command("Shift+Delete"), CommandId::EditCut);
    EXPECT_EQ(command("Ctrl+Insert"), CommandId::EditCopy);
    EXPECT_EQ(command("Delete"), std::nullopt);
    EXPECT_EQ(command("Escape"), std::nullopt);
}
