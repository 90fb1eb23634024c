#include "ModelSession.h"

#include <filesystem>

std::vector<std::string> PrintedPrompts::TakeMessages() {
    return Take(false);
}

std::vector<std::string> PrintedPrompts::TakeMessagesAndQuestions() {
    return Take(true);
}

std::vector<std::string> PrintedPrompts::Take(bool withQuestions) {
    // Only the messages since the last call are copied, so that checking many
    // templates does not go over the earlier ones again.
    const auto& log = Log();
    std::vector<std::string> fresh;
    for (; taken_ < log.size(); ++taken_) {
        const Shown& shown = log[taken_];
        if (!shown.isQuestion)
            fresh.push_back(shown.text);
        else if (withQuestions)
            fresh.push_back("? " + shown.text);
    }
    return fresh;
}

ModelSession::ModelSession(const std::string& dataFolder) {
    workspace.OpenDataFolder(dataFolder);
}

bool ModelSession::Load(const std::string& path) {
    const std::string absolute = CommandLinePath(path);
    if (!workspace.ReadTemplateFile(absolute))
        return false;
    workspace.fileName = absolute;
    return true;
}

std::string CommandLinePath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute =
        std::filesystem::absolute(std::filesystem::u8path(path), error);
    return error ? path : absolute.generic_u8string();
}

void PrintLines(std::ostream& out, const std::vector<std::string>& lines,
                const std::string& prefix) {
    for (const std::string& line : lines)
        out << prefix << line << "\n";
}
