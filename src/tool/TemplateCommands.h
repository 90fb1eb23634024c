#pragma once

#include "ToolArguments.h"

#include <ostream>

// `check [--format text|gcc|json] [--werror] TEMPLATE|FOLDER...`: loads each
// template as the editor opens it and prints every message, prefixed with
// the template's path and ": "; gcc and json print the problems that reading
// and checking found as well.
int RunCheckCommand(const ToolArguments& arguments, std::ostream& out);
inline constexpr const char* kFormatOption = "--format";
inline constexpr const char* kWerrorFlag = "--werror";

// `normalize IN OUT`: loads IN as the editor opens it and writes OUT as the
// editor saves it, printing the messages.
int RunNormalizeCommand(const ToolArguments& arguments, std::ostream& out);

// `reload [--before DIR] IN OUT`: loads IN, brings it into line with the block
// files as the editor's reload of blocks does, and writes OUT; the reload's
// log is printed after the messages. With --before, IN is read against the
// blocks of that data folder, the ones it was made with.
int RunReloadCommand(const ToolArguments& arguments, std::ostream& out);
inline constexpr const char* kBeforeOption = "--before";

// Exit status of the template commands.
enum ToolStatus { kNoMessage = 0, kMessageShown = 1, kFailure = 2 };
