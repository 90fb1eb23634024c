#pragma once

#include "canvas/CanvasFont.h"
#include "canvas/DrawingSurface.h"
#include "objects/ViewTransform.h"

namespace lw {

class Weaver;

// One paint of the whole canvas on a fresh surface of width by height pixels:
// the font, a white ground inside a one-pixel black frame drawn with the
// surface's own pen and brush, then the scene. Nothing is clipped or culled.
void PaintCanvas(DrawingSurface& dc, const Weaver& weaver, int width, int height,
                 const ViewTransform& view, const CanvasFont& font);

} // namespace lw
