#pragma once

#include "canvas/CanvasFont.h"
#include "objects/ViewTransform.h"

namespace lw {

// The canvas's view of the world: its offset and zoom, which panning and the
// wheel change, and the text font, which the first zoom replaces.
struct CanvasView : ViewTransform {
    CanvasFont font = CanvasFontAt(1.0f, false);
};

} // namespace lw
