#include "catalog/BlocksContainer.h"

#include "catalog/GroupReader.h"
#include "text/Text.h"

namespace lw {

namespace {

// Matches * and ? wildcards; both texts come in lower case.
bool MatchesWildcards(const char* pattern, const char* name) {
    for (; *pattern != '\0'; ++pattern, ++name) {
        if (*pattern == '*') {
            for (const char* rest = name;; ++rest) {
                if (MatchesWildcards(pattern + 1, rest))
                    return true;
                if (*rest == '\0')
                    return false;
            }
        }
        if (*name == '\0')
            return false;
        if (*pattern != '?' && *pattern != *name)
            return false;
    }
    return *name == '\0';
}

// File name patterns match without regard to case, as the file search of the
// system the data comes from does.
bool MatchesPattern(const std::string& pattern, const std::string& name) {
    return MatchesWildcards(LowerCase(pattern).c_str(), LowerCase(name).c_str());
}

// A path with "/" separators, in lower case, as FirstBlockInFolder compares.
std::string ComparablePath(const std::string& path) {
    return LowerCase(ToForwardSlashes(path));
}

std::string FolderOfKey(const std::string& key) {
    std::string path = ComparablePath(key);
    const std::size_t slash = path.rfind('/');
    if (slash != std::string::npos)
        path.erase(slash);
    return path;
}

std::string JoinNative(const std::string& folder, const std::string& name) {
    return !folder.empty() && folder.back() == '/' ? folder + name : folder + "/" + name;
}

} // namespace

void BlocksContainer::Load(const std::vector<std::string>& folders) {
    blocks.clear();
    for (const std::string& folder : folders)
        LoadFolder(folder);
}

void BlocksContainer::LoadFolder(const std::string& folder) {
    for (const FoundFile& file : FindFiles(folder, "*.Group")) {
        BlockInfo info;
        if (ReadBlockFrom(info, files_.OpenNativeForReading(file.path), file.reference, false)) {
            info.folder = folder;
            blocks[file.reference] = info;
        }
    }
}

bool BlocksContainer::ReadBlockFile(BlockInfo& info, const std::string& path, bool silent) {
    return ReadBlockFrom(info, files_.OpenForReading(path), path, silent);
}

bool BlocksContainer::ReadBlockFrom(BlockInfo& info, std::unique_ptr<std::istream> stream,
                                    const std::string& shownPath, bool silent) {
    if (!stream) {
        if (!silent)
            prompts_.ShowMessage("Error reading \"" + shownPath + "\" file!", MessageIcon::Stop);
        return false;
    }
    ReadGroupStream(info, *stream);
    return true;
}

BlockInfo BlocksContainer::GetBlock(const std::string& reference) const {
    const auto found = blocks.find(reference);
    return found == blocks.end() ? BlockInfo() : found->second;
}

bool BlocksContainer::Contains(const std::string& reference) const {
    return blocks.count(reference) != 0;
}

void BlocksContainer::Put(const std::string& reference, const BlockInfo& info) {
    blocks[reference] = info;
}

std::string BlocksContainer::FirstBlockInFolder(const std::string& folder) const {
    std::string wanted = ComparablePath(folder);
    while (!wanted.empty() && wanted.back() == '/')
        wanted.pop_back();
    for (const auto& block : blocks) {
        if (FolderOfKey(block.first) == wanted)
            return block.first;
    }
    return std::string();
}

void BlocksContainer::EnumerateFiles(std::vector<std::string>& list, const std::string& folder,
                                     const std::string& pattern) const {
    for (const FoundFile& file : FindFiles(folder, pattern))
        list.push_back(file.reference);
}

std::vector<BlocksContainer::FoundFile>
BlocksContainer::FindFiles(const std::string& folder, const std::string& pattern) const {
    std::vector<FoundFile> found;
    std::set<std::string> visited;
    FindFilesIn(found, folder, files_.Resolve(folder), pattern, visited);
    return found;
}

// `folder` is the folder as references name it, `nativeFolder` the same
// folder as the file system spells it.
void BlocksContainer::FindFilesIn(std::vector<FoundFile>& found, const std::string& folder,
                                  const std::string& nativeFolder, const std::string& pattern,
                                  std::set<std::string>& visited) const {
    // A folder reached again through a link would otherwise be walked
    // without end.
    if (!visited.insert(files_.NativeCanonicalPath(nativeFolder)).second)
        return;
    const std::vector<DirectoryEntry> entries = files_.ListNativeDirectory(nativeFolder);
    for (const DirectoryEntry& entry : entries) {
        if (!entry.isDirectory && MatchesPattern(pattern, entry.name))
            found.push_back(
                {LowerCase(folder + "\\" + entry.name), JoinNative(nativeFolder, entry.name)});
    }
    for (const DirectoryEntry& entry : entries) {
        if (entry.isDirectory)
            FindFilesIn(found, folder + "\\" + entry.name, JoinNative(nativeFolder, entry.name),
                        pattern, visited);
    }
}

} // namespace lw
