#include "platform/MemoryFileSystem.h"

#include <sstream>

namespace lw {

namespace {

std::string Normalized(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

std::string ParentOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return std::string();
    return slash == 0 ? std::string("/") : path.substr(0, slash);
}

} // namespace

void MemoryFileSystem::AddFile(const std::string& path, const std::string& bytes) {
    const std::string key = Normalized(path);
    files_[key] = bytes;
    AddDirectory(ParentOf(key));
}

void MemoryFileSystem::AddDirectory(const std::string& path) {
    for (std::string folder = Normalized(path); !folder.empty() && folder != "/";
         folder = ParentOf(folder)) {
        directories_.insert(folder);
    }
}

void MemoryFileSystem::Remove(const std::string& path) {
    files_.erase(Normalized(path));
    directories_.erase(Normalized(path));
    readOnly_.erase(Normalized(path));
}

void MemoryFileSystem::MakeUnreadable(const std::string& path) {
    unreadable_.insert(Normalized(path));
}

void MemoryFileSystem::MakeReadOnly(const std::string& path) {
    readOnly_.insert(Normalized(path));
}

PathKind MemoryFileSystem::KindOf(const std::string& path) const {
    const std::string key = Normalized(path);
    if (files_.count(key) != 0)
        return PathKind::File;
    if (key == "/" || directories_.count(key) != 0)
        return PathKind::Directory;
    return PathKind::Missing;
}

std::unique_ptr<std::istream> MemoryFileSystem::OpenForReading(const std::string& path) const {
    const std::string key = Normalized(path);
    const auto found = files_.find(key);
    if (found == files_.end() || unreadable_.count(key) != 0)
        return nullptr;
    return std::make_unique<std::istringstream>(found->second);
}

std::vector<DirectoryEntry> MemoryFileSystem::ListDirectory(const std::string& path) const {
    const std::string folder = Normalized(path);
    std::vector<DirectoryEntry> entries;
    auto addChild = [&](const std::string& child, bool isDirectory) {
        if (child != folder && ParentOf(child) == folder)
            entries.push_back({child.substr(child.rfind('/') + 1), isDirectory});
    };
    for (const auto& file : files_)
        addChild(file.first, false);
    for (const std::string& directory : directories_)
        addChild(directory, true);
    return entries;
}

std::string MemoryFileSystem::CanonicalPath(const std::string& path) const {
    return Normalized(path);
}

bool MemoryFileSystem::IsReadOnly(const std::string& path) const {
    const std::string key = Normalized(path);
    return files_.count(key) != 0 && readOnly_.count(key) != 0;
}

bool MemoryFileSystem::ReplaceFile(const std::string& path, const std::string& bytes) {
    const bool failing = failNextReplace_;
    failNextReplace_ = false;
    const std::string key = Normalized(path);
    // A bare name lives in the working folder, which always exists.
    const std::string folder = ParentOf(key);
    const bool folderExists = folder.empty() || KindOf(folder) == PathKind::Directory;
    const bool folderWritable = readOnly_.count(folder) == 0;
    if (failing || !folderExists || !folderWritable || KindOf(key) == PathKind::Directory ||
        IsReadOnly(key))
        return false;
    files_[key] = bytes;
    return true;
}

bool MemoryFileSystem::RemoveFile(const std::string& path) {
    const std::string key = Normalized(path);
    if (readOnly_.count(ParentOf(key)) != 0 && files_.count(key) != 0)
        return false;
    files_.erase(key);
    return true;
}

bool MemoryFileSystem::MakeFolder(const std::string& path) {
    if (KindOf(path) == PathKind::File)
        return false;
    AddDirectory(path);
    return true;
}

} // namespace lw
