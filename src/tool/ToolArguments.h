#pragma once

#include <string>
#include <vector>

// The words of one command line after the command's name: the --data option
// (by default the editor's own data folder) and the plain arguments.
struct ToolArguments {
    std::string dataFolder;
    std::vector<std::string> positional;
    std::string error;

    static ToolArguments Parse(const std::vector<std::string>& words,
                               const std::string& defaultDataFolder);
};
