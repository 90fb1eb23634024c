#include "TemplateCommands.h"

#include "ModelSession.h"
#include "diagnostics/DiagnosticsJson.h"
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
    ModelSession session(arguments.dataFolder);
    lw::TemplateWorkspace& workspace = session.workspace;
    prepare(workspace);
    bool failed = !session.Load(arguments.positional[0]);
    std::vector<std::string> report;
    if (!failed)
        report = change(workspace);
    std::vector<std::string> messages = session.TakeMessages();
    PrintLines(out, messages);
    PrintLines(out, report);
    if (!failed) {
        workspace.fileName = CommandLinePath(arguments.positional[1]);
        failed = !workspace.WriteTemplateFile();
    }
    const std::vector<std::string> saveMessages = session.TakeMessages();
    PrintLines(out, saveMessages);
    if (failed)
        return kFailure;
    return messages.empty() && saveMessages.empty() ? kNoMessage : kMessageShown;
}

} // namespace

namespace {

enum class CheckFormat { Text, Gcc, Json };

// What check found in one template, printed in the format asked for.
class CheckPrinter {
public:
    CheckPrinter(CheckFormat format, bool warningsCount, std::ostream& out)
        : format_(format), warningsCount_(warningsCount), out_(out) {}

    // The messages of one template and, but in the text format, its problems.
    void Print(const std::string& file, const std::vector<std::string>& messages,
               const lw::Diagnostics& problems) {
        anyFinding_ = anyFinding_ || !messages.empty();
        if (format_ == CheckFormat::Text) {
            PrintLines(out_, messages, file.empty() ? std::string() : file + ": ");
            return;
        }
        for (const lw::Diagnostic& problem : problems)
            anyFinding_ = anyFinding_ || problem.severity == lw::Severity::Error || warningsCount_;
        if (format_ == CheckFormat::Json) {
            out_ << (printed_ == 0 ? "[\n  " : ",\n  ")
                 << lw::TemplateResultJson(file, messages, problems);
        } else {
            for (const std::string& message : messages)
                out_ << file << ": error: " << message << " [message]\n";
            for (const lw::Diagnostic& problem : problems)
                out_ << lw::GccLine(problem) << "\n";
        }
        ++printed_;
    }

    void Finish() {
        if (format_ == CheckFormat::Json)
            out_ << (printed_ == 0 ? "[]\n" : "\n]\n");
    }

    bool AnyFinding() const { return anyFinding_; }

private:
    CheckFormat format_;
    bool warningsCount_;
    std::ostream& out_;
    std::size_t printed_ = 0;
    bool anyFinding_ = false;
};

// The problems of the open template, named by the path as it was typed.
lw::Diagnostics ProblemsOf(lw::TemplateWorkspace& workspace, const std::string& typed) {
    lw::Diagnostics problems = workspace.problems.All(workspace, workspace.fileName);
    for (lw::Diagnostic& problem : problems) {
        if (problem.file == workspace.fileName)
            problem.file = typed;
    }
    return problems;
}

} // namespace

int RunCheckCommand(const ToolArguments& arguments, std::ostream& out) {
    const auto formatValue = arguments.values.find(kFormatOption);
    const std::string formatName =
        formatValue != arguments.values.end() ? formatValue->second : "text";
    if (formatName != "text" && formatName != "gcc" && formatName != "json") {
        std::cerr << "loomwright-tool: the format must be text, gcc or json\n";
        return kFailure;
    }
    const CheckFormat format = formatName == "gcc"    ? CheckFormat::Gcc
                               : formatName == "json" ? CheckFormat::Json
                                                      : CheckFormat::Text;
    CheckPrinter printer(format, arguments.flags.count(kWerrorFlag) != 0, out);
    ModelSession session(arguments.dataFolder);
    session.workspace.reportProblems = format != CheckFormat::Text;
    // What the data folder itself showed at start belongs to no template.
    const std::vector<std::string> atStart = session.TakeMessages();
    if (!atStart.empty())
        printer.Print(format == CheckFormat::Text ? std::string() : arguments.dataFolder, atStart,
                      {});
    bool anyUnreadable = false;
    for (const std::string& path : TemplatesNamedBy(arguments.positional)) {
        const bool loaded = session.Load(path);
        anyUnreadable = anyUnreadable || !loaded;
        const std::vector<std::string> messages = session.TakeMessages();
        printer.Print(path, messages,
                      loaded && format != CheckFormat::Text ? ProblemsOf(session.workspace, path)
                                                            : lw::Diagnostics());
    }
    printer.Finish();
    if (anyUnreadable)
        return kFailure;
    return printer.AnyFinding() ? kMessageShown : kNoMessage;
}

int RunNormalizeCommand(const ToolArguments& arguments, std::ostream& out) {
    return RewriteTemplate(
        arguments, out, [](lw::TemplateWorkspace&) {},
        [](lw::TemplateWorkspace&) { return std::vector<std::string>(); });
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
    const auto useBlocksBefore = [&](lw::TemplateWorkspace& workspace) {
        if (!hasBefore)
            return;
        workspace.files.SetBaseFolder(before->second);
        workspace.blockPool.Load(workspace.blockFolders);
    };
    // The same reload as the editor's, with the log printed instead of
    // written into the data folder and opened.
    return RewriteTemplate(arguments, out, useBlocksBefore, [&](lw::TemplateWorkspace& workspace) {
        if (hasBefore)
            workspace.files.SetBaseFolder(arguments.dataFolder);
        std::vector<std::string> log;
        lw::BlockReloader(workspace, workspace.blockPool, log).Run(workspace.blockFolders);
        return log;
    });
}
