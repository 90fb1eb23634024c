#include "objects/EditorObject.h"

namespace lw {

namespace {

// A scaled canvas coordinate: the integer sum is made a 32-bit float first.
std::int32_t Scaled(std::int64_t sum, float scale) {
    return TruncateToInt(static_cast<float>(sum) * scale);
}

} // namespace

ScreenRect EditorObject::GetScreenRect(int, int, float) const {
    return ScreenRect{};
}

ScreenRect EditorObject::CentredScreenRect(int viewX, int viewY, float scale, int hx,
                                           int hy) const {
    const std::int64_t x = std::int64_t{viewX} + posX;
    const std::int64_t y = std::int64_t{viewY} + posY;
    return ScreenRect{Scaled(x - hx, scale), Scaled(y - hy, scale), Scaled(x + hx, scale),
                      Scaled(y + hy, scale)};
}

} // namespace lw
