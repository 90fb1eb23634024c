#pragma once

#include "catalog/BlockInfo.h"
#include "platform/FileAccess.h"
#include "platform/UserPrompts.h"

#include <istream>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace lw {

// The block pool: every .Group file under the configured block folders, keyed
// by its block reference, the file's path relative to the data folder in
// lower case with "\" separators.
class BlocksContainer {
public:
    BlocksContainer(const FileAccess& files, UserPrompts& prompts)
        : files_(files), prompts_(prompts) {}
    virtual ~BlocksContainer() = default;

    // Builds the pool anew from the folders, in order; a later folder's read
    // of the same file replaces the earlier one.
    void Load(const std::vector<std::string>& folders);
    void LoadFolder(const std::string& folder);

    // Reads one .Group file; unless `silent`, a file that cannot be opened is
    // reported to the user.
    bool ReadBlockFile(BlockInfo& info, const std::string& path, bool silent);

    // A copy of the block, or an empty one for an unknown reference.
    BlockInfo GetBlock(const std::string& reference) const;
    bool Contains(const std::string& reference) const;
    void Put(const std::string& reference, const BlockInfo& info);

    // The first reference, in key order, whose file lies directly in
    // `folder`; the comparison ignores case and the kind of separator.
    std::string FirstBlockInFolder(const std::string& folder) const;

    // Appends the lower-cased paths of the files under `folder` whose names
    // match `pattern` (* and ?, case-blind): the folder's own files first,
    // then those of each subfolder in name order.
    void EnumerateFiles(std::vector<std::string>& list, const std::string& folder,
                        const std::string& pattern) const;

    std::map<std::string, BlockInfo> blocks;

private:
    // A file the scan found: its block reference, and its path as the file
    // system spells it, so that reading it needs no second case-blind lookup.
    struct FoundFile {
        std::string reference;
        std::string path;
    };

    std::vector<FoundFile> FindFiles(const std::string& folder, const std::string& pattern) const;
    void FindFilesIn(std::vector<FoundFile>& found, const std::string& folder,
                     const std::string& nativeFolder, const std::string& pattern,
                     std::set<std::string>& visited) const;
    bool ReadBlockFrom(BlockInfo& info, std::unique_ptr<std::istream> stream,
                       const std::string& shownPath, bool silent);

    const FileAccess& files_;
    UserPrompts& prompts_;
};

} // namespace lw
