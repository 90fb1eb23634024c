#pragma once

#include "ToolArguments.h"

#include <ostream>

// `info`: what the editor finds in a data folder at start. Exit status 0, or
// 1 when reading it showed a message.
int RunInfoCommand(const ToolArguments& arguments, std::ostream& out);
