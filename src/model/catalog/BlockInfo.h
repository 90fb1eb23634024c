#pragma once

#include <map>
#include <string>
#include <vector>

namespace lw {

// What the editor keeps of one block file: the gates a phase built on it
// offers, and the named objects whose properties an action may set.
class BlockInfo {
public:
    BlockInfo() = default;
    BlockInfo(const BlockInfo&) = default;
    BlockInfo(BlockInfo&&) = default;
    BlockInfo& operator=(const BlockInfo&) = default;
    BlockInfo& operator=(BlockInfo&&) = default;
    virtual ~BlockInfo() = default;

    std::vector<std::string> inputs;
    std::vector<std::string> outputs;
    // Object name to the names of its properties.
    std::map<std::string, std::vector<std::string>> dynamics;
    // The configured block folder the pool found the block in; empty for a
    // block read by itself.
    std::string folder;
};

bool operator==(const BlockInfo& a, const BlockInfo& b);

// Whether `other` can stand in for `info` in a phase: the same numbers of
// objects and gates, and every object and gate name of `info` found in
// `other`. Only that direction is checked, so duplicate names can make the
// answer differ when the two are swapped.
bool IsCompatibleWith(const BlockInfo& info, const BlockInfo& other);

// The display name of a block: the file name of its path without extension.
std::string BlockNameFromPath(const std::string& path);

} // namespace lw
