#include "TemplateCommands.h"

#include "ToolSession.h"

namespace {

void Print(std::ostream& out, const std::vector<std::string>& messages,
           const std::string& prefix = std::string()) {
    for (const std::string& message : messages)
        out << prefix << message << "\n";
}

} // namespace

int RunCheckCommand(const ToolArguments& arguments, std::ostream& out) {
    ToolSession session(arguments.dataFolder);
    bool anyMessage = false;
    bool anyUnreadable = false;
    std::vector<std::string> messages = session.TakeMessages();
    Print(out, messages);
    anyMessage = !messages.empty();
    for (const std::string& path : arguments.positional) {
        if (!session.weaver.LoadTemplateFile(CommandLinePath(path)))
            anyUnreadable = true;
        messages = session.TakeMessages();
        Print(out, messages, path + ": ");
        anyMessage = anyMessage || !messages.empty();
    }
    if (anyUnreadable)
        return kFailure;
    return anyMessage ? kMessageShown : kNoMessage;
}

int RunNormalizeCommand(const ToolArguments& arguments, std::ostream& out) {
    ToolSession session(arguments.dataFolder);
    bool failed = !session.weaver.LoadTemplateFile(CommandLinePath(arguments.positional[0]));
    if (!failed) {
        session.weaver.fileName = CommandLinePath(arguments.positional[1]);
        failed = !session.weaver.SaveTemplateFile();
    }
    const std::vector<std::string> messages = session.TakeMessages();
    Print(out, messages);
    if (failed)
        return kFailure;
    return messages.empty() ? kNoMessage : kMessageShown;
}
