#pragma once

#include "platform/FileSystem.h"

namespace lw {

// The file system through the standard library, for the command-line tool.
class NativeFileSystem : public FileSystem {
public:
    PathKind KindOf(const std::string& path) const override;
    std::unique_ptr<std::istream> OpenForReading(const std::string& path) const override;
    std::vector<DirectoryEntry> ListDirectory(const std::string& path) const override;
    std::string CanonicalPath(const std::string& path) const override;
    bool IsReadOnly(const std::string& path) const override;
    bool ReplaceFile(const std::string& path, const std::string& bytes) override;
    bool RemoveFile(const std::string& path) override;
    bool MakeFolder(const std::string& path) override;
};

// The path of the running program; `argv0` is the fallback where the system
// cannot tell.
std::string CurrentExecutablePath(const char* argv0);

} // namespace lw
