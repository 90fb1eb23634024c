#pragma once

#include "app/CommandId.h"

#include <optional>
#include <string>
#include <vector>

namespace lw {

// One entry of a menu that the window shows as it likes: a text with the
// command it runs, or a separator, which has no command.
struct MenuEntry {
    std::string text;
    std::optional<CommandId> command;

    bool IsSeparator() const { return !command.has_value(); }
};

using ContextMenu = std::vector<MenuEntry>;

} // namespace lw
