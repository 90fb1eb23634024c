#include "app/Weaver.h"
#include "canvas/ScenePainter.h"

namespace lw {

void Weaver::PaintScene(DrawingSurface& dc, int viewX, int viewY, float scale) const {
    ScenePainter(*this, options, gestureView_, gesture_.State(), dc,
                 ViewTransform{viewX, viewY, scale})
        .PaintScene();
}

} // namespace lw
