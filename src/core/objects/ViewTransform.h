#pragma once

namespace lw {

// What a canvas tells about its view: the offset in world units and the zoom.
// Screen = truncate(float(world + view) * scale).
struct ViewTransform {
    int viewX = 0;
    int viewY = 0;
    float scale = 1.0f;
};

} // namespace lw
