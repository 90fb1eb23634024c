#pragma once

#include "objects/ScreenRect.h"

#include <cstdint>

namespace lw {

// What a canvas tells about its view: the offset in world units and the zoom.
// Both directions work one axis at a time in 32-bit floats and truncate
// toward zero, so a round trip can be off by one unit.
struct ViewTransform {
    int viewX = 0;
    int viewY = 0;
    float scale = 1.0f;

    // screen = truncate(float(world + view) * scale); the sum is an integer.
    std::int32_t ScreenX(std::int64_t worldX) const {
        return TruncateToInt(static_cast<float>(worldX + viewX) * scale);
    }
    std::int32_t ScreenY(std::int64_t worldY) const {
        return TruncateToInt(static_cast<float>(worldY + viewY) * scale);
    }
    // world = truncate(float(screen) / scale - float(view)).
    std::int32_t WorldX(std::int32_t screenX) const {
        return TruncateToInt(static_cast<float>(screenX) / scale - static_cast<float>(viewX));
    }
    std::int32_t WorldY(std::int32_t screenY) const {
        return TruncateToInt(static_cast<float>(screenY) / scale - static_cast<float>(viewY));
    }
};

} // namespace lw
