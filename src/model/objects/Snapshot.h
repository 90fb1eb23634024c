#pragma once

#include <memory>

namespace lw {

// A value copy of an object for the undo history: every field, the id and
// the position included. Rebuild makes the object anew under its old id; it
// does not enter it in the store, whoever rebuilds it does that.
template <typename T> struct Snapshot {
    explicit Snapshot(const T& object) : object(object) {}
    std::unique_ptr<T> Rebuild() const { return std::make_unique<T>(object); }

    T object;
};

} // namespace lw
