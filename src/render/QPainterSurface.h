#pragma once

#include "canvas/DrawingSurface.h"

#include <QPainter>
#include <QPen>

namespace lw {

// The drawing surface on a QPainter, drawn as the canvas has always been
// drawn: shapes and lines without smoothing, so that they keep their exact
// pixels, and texts on a transparent background in their own colour.
class QPainterSurface : public DrawingSurface {
public:
    // Gives the painter the surface's starting state.
    explicit QPainterSurface(QPainter& painter);

    void SelectPen(const Pen& pen) override;
    void SelectBrush(const Brush& brush) override;
    void SelectFont(const CanvasFont& font) override;
    Rgb SetTextColour(Rgb colour) override;
    void Rectangle(const ScreenRect& rect) override;
    void Ellipse(const ScreenRect& rect) override;
    void RoundRect(const ScreenRect& rect, int cornerWidth, int cornerHeight) override;
    void Line(ScreenPoint from, ScreenPoint to) override;
    void DrawText(const std::string& text, const ScreenRect& rect, unsigned flags) override;
    void DrawBumpEdge(const ScreenRect& rect) override;

private:
    QPainter& painter_;
    // Qt draws texts with the pen, so the text colour is kept beside it.
    QPen pen_;
    Rgb textColour_;
};

} // namespace lw
