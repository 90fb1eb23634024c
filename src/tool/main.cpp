#include "InfoCommand.h"
#include "ToolArguments.h"
#include "app/DataFolder.h"
#include "platform/NativeFileSystem.h"

#include <iostream>
#include <string>
#include <vector>

namespace {

const char* const kUsage =
    "usage: loomwright-tool COMMAND [--data DIR] [ARGS]\n"
    "\n"
    "Works on mission templates without the editor's window.\n"
    "\n"
    "commands:\n"
    "  info     show what the editor reads from the data folder at start:\n"
    "           the configuration, the model and rule catalogues, the block folders\n"
    "\n"
    "options:\n"
    "  --data DIR  the data folder; by default the one the editor uses,\n"
    "              two levels above this program, then \"data\"\n"
    "\n"
    "exit status: 0 when no message was shown, 1 when at least one was,\n"
    "2 for a usage error.\n";

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.empty()) {
        std::cerr << kUsage;
        return 2;
    }
    if (words[0] == "--help" || words[0] == "-h" || words[0] == "help") {
        std::cout << kUsage;
        return 0;
    }
    const std::string defaultData =
        lw::DataFolderForExecutable(lw::CurrentExecutablePath(argc > 0 ? argv[0] : nullptr));
    const ToolArguments arguments =
        ToolArguments::Parse({words.begin() + 1, words.end()}, defaultData);
    if (!arguments.error.empty()) {
        std::cerr << "loomwright-tool: " << arguments.error << "\n" << kUsage;
        return 2;
    }
    if (words[0] == "info" && arguments.positional.empty())
        return RunInfoCommand(arguments, std::cout);

    std::cerr << "loomwright-tool: unknown command or arguments: " << words[0] << "\n" << kUsage;
    return 2;
}
