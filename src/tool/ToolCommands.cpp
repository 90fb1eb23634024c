#include "ToolCommands.h"

#include "DiffCommand.h"
#include "GenerateCommand.h"
#include "InfoCommand.h"
#include "RenderCommand.h"
#include "ReplayCommand.h"
#include "TemplateCommands.h"
#include "app/AppInfo.h"

#include <iostream>

namespace {

int Check(const ToolArguments& arguments, const char*) {
    return RunCheckCommand(arguments, std::cout);
}
int Normalize(const ToolArguments& arguments, const char*) {
    return RunNormalizeCommand(arguments, std::cout);
}
int Reload(const ToolArguments& arguments, const char*) {
    return RunReloadCommand(arguments, std::cout);
}
int Replay(const ToolArguments& arguments, const char*) {
    return RunReplayCommand(arguments, std::cout);
}
int Diff(const ToolArguments& arguments, const char*) {
    return RunDiffCommand(arguments, std::cout);
}
int Generate(const ToolArguments& arguments, const char*) {
    return RunGenerateCommand(arguments, std::cout);
}
int Info(const ToolArguments& arguments, const char*) {
    return RunInfoCommand(arguments, std::cout);
}

const char* const kHeader = "usage: loomwright-tool COMMAND [--data DIR] [ARGS]\n"
                            "       loomwright-tool COMMAND --help | help COMMAND | --version\n"
                            "\n"
                            "Works on mission templates without the editor's window.\n"
                            "\n"
                            "commands:\n";

const char* const kFooter =
    "\n"
    "options:\n"
    "  --data DIR  the data folder; by default the one the editor uses,\n"
    "              two levels above this program, then \"data\"\n"
    "  --help, -h  after a command: that command's usage alone\n"
    "  --version   the program's name and version\n"
    "\n"
    "TEMPLATE, IN, OUT and SCRIPT are ordinary paths, relative to the working\n"
    "folder; the block files a template names are found in the data folder.\n"
    "\n"
    "exit status: 0 when no message was shown, 1 when at least one was (for\n"
    "replay, a question too), 2 for a usage error or a template that cannot be\n"
    "read (\"Can't open template file!\") or written\n"
    "(\"Can't save template file!\"), a picture that cannot be made or written,\n"
    "or a replay script that cannot be read or has a line not understood.\n";

} // namespace

const std::vector<ToolCommand>& ToolCommands() {
    static const std::vector<ToolCommand> commands = {
        {"check",
         "  check [--data DIR] [--format text|gcc|json] [--werror] TEMPLATE|FOLDER...\n"
         "           load each template as the editor opens it and print every message\n"
         "           the editor would show, one line each: the template's path, \": \",\n"
         "           then the message's exact text; a FOLDER stands for every .mt file\n"
         "           under it, in sorted order; gcc prints the messages and every\n"
         "           problem the reader and the checks find as FILE:LINE: severity:\n"
         "           message [code], json one object per template; with gcc and json\n"
         "           errors count for the exit status, with --werror warnings too\n",
         {kFormatOption},
         {kWerrorFlag},
         1,
         SIZE_MAX,
         Check},
        {"normalize",
         "  normalize [--data DIR] IN OUT\n"
         "           load IN as the editor opens it and write OUT as the editor saves\n"
         "           it; the messages are printed without a prefix\n",
         {},
         {},
         2,
         2,
         Normalize},
        {"reload",
         "  reload [--data DIR] [--before OLD] IN OUT\n"
         "           load IN, reload the blocks as the editor does after its block\n"
         "           files changed, and write OUT; the messages are printed, then the\n"
         "           reload's log, instead of writing it into the data folder; with\n"
         "           --before, IN is read against the blocks of the data folder OLD,\n"
         "           the ones it was made with, so that the log tells every change\n",
         {kBeforeOption},
         {},
         2,
         2,
         Reload},
        {"diff",
         "  diff [--data DIR] [--format text|json] OLD NEW\n"
         "           load both templates as the editor opens them and list how NEW\n"
         "           differs from OLD by object names: phases, cases and switches\n"
         "           added, removed, renamed, moved and changed (which fields), their\n"
         "           checks, actions and unlinkers, and the links; the order of the\n"
         "           lines, spacing, line ends and comments do not count; exit status\n"
         "           0 when the same, 1 when they differ, 2 when one cannot be read\n",
         {kFormatOption},
         {},
         2,
         2,
         Diff},
        {"render",
         "  render [--data DIR] [--layers LIST] [--scale S] [--diff OLD] IN OUT.png\n"
         "           load IN as the editor opens it, print the messages, and draw the\n"
         "           whole template as the canvas shows it into the PNG picture OUT;\n"
         "           LIST is a comma-separated choice of io, cases, checks, actions,\n"
         "           geometry and all (the default), S the zoom from 0.01 to 2\n"
         "           (default 1); with --diff, what differs from the template OLD is\n"
         "           marked: added green, changed orange, moved blue, removed dashed\n"
         "           grey where it stood; needs no display\n",
         {kLayersOption, kScaleOption, kDiffOption},
         {},
         2,
         2,
         RunRenderCommand},
        {"replay",
         "  replay [--data DIR] IN SCRIPT OUT\n"
         "           load IN, play the canvas events and commands of SCRIPT as the\n"
         "           editor's window receives them (a window of 1024 by 768 at the\n"
         "           screen's origin, not zoomed), write OUT as the editor saves it,\n"
         "           and print after each line of SCRIPT the messages (questions after\n"
         "           \"? \"), the property dialogs, the context menu and the state;\n"
         "           SCRIPT has one event a line, \"#\" starts a comment:\n"
         "             press|release|click X Y [shift] [ctrl]   move X Y [right]\n"
         "             dblclick X Y   rpress X Y   rrelease X Y   wheel X Y DELTA\n"
         "             key Delete|Escape   command ID_NAME   dump\n"
         "             answer yes|no|cancel   file PATH   dialog ok|cancel\n"
         "           the last three prepare the next question, file dialog (PATH in\n"
         "           the data folder) or property dialog, which are otherwise\n"
         "           cancelled; a line not understood stops it before it starts\n",
         {},
         {},
         3,
         3,
         Replay},
        {"generate",
         "  generate PHASES FOLDER\n"
         "           write a synthetic template of PHASES phases (checks, actions,\n"
         "           cases, switches, links and unlinkers with it) and the data\n"
         "           folder it loads in into FOLDER, and print the template's path;\n"
         "           for trying the editor and the tool on large templates\n",
         {},
         {},
         2,
         2,
         Generate},
        {"info",
         "  info [--data DIR]\n"
         "           show what the editor reads from the data folder at start:\n"
         "           the configuration, the model and rule catalogues, the block folders\n",
         {},
         {},
         0,
         0,
         Info},
    };
    return commands;
}

const ToolCommand* FindToolCommand(const std::string& name) {
    for (const ToolCommand& command : ToolCommands()) {
        if (name == command.name)
            return &command;
    }
    return nullptr;
}

std::string FullUsage() {
    std::string usage = kHeader;
    for (const ToolCommand& command : ToolCommands())
        usage += command.usage;
    return usage + kFooter;
}

std::string VersionLine() {
    return std::string("loomwright-tool ") + lw::kApplicationVersion;
}
