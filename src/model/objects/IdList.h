#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace lw {

// Lists of object ids are kept as sets that keep their order: an id is
// appended only when missing, and removal takes the first match only.
inline bool ContainsId(const std::vector<std::int32_t>& ids, std::int32_t id) {
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

inline void AppendIdIfAbsent(std::vector<std::int32_t>& ids, std::int32_t id) {
    if (std::find(ids.begin(), ids.end(), id) == ids.end())
        ids.push_back(id);
}

inline void RemoveFirstId(std::vector<std::int32_t>& ids, std::int32_t id) {
    const auto found = std::find(ids.begin(), ids.end(), id);
    if (found != ids.end())
        ids.erase(found);
}

} // namespace lw
