#include "platform/NativeFileSystem.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace lw {

namespace {

bool IsReadOnlyFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error || !fs::is_regular_file(status))
        return false;
#ifdef _WIN32
    // The read-only attribute shows as a file without write permission.
    return (status.permissions() & fs::perms::owner_write) == fs::perms::none;
#else
    // A file that no one may write is protected by its owner, and a save must
    // not overrule that even where the system would let it: the superuser
    // may write any file.
    const fs::perms anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((status.permissions() & anyWrite) == fs::perms::none)
        return true;
    // Otherwise whether this user may write it, as the system decides: owner,
    // group, access lists and read-only mounts all count.
    return ::access(path.c_str(), W_OK) != 0;
#endif
}

// A name beside `target` that nothing uses yet. The ".tmp" ending keeps a
// file left over by a crash out of every scan for data files.
fs::path TemporaryPathBeside(const fs::path& target) {
    static std::atomic<std::uint64_t> counter{0};
    std::random_device device;
    const std::uint64_t seed =
        (static_cast<std::uint64_t>(device()) << 32) ^
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()) ^
        ++counter;
    std::mt19937_64 random(seed);
    for (;;) {
        const fs::path candidate =
            target.parent_path() / fs::u8path("." + target.filename().u8string() + "." +
                                              std::to_string(random()) + ".tmp");
        // A status that cannot be read counts as free: creating the file
        // will then fail on its own and end the save.
        std::error_code error;
        if (!fs::exists(fs::symlink_status(candidate, error)))
            return candidate;
    }
}

// Writes `bytes` to a new file at `path` with `permissions` (or the default
// ones), and makes sure they have reached the disk before the file counts as
// written, so that the rename that follows never exposes a half-written file.
bool WriteNewFile(const fs::path& path, const std::string& bytes, const fs::perms* permissions) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out.is_open())
        return false;
    // Set before the bytes go in, so a private file is never readable by
    // others, not even for a moment.
    if (permissions != nullptr) {
        std::error_code error;
        fs::permissions(path, *permissions, fs::perm_options::replace, error);
        if (error)
            return false;
    }
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.flush();
    const bool written = out.good();
    out.close();
    if (!written || out.fail())
        return false;
#ifndef _WIN32
    const int descriptor = ::open(path.c_str(), O_RDONLY);
    if (descriptor < 0)
        return false;
    const bool synced = ::fsync(descriptor) == 0;
    return ::close(descriptor) == 0 && synced;
#else
    return true;
#endif
}

} // namespace

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

bool NativeFileSystem::IsReadOnly(const std::string& path) const {
    return IsReadOnlyFile(fs::u8path(path));
}

bool NativeFileSystem::ReplaceFile(const std::string& path, const std::string& bytes) {
    std::error_code error;
    fs::path target = fs::u8path(path);
    // Saving through a link writes the file it names and keeps the link.
    if (fs::is_symlink(fs::symlink_status(target, error))) {
        target = fs::canonical(target, error);
        if (error)
            return false;
    }
    const fs::file_status status = fs::status(target, error);
    const bool exists = !error && fs::exists(status);
    if (exists && (!fs::is_regular_file(status) || IsReadOnlyFile(target)))
        return false;
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, error))
        return false;

    const fs::path temporary = TemporaryPathBeside(target);
    const fs::perms kept = status.permissions();
    bool replaced = WriteNewFile(temporary, bytes, exists ? &kept : nullptr);
    if (replaced) {
        fs::rename(temporary, target, error);
        replaced = !error;
    }
    if (!replaced)
        fs::remove(temporary, error);
    return replaced;
}

bool NativeFileSystem::RemoveFile(const std::string& path) {
    std::error_code error;
    fs::remove(fs::u8path(path), error);
    return !error;
}

bool NativeFileSystem::MakeFolder(const std::string& path) {
    std::error_code error;
    fs::create_directories(fs::u8path(path), error);
    return fs::is_directory(fs::u8path(path), error);
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
