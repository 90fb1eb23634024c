#pragma once

#include <cstdint>

namespace lw {

// A rectangle in window pixels; right and bottom lie outside it.
struct ScreenRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool IsEmpty() const { return left >= right || top >= bottom; }
};

// A canvas point in window pixels.
struct ScreenPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

inline bool operator==(const ScreenRect& a, const ScreenRect& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

// The smallest rectangle holding both, where an empty rectangle adds nothing
// and two empty ones give the empty rectangle at the origin.
ScreenRect UnionRect(const ScreenRect& a, const ScreenRect& b);

// Truncation toward zero of a canvas coordinate, held to the 32-bit range so
// that a far-off position cannot overflow.
std::int32_t TruncateToInt(double value);

// A position plus an offset, held to the 32-bit range: a file may place an
// object at its very edge, and nothing built from it may wrap round.
std::int32_t ClampedSum(std::int64_t position, std::int64_t offset);

} // namespace lw
