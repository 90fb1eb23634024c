#include "objects/ScreenRect.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lw {

ScreenRect UnionRect(const ScreenRect& a, const ScreenRect& b) {
    if (a.IsEmpty() && b.IsEmpty())
        return ScreenRect{};
    if (a.IsEmpty())
        return b;
    if (b.IsEmpty())
        return a;
    return ScreenRect{std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                      std::max(a.bottom, b.bottom)};
}

std::int32_t ClampedSum(std::int64_t position, std::int64_t offset) {
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(position + offset, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()));
}

std::int32_t TruncateToInt(double value) {
    if (std::isnan(value))
        return 0;
    constexpr double low = std::numeric_limits<std::int32_t>::min();
    constexpr double high = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::trunc(value), low, high));
}

} // namespace lw
