#pragma once

#include "platform/FileSystem.h"

#include <map>
#include <set>
#include <string>

namespace lw {

// A file system held in memory, for tests: files are added with their bytes,
// and their folders come into being with them.
class MemoryFileSystem : public FileSystem {
public:
    void AddFile(const std::string& path, const std::string& bytes);
    void AddDirectory(const std::string& path);
    void Remove(const std::string& path);
    // A file that exists but cannot be opened, as one without read permission.
    void MakeUnreadable(const std::string& path);
    // A file that may be read but not written, until it is removed. A folder
    // made read-only takes no new file and lets none of its files be replaced,
    // as a folder without write permission does.
    void MakeReadOnly(const std::string& path);
    // The next ReplaceFile fails as a full disk would make it: nothing changes.
    void FailNextReplace() { failNextReplace_ = true; }

    PathKind KindOf(const std::string& path) const override;
    std::unique_ptr<std::istream> OpenForReading(const std::string& path) const override;
    std::vector<DirectoryEntry> ListDirectory(const std::string& path) const override;
    std::string CanonicalPath(const std::string& path) const override;
    bool IsReadOnly(const std::string& path) const override;
    bool ReplaceFile(const std::string& path, const std::string& bytes) override;
    bool RemoveFile(const std::string& path) override;
    bool MakeFolder(const std::string& path) override;

private:
    std::map<std::string, std::string> files_;
    std::set<std::string> directories_;
    std::set<std::string> unreadable_;
    std::set<std::string> readOnly_;
    bool failNextReplace_ = false;
};

} // namespace lw
