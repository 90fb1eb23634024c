#include "SceneExtent.h"

#include "QtSurfaceValues.h"
#include "app/Weaver.h"
#include "canvas/DrawingSurface.h"

#include <QFontMetrics>
#include <cmath>

namespace lw {

namespace {

// A surface that draws nothing and keeps the union of what it would cover.
class ExtentSurface : public DrawingSurface {
public:
    void SelectPen(const Pen&) override {}
    void SelectBrush(const Brush&) override {}
    void SelectFont(const CanvasFont& font) override { metrics_ = QFontMetrics(ToQFont(font)); }
    Rgb SetTextColour(Rgb colour) override { return colour; }
    void Rectangle(const ScreenRect& rect) override { Cover(rect); }
    void Ellipse(const ScreenRect& rect) override { Cover(rect); }
    void RoundRect(const ScreenRect& rect, int, int) override { Cover(rect); }
    void Line(ScreenPoint, ScreenPoint) override {}
    void DrawText(const std::string& text, const ScreenRect& rect, unsigned flags) override {
        const QRect box =
            metrics_.boundingRect(ToTextBox(rect), ToQtTextFlags(flags), ToText(text));
        Cover(
            ScreenRect{box.left(), box.top(), box.left() + box.width(), box.top() + box.height()});
    }
    void DrawBumpEdge(const ScreenRect& rect) override { Cover(rect); }

    ScreenRect covered;

private:
    void Cover(const ScreenRect& rect) { covered = UnionRect(covered, rect); }

    QFontMetrics metrics_{QFont()};
};

// The view offset that moves a scene edge at `edge` pixels (view 0) to `margin`.
int ViewOffset(std::int32_t edge, float scale, int margin) {
    return TruncateToInt(std::ceil((static_cast<double>(margin) - edge) / scale));
}

} // namespace

ScreenRect SceneExtent(const Weaver& weaver, const ViewTransform& view, const CanvasFont& font,
                       const SceneOverlay& overlay) {
    ExtentSurface surface;
    surface.SelectFont(font);
    weaver.PaintScene(surface, view.viewX, view.viewY, view.scale);
    if (overlay)
        overlay(surface, view);
    return surface.covered;
}

SceneFrame FrameWholeScene(const Weaver& weaver, float scale, const CanvasFont& font, int margin,
                           const SceneOverlay& overlay) {
    SceneFrame frame;
    frame.view.scale = scale;
    frame.width = frame.height = 2 * std::int64_t{margin};
    const ScreenRect atOrigin = SceneExtent(weaver, frame.view, font, overlay);
    if (atOrigin.IsEmpty())
        return frame;
    frame.view.viewX = ViewOffset(atOrigin.left, scale, margin);
    frame.view.viewY = ViewOffset(atOrigin.top, scale, margin);
    // Measured again, as truncation may move the scene by a pixel.
    const ScreenRect moved = SceneExtent(weaver, frame.view, font, overlay);
    frame.width = std::int64_t{moved.right} + margin;
    frame.height = std::int64_t{moved.bottom} + margin;
    return frame;
}

} // namespace lw
