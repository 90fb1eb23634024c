#include "ToolSession.h"

#include <filesystem>

ToolSession::ToolSession(const std::string& dataFolder) {
    weaver.StartUp(dataFolder);
}

std::vector<std::string> ToolSession::TakeMessages() {
    return Take(false);
}

std::vector<std::string> ToolSession::TakeMessagesAndQuestions() {
    return Take(true);
}

std::vector<std::string> ToolSession::Take(bool withQuestions) {
    // Only the messages since the last call are copied, so that checking many
    // templates does not go over the earlier ones again.
    const auto& log = prompts.Log();
    std::vector<std::string> fresh;
    for (; messagesTaken_ < log.size(); ++messagesTaken_) {
        const lw::RecordingPrompts::Shown& shown = log[messagesTaken_];
        if (!shown.isQuestion)
            fresh.push_back(shown.text);
        else if (withQuestions)
            fresh.push_back("? " + shown.text);
    }
    return fresh;
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
