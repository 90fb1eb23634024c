#include "app/CommandTable.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace lw;

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
