#include "platform/FileAccess.h"

#include "text/Text.h"

#include <algorithm>
#include <cctype>

namespace lw {

namespace {

std::vector<DirectoryEntry> SortedEntries(const FileSystem& system, const std::string& folder) {
    std::vector<DirectoryEntry> entries = system.ListDirectory(folder);
    std::sort(entries.begin(), entries.end(),
              [](const DirectoryEntry& a, const DirectoryEntry& b) { return a.name < b.name; });
    return entries;
}

} // namespace

std::string ToForwardSlashes(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

bool IsAbsolutePath(const std::string& path) {
    if (!path.empty() && path[0] == '/')
        return true;
    const bool driveLetter = path.size() >= 3 &&
                             std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':' &&
                             path[2] == '/';
    return driveLetter;
}

std::string FileAccess::Mapped(const std::string& path) const {
    const std::string forward = ToForwardSlashes(path);
    if (IsAbsolutePath(forward) || baseFolder_.empty())
        return forward;
    if (baseFolder_.back() == '/')
        return baseFolder_ + forward;
    return baseFolder_ + "/" + forward;
}

std::string FileAccess::MatchIgnoringCase(const std::string& folder,
                                          const std::string& name) const {
    for (const DirectoryEntry& entry : SortedEntries(system_, folder.empty() ? "." : folder)) {
        if (EqualsIgnoringCase(entry.name, name))
            return entry.name;
    }
    return std::string();
}

std::string FileAccess::Resolve(const std::string& path) const {
    const std::string mapped = Mapped(path);
    if (system_.KindOf(mapped) != PathKind::Missing)
        return mapped;

    // Walk the path component by component, keeping what exists exactly and
    // looking up the rest without regard to case.
    std::string resolved;
    std::size_t begin = 0;
    if (IsAbsolutePath(mapped)) {
        begin = mapped.find('/') + 1;
        resolved = mapped.substr(0, begin);
    }
    while (begin <= mapped.size()) {
        std::size_t end = mapped.find('/', begin);
        if (end == std::string::npos)
            end = mapped.size();
        const std::string name = mapped.substr(begin, end - begin);
        begin = end + 1;
        if (name.empty())
            continue;
        const std::string prefix =
            resolved.empty() || resolved.back() == '/' ? resolved : resolved + "/";
        std::string candidate = prefix + name;
        if (name != "." && name != ".." && system_.KindOf(candidate) == PathKind::Missing) {
            const std::string match = MatchIgnoringCase(resolved, name);
            if (!match.empty())
                candidate = prefix + match;
            else if (mapped.find_first_not_of('/', end) != std::string::npos)
                return mapped;
            // A last name that matches nothing is a file about to be made: it
            // keeps its spelling, in the folder as the disk spells it.
        }
        resolved = candidate;
    }
    return resolved;
}

PathKind FileAccess::KindOf(const std::string& path) const {
    return system_.KindOf(Resolve(path));
}

std::unique_ptr<std::istream> FileAccess::OpenForReading(const std::string& path) const {
    return system_.OpenForReading(Resolve(path));
}

bool FileAccess::IsReadOnly(const std::string& path) const {
    return system_.IsReadOnly(Resolve(path));
}

bool FileAccess::ReplaceFile(const std::string& path, const std::string& bytes) const {
    return system_.ReplaceFile(Resolve(path), bytes);
}

std::vector<DirectoryEntry> FileAccess::ListDirectory(const std::string& path) const {
    return ListNativeDirectory(Resolve(path));
}

std::unique_ptr<std::istream>
FileAccess::OpenNativeForReading(const std::string& nativePath) const {
    return system_.OpenForReading(nativePath);
}

std::vector<DirectoryEntry> FileAccess::ListNativeDirectory(const std::string& nativePath) const {
    return SortedEntries(system_, nativePath);
}

std::string FileAccess::NativeCanonicalPath(const std::string& nativePath) const {
    return system_.CanonicalPath(nativePath);
}

} // namespace lw
