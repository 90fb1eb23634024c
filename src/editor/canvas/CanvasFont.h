#pragma once

#include <string>

namespace lw {

// The one text font of the canvas, by family, height in pixels and weight.
struct CanvasFont {
    std::string family = "Arial";
    int height = 12;
    int weight = 400;
};

inline bool operator==(const CanvasFont& a, const CanvasFont& b) {
    return a.family == b.family && a.height == b.height && a.weight == b.weight;
}

// The canvas opens with a 12-pixel font. The first zoom replaces it by one
// that follows the scale, 14 pixels at scale 1 and never less than 1, so
// that labels shrink to dots rather than vanish.
CanvasFont CanvasFontAt(float scale, bool zoomed);

} // namespace lw
