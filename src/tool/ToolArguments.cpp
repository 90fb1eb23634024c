#include "ToolArguments.h"

ToolArguments ToolArguments::Parse(const std::vector<std::string>& words,
                                   const std::string& defaultDataFolder) {
    ToolArguments arguments;
    arguments.dataFolder = defaultDataFolder;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--data") {
            if (i + 1 == words.size()) {
                arguments.error = "--data needs a folder";
                break;
            }
            arguments.dataFolder = words[++i];
        } else if (word.size() > 1 && word[0] == '-') {
            arguments.error = "unknown option " + word;
            break;
        } else {
            arguments.positional.push_back(word);
        }
    }
    return arguments;
}
