#include "TemplateCommands.h"

#include "ToolSession.h"
#include "operations/BlockReloader.h"
#include "platform/NativeFileSystem.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace {

bool IsTemplateFile(const std::filesystem::path& path) {
    const std::string extension = path.extension().u8string();
    return extension.size() == 3 && extension[0] == '.' &&
           (extension[1] == 'm' || extension[1] == 'M') &&
           (extension[2] == 't' || extension[2] == 'T');
}

// The templates that the arguments name: a folder stands for every .mt file
// under it, at any depth, in the sorted order of their paths, each named as
// the folder and its path below it, as if it had been named itself.
std::vector<std::string> TemplatesNamedBy(const std::vector<std::string>& arguments) {
    namespace fs = std::filesystem;
    std::vector<std::string> templates;
    for (const std::string& argument : arguments) {
        std::error_code error;
        const fs::path folder = fs::u8path(argument);
        if (!fs::is_directory(folder, error)) {
            templates.push_back(argument);
            continue;
        }
        std::vector<std::string> found;
        for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end;
             it.increment(error)) {
            std::error_code kindError;
            if (it->is_regular_file(kindError) && IsTemplateFile(it->path()))
                found.push_back(it->path().u8string());
        }
        std::sort(found.begin(), found.end());
        templates.insert(templates.end(), found.begin(), found.end());
    }
    return templates;
}

// Loads IN as the editor opens it, once `prepare` has set the editor up,
// lets `change` work on the document, and writes OUT as the editor saves it.
// The messages shown until then are printed first, then the lines `change`
// returns, then the save's message.
template <typename Prepare, typename Change>
int RewriteTemplate(const ToolArguments& arguments, std::ostream& out, Prepare prepare,
                    Change change) {
    ToolSession session(arguments.dataFolder);
    lw::Weaver& weaver = session.weaver;
    prepare(weaver);
    bool failed = !weaver.LoadTemplateFile(CommandLinePath(arguments.positional[0]));
    std::vector<std::string> report;
    if (!failed)
        report = change(weaver);
    std::vector<std::string> messages = session.TakeMessages();
    PrintLines(out, messages);
    PrintLines(out, report);
    if (!failed) {
        weaver.fileName = CommandLinePath(arguments.positional[1]);
        failed = !weaver.SaveTemplateFile();
    }
    const std::vector<std::string> saveMessages = session.TakeMessages();
    PrintLines(out, saveMessages);
    if (failed)
        return kFailure;
    return messages.empty() && saveMessages.empty() ? kNoMessage : kMessageShown;
}

} // namespace

int RunCheckCommand(const ToolArguments& arguments, std::ostream& out) {
    ToolSession session(arguments.dataFolder);
    bool anyMessage = false;
    bool anyUnreadable = false;
    std::vector<std::string> messages = session.TakeMessages();
    PrintLines(out, messages);
    anyMessage = !messages.empty();
    for (const std::string& path : TemplatesNamedBy(arguments.positional)) {
        if (!session.weaver.LoadTemplateFile(CommandLinePath(path)))
            anyUnreadable = true;
        messages = session.TakeMessages();
        PrintLines(out, messages, path + ": ");
        anyMessage = anyMessage || !messages.empty();
    }
    if (anyUnreadable)
        return kFailure;
    return anyMessage ? kMessageShown : kNoMessage;
}

int RunNormalizeCommand(const ToolArguments& arguments, std::ostream& out) {
    return RewriteTemplate(
        arguments, out, [](lw::Weaver&) {}, [](lw::Weaver&) { return std::vector<std::string>(); });
}

int RunReloadCommand(const ToolArguments& arguments, std::ostream& out) {
    // With --before, the template is read against the blocks it was made
    // with, and the reload then meets the changed blocks of --data, as when
    // block files change under a template open in the editor.
    const auto before = arguments.values.find(kBeforeOption);
    const bool hasBefore = before != arguments.values.end();
    if (hasBefore && lw::NativeFileSystem().KindOf(before->second) != lw::PathKind::Directory) {
        std::cerr << "loomwright-tool: there is no folder " << before->second << "\n";
        return kFailure;
    }
    const auto useBlocksBefore = [&](lw::Weaver& weaver) {
        if (!hasBefore)
            return;
        weaver.files.SetBaseFolder(before->second);
        weaver.blockPool.Load(weaver.blockFolders);
    };
    // The same reload as the editor's, with the log printed instead of
    // written into the data folder and opened.
    return RewriteTemplate(arguments, out, useBlocksBefore, [&](lw::Weaver& weaver) {
        if (hasBefore)
            weaver.files.SetBaseFolder(arguments.dataFolder);
        std::vector<std::string> log;
        lw::BlockReloader(weaver, weaver.blockPool, log).Run(weaver.blockFolders);
        return log;
    });
}
