#include "ToolArguments.h"
#include "ToolCommands.h"
#include "app/DataFolder.h"
#include "platform/NativeFileSystem.h"

#include <algorithm>
#include <iostream>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif
#include <string>
#include <vector>

namespace {

bool IsHelpWord(const std::string& word) {
    return word == "--help" || word == "-h";
}

int UsageError(const std::string& error, const std::string& usage) {
    std::cerr << "loomwright-tool: " << error << "\n" << usage;
    return 2;
}

// `help`, `help COMMAND`, `--help` and `-h` print on standard output and
// succeed; asked of a command that does not exist, help is a usage error.
int PrintHelp(const std::vector<std::string>& topics) {
    if (topics.empty()) {
        std::cout << FullUsage();
        return 0;
    }
    const ToolCommand* command = FindToolCommand(topics[0]);
    if (command == nullptr || topics.size() > 1)
        return UsageError("no help for " + topics[0], FullUsage());
    std::cout << "usage:\n" << command->usage;
    return 0;
}

} // namespace

int main(int argc, char** argv) {
#ifdef _WIN32
    // What the tool prints is the same bytes on every platform, so that its
    // output can be compared and kept in files: no "\r" is put before "\n".
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
#endif
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.empty())
        return UsageError("a command is needed", FullUsage());
    if (words[0] == "--version") {
        std::cout << VersionLine() << "\n";
        return 0;
    }
    if (words[0] == "help" || IsHelpWord(words[0]))
        return PrintHelp({words.begin() + 1, words.end()});

    const ToolCommand* command = FindToolCommand(words[0]);
    if (command == nullptr)
        return UsageError("unknown command " + words[0], FullUsage());
    const std::vector<std::string> rest(words.begin() + 1, words.end());
    const std::string usage = std::string("usage:\n") + command->usage;
    if (std::any_of(rest.begin(), rest.end(), IsHelpWord)) {
        std::cout << usage;
        return 0;
    }

    const std::string defaultData =
        lw::DataFolderForExecutable(lw::CurrentExecutablePath(argc > 0 ? argv[0] : nullptr));
    const ToolArguments arguments =
        ToolArguments::Parse(rest, defaultData, command->valuedOptions, command->flags);
    if (!arguments.error.empty())
        return UsageError(arguments.error, usage);
    const std::size_t count = arguments.positional.size();
    if (count < command->minArguments || count > command->maxArguments)
        return UsageError(
            count < command->minArguments ? "too few arguments" : "too many arguments", usage);
    return command->run(arguments, usage.c_str());
}
