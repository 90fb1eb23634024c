#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

// The words of one command line after the command's name: the --data option
// (by default the editor's own data folder), the options with a value and
// the flags that the command accepts besides, and the plain arguments.
struct ToolArguments {
    std::string dataFolder;
    std::map<std::string, std::string> values;
    std::set<std::string> flags;
    std::vector<std::string> positional;
    std::string error;

    static ToolArguments Parse(const std::vector<std::string>& words,
                               const std::string& defaultDataFolder,
                               const std::set<std::string>& valuedOptions = {},
                               const std::set<std::string>& knownFlags = {});
};
