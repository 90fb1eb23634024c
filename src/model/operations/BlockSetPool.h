#pragma once

#include "document/TemplateDesc.h"
#include "operations/EraseMarked.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace lw {

// The block sets of a description as the phases use them up: a set belongs
// to the first phase that names it, and a later phase of the same name finds
// the next set of that name, if any. When the pool ends, the used sets are
// erased from the list.
class BlockSetPool {
public:
    explicit BlockSetPool(std::vector<BlockSetDesc>& sets) : sets_(sets), used_(sets.size()) {
        for (std::size_t i = 0; i < sets.size(); ++i)
            byName_[sets[i].name].records.push_back(i);
    }

    ~BlockSetPool() { EraseMarked(sets_, used_); }

    BlockSetPool(const BlockSetPool&) = delete;
    BlockSetPool& operator=(const BlockSetPool&) = delete;

    // Uses up the first set of that name still there, or gives null.
    const BlockSetDesc* Take(const std::string& name) {
        const auto found = byName_.find(name);
        if (found == byName_.end() || found->second.next == found->second.records.size())
            return nullptr;
        const std::size_t index = found->second.records[found->second.next++];
        used_[index] = true;
        return &sets_[index];
    }

private:
    struct Queue {
        std::vector<std::size_t> records;
        std::size_t next = 0;
    };

    std::vector<BlockSetDesc>& sets_;
    std::vector<bool> used_;
    std::unordered_map<std::string, Queue> byName_;
};

} // namespace lw
