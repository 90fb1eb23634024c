#pragma once

#include "ToolArguments.h"

#include <ostream>

// `generate`: writes a synthetic template of the given number of phases and
// the data folder it needs into a folder. Exit status 0, or 2 when the number
// is no positive whole number or a file cannot be written.
int RunGenerateCommand(const ToolArguments& arguments, std::ostream& out);
