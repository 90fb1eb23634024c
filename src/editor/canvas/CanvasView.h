#pragma once

#include "canvas/CanvasFont.h"
#include "objects/ViewTransform.h"

namespace lw {

// The canvas's view of the world: its offset and zoom, which panning and the
// wheel change, the text font, which the first zoom replaces, and the size of
// the canvas in pixels, which fitting a view needs.
struct CanvasView : ViewTransform {
    CanvasFont font = CanvasFontAt(1.0f, false);
    int pixelWidth = 1024;
    int pixelHeight = 768;
};

} // namespace lw
