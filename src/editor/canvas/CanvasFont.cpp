#include "canvas/CanvasFont.h"

#include "objects/ScreenRect.h"

namespace lw {

CanvasFont CanvasFontAt(float scale, bool zoomed) {
    CanvasFont font;
    if (zoomed)
        font.height = scale < 0.1f ? 1 : TruncateToInt(scale * 14.0f);
    return font;
}

} // namespace lw
