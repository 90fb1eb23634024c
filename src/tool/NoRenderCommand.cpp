// render in a build made without Qt, such as the Windows cross build: the
// command is known and takes its usual options, but draws nothing.
#include "RenderCommand.h"
#include "TemplateCommands.h"

#include <iostream>

int RunRenderCommand(const ToolArguments&, const char*) {
    std::cerr << "loomwright-tool: this build cannot draw: it was made without Qt\n";
    return kFailure;
}
