#pragma once

#include "platform/FileSystem.h"

#include <istream>
#include <memory>
#include <string>
#include <vector>

namespace lw {

// How the program reaches its files. Paths come as the files write them:
// relative to the data folder, with "\" separators, often lower-cased by the
// program. FileAccess maps them onto the platform: "\" becomes "/", a relative
// path is joined to the base folder, and where a name does not exist exactly,
// each component is looked up again without regard to case (data copied from
// a case-insensitive file system keeps its mixed-case names).
class FileAccess {
public:
    explicit FileAccess(FileSystem& system) : system_(system) {}

    // The folder against which relative paths resolve; an empty folder means
    // the process's working directory.
    void SetBaseFolder(const std::string& folder) { baseFolder_ = folder; }
    const std::string& BaseFolder() const { return baseFolder_; }

    // The native path for `path`: the existing entry if one matches; a new
    // name in an existing folder, in the folder as the disk spells it; else
    // the mapped path as it stands.
    std::string Resolve(const std::string& path) const;

    PathKind KindOf(const std::string& path) const;
    std::unique_ptr<std::istream> OpenForReading(const std::string& path) const;
    // The entries of a folder sorted by name, so that every platform lists alike.
    std::vector<DirectoryEntry> ListDirectory(const std::string& path) const;
    bool IsReadOnly(const std::string& path) const;
    // Writes the file whole or not at all; see FileSystem::ReplaceFile.
    bool ReplaceFile(const std::string& path, const std::string& bytes) const;

    // The same for native paths, as Resolve gives them: a path is mapped
    // exactly once, since mapping a mapped relative path again would put the
    // base folder in front of it a second time.
    std::unique_ptr<std::istream> OpenNativeForReading(const std::string& nativePath) const;
    std::vector<DirectoryEntry> ListNativeDirectory(const std::string& nativePath) const;
    std::string NativeCanonicalPath(const std::string& nativePath) const;

    FileSystem& System() const { return system_; }

private:
    std::string Mapped(const std::string& path) const;
    std::string MatchIgnoringCase(const std::string& folder, const std::string& name) const;

    FileSystem& system_;
    std::string baseFolder_;
};

// Turns "\" into "/".
std::string ToForwardSlashes(std::string path);
bool IsAbsolutePath(const std::string& path);

} // namespace lw
