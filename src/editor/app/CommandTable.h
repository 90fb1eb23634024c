#pragma once

#include "app/CommandId.h"
#include "app/ContextMenu.h"

#include <optional>
#include <string>
#include <vector>

namespace lw {

// The main window's commands as the user meets them: the menus, the toolbar,
// the keys, and the texts of the status bar and the tool tips. The window
// builds its bars from these tables and runs every entry through
// EditorCommands.

struct MenuDefinition {
    std::string title;
    // An entry's text carries its key's text after a tab, as the menu shows it.
    ContextMenu entries;
};

// A key of the window and the command it runs. `keys` names the chord as
// "Ctrl+Shift+S", "Alt+Backspace" or "Shift+Insert".
struct Accelerator {
    std::string keys;
    CommandId command;
};

// The menus of the menu bar, in order.
const std::vector<MenuDefinition>& MainMenu();
// The toolbar's buttons in order; an empty place is a gap between groups.
const std::vector<std::optional<CommandId>>& ToolbarButtons();
const std::vector<Accelerator>& Accelerators();

// The text the status bar shows while the pointer rests on the command's
// entry or button; empty when it has none.
std::string StatusText(CommandId command);
// The button's tool tip; empty when it has none.
std::string ToolTipText(CommandId command);

// The File menu's entry of a recent file: its number, which is its key, and
// its path.
std::string RecentFileText(std::size_t index, const std::string& path);

// A command that switches something on or off and shows a tick while on.
bool IsToggle(CommandId command);

} // namespace lw
