#pragma once

#include "ToolArguments.h"

#include <cstddef>
#include <set>
#include <string>
#include <vector>

// One command of loomwright-tool: its name, its usage block as `help` prints
// it, the options with a value that it takes besides --data, how many plain
// arguments it needs, and what runs it.
struct ToolCommand {
    const char* name;
    const char* usage;
    std::set<std::string> valuedOptions;
    std::set<std::string> flags;
    std::size_t minArguments;
    std::size_t maxArguments;
    int (*run)(const ToolArguments& arguments, const char* usage);
};

// Every command, in the order the usage lists them.
const std::vector<ToolCommand>& ToolCommands();
const ToolCommand* FindToolCommand(const std::string& name);

// The whole usage: what the program is for, every command, the options and
// the exit status.
std::string FullUsage();
// "loomwright-tool 1.0"
std::string VersionLine();
