#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace lw {

// Three names that find a record together, such as an action's phase,
// object and property, as the key of a hashed index: large templates hold
// tens of thousands of them, and comparing triples in a tree costs more.
// The names are viewed, not copied: an index keyed by them must not outlive
// the texts, nor see them change.
struct NameTriple {
    std::string_view first;
    std::string_view second;
    std::string_view third;
};

inline bool operator==(const NameTriple& a, const NameTriple& b) {
    return a.first == b.first && a.second == b.second && a.third == b.third;
}

struct NameTripleHash {
    std::size_t operator()(const NameTriple& key) const {
        const std::hash<std::string_view> hash;
        std::size_t seed = hash(key.first);
        for (const std::string_view* part : {&key.second, &key.third})
            seed ^= hash(*part) + 0x9e3779b97f4a7c15ull + (seed << 6) + (seed >> 2);
        return seed;
    }
};

} // namespace lw
