#include "ToolArguments.h"

ToolArguments ToolArguments::Parse(const std::vector<std::string>& words,
                                   const std::string& defaultDataFolder,
                                   const std::set<std::string>& valuedOptions,
                                   const std::set<std::string>& knownFlags) {
    ToolArguments arguments;
    arguments.dataFolder = defaultDataFolder;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        const bool isData = word == "--data";
        if (isData || valuedOptions.count(word) != 0) {
            if (i + 1 == words.size()) {
                arguments.error = word + (isData ? " needs a folder" : " needs a value");
                break;
            }
            (isData ? arguments.dataFolder : arguments.values[word]) = words[++i];
        } else if (knownFlags.count(word) != 0) {
            arguments.flags.insert(word);
        } else if (word.size() > 1 && word[0] == '-') {
            arguments.error = "unknown option " + word;
            break;
        } else {
            arguments.positional.push_back(word);
        }
    }
    return arguments;
}
