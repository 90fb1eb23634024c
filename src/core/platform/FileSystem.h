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
};

} // namespace lw
