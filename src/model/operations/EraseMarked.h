#pragma once

#include <utility>
#include <vector>

namespace lw {

// Erases the elements whose mark is set, keeping the order of the rest, in
// one pass however many there are. There is one mark for each element.
template <typename T> void EraseMarked(std::vector<T>& items, const std::vector<bool>& marked) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (marked[i])
            continue;
        if (kept != i)
            items[kept] = std::move(items[i]);
        ++kept;
    }
    items.resize(kept);
}

} // namespace lw
