#include "canvas/CanvasPaint.h"

#include "app/Weaver.h"

namespace lw {

void PaintCanvas(DrawingSurface& dc, const Weaver& weaver, int width, int height,
                 const ViewTransform& view, const CanvasFont& font) {
    dc.SelectFont(font);
    dc.Rectangle(ScreenRect{0, 0, width, height});
    weaver.PaintScene(dc, view.viewX, view.viewY, view.scale);
}

} // namespace lw
