#include "platform/NativeFileSystem.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace fs = std::filesystem;

namespace lw {

PathKind NativeFileSystem::KindOf(const std::string& path) const {
    std::error_code error;
    const fs::file_status status = fs::status(fs::u8path(path), error);
    if (error || !fs::exists(status))
        return PathKind::Missing;
    return fs::is_directory(status) ? PathKind::Directory : PathKind::File;
}

std::unique_ptr<std::istream> NativeFileSystem::OpenForReading(const std::string& path) const {
    if (KindOf(path) != PathKind::File)
        return nullptr;
    // Binary mode: the readers handle CR LF themselves on every platform.
    auto stream = std::make_unique<std::ifstream>(fs::u8path(path), std::ios::binary);
    if (!stream->is_open())
        return nullptr;
    return stream;
}

std::vector<DirectoryEntry> NativeFileSystem::ListDirectory(const std::string& path) const {
    std::vector<DirectoryEntry> entries;
    std::error_code error;
    fs::directory_iterator it(fs::u8path(path), error);
    for (; !error && it != fs::directory_iterator(); it.increment(error)) {
        std::error_code kindError;
        const bool isDirectory = it->is_directory(kindError);
        entries.push_back({it->path().filename().u8string(), isDirectory && !kindError});
    }
    return entries;
}

std::string NativeFileSystem::CanonicalPath(const std::string& path) const {
    std::error_code error;
    const fs::path canonical = fs::canonical(fs::u8path(path), error);
    if (error)
        return fs::u8path(path).lexically_normal().generic_u8string();
    return canonical.generic_u8string();
}

std::string CurrentExecutablePath(const char* argv0) {
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    if (!error)
        return self.generic_u8string();
    if (argv0 == nullptr)
        return std::string();
    const fs::path fromArgument = fs::absolute(fs::u8path(argv0), error);
    return error ? std::string(argv0) : fromArgument.generic_u8string();
}

} // namespace lw
