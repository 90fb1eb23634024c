#pragma once

#include <istream>
#include <memory>
#include <string>
#include <vector>

namespace lw {

enum class PathKind { Missing, File, Directory };

struct DirectoryEntry {
    std::string name;
    bool isDirectory = false;
};

// The file system as the platform offers it. Paths here are native paths
// with "/" separators; mapping the "\" paths of the files and resolving
// names case-insensitively is FileAccess's work.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual PathKind KindOf(const std::string& path) const = 0;

    // An open stream over the file's bytes, or null when it is no readable file.
    virtual std::unique_ptr<std::istream> OpenForReading(const std::string& path) const = 0;

    // The entries of a folder other than "." and "..", in any order.
    virtual std::vector<DirectoryEntry> ListDirectory(const std::string& path) const = 0;

    // A path that names the same entry whatever way it was reached (links
    // followed), so that a walk over folders can notice it has been somewhere.
    virtual std::string CanonicalPath(const std::string& path) const = 0;

    // True when `path` names an existing file that may not be written (a
    // read-only file). A missing path is not read-only.
    virtual bool IsReadOnly(const std::string& path) const = 0;

    // Replaces the content of the file `path` with `bytes`, whole or not at all:
    // the bytes go to a temporary file in the same folder, which is flushed and
    // closed and only then renamed over the target. Returns false, and leaves any
    // old file untouched and no temporary file behind, when the target is a
    // read-only file or a folder, when its folder is missing or not writable, or
    // when any write, flush, close or rename fails. A new file gets default
    // permissions; an existing file keeps its permissions.
    //
    // The read-only check comes before anything is written: a rename only needs
    // the folder to be writable, and must never overrule a file the user has
    // protected.
    virtual bool ReplaceFile(const std::string& path, const std::string& bytes) = 0;

    // Removes a file; true when it is gone, also when there was none.
    virtual bool RemoveFile(const std::string& path) = 0;
    // Makes the folder and those above it that are missing; true when it exists.
    virtual bool MakeFolder(const std::string& path) = 0;
};

} // namespace lw
