#include "ToolSession.h"

#include <filesystem>

ToolSession::ToolSession(const std::string& dataFolder) {
    weaver.StartUp(dataFolder);
}

std::vector<std::string> ToolSession::TakeMessages() {
    const std::vector<std::string> all = prompts.MessageTexts();
    std::vector<std::string> fresh(all.begin() + static_cast<std::ptrdiff_t>(messagesTaken_),
                                   all.end());
    messagesTaken_ = all.size();
    return fresh;
}

std::string CommandLinePath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute =
        std::filesystem::absolute(std::filesystem::u8path(path), error);
    return error ? path : absolute.generic_u8string();
}
