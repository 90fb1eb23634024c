#pragma once

#include "operations/ObjectStore.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace lw {

// The objects of one class in a search scope by name, in scope order, so that
// a lookup costs no walk and still finds what a walk in order finds first.
// The scope must not gain or lose objects of that class while it is in use.
template <typename T> class NameIndex {
public:
    explicit NameIndex(const ObjectList& scope) {
        for (EditorObject* object : scope) {
            if (T* named = As<T>(object)) {
                auto& [first, second] = byName_[named->name];
                if (first == nullptr)
                    first = named;
                else if (second == nullptr)
                    second = named;
            }
        }
    }

    // The first object of that name in scope order.
    T* First(const std::string& name) const {
        const auto found = byName_.find(name);
        return found == byName_.end() ? nullptr : found->second.first;
    }

    // The second object of that name in scope order.
    T* Second(const std::string& name) const {
        const auto found = byName_.find(name);
        return found == byName_.end() ? nullptr : found->second.second;
    }

private:
    // Keyed by views of the objects' own names, which stay put while the
    // index is in use.
    std::unordered_map<std::string_view, std::pair<T*, T*>> byName_;
};

} // namespace lw
