#pragma once

#include <cstdint>
#include <string>

namespace lw {

// A connection from an output gate of one phase to an input gate of another,
// by phase id and gate name. An object link (keyword "olink") or a target
// link ("tlink"). Kept by value; the default link, with both ids 0, is empty.
struct Link {
    bool isObjectLink = true;
    std::int32_t fromPhaseId = 0;
    std::string fromGate;
    std::int32_t toPhaseId = 0;
    std::string toGate;
};

inline bool operator==(const Link& a, const Link& b) {
    return a.fromPhaseId == b.fromPhaseId && a.toPhaseId == b.toPhaseId &&
           a.fromGate == b.fromGate && a.toGate == b.toGate && a.isObjectLink == b.isObjectLink;
}

inline bool operator!=(const Link& a, const Link& b) {
    return !(a == b);
}

} // namespace lw
