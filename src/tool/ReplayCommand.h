#pragma once

#include "ToolArguments.h"

#include <ostream>

// `replay IN SCRIPT OUT`: loads IN, feeds the canvas the pointer events, keys
// and commands of SCRIPT as the editor's window would, with the answers the
// script prepares for its dialogs, and writes OUT as the editor saves it.
// After each line it prints what the user would have seen: messages,
// questions, property dialogs, the context menu, and the state on `dump`.
int RunReplayCommand(const ToolArguments& arguments, std::ostream& out);
