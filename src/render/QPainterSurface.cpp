#include "QPainterSurface.h"

#include "QtSurfaceValues.h"
#include "canvas/CanvasPalette.h"

namespace lw {

namespace {

// The colours of the bump edge: light above and to the left of the outer
// border, dark below and to the right, and the other way round inside.
constexpr Rgb kEdgeLight{227, 227, 227};
constexpr Rgb kEdgeDarkShadow{105, 105, 105};
constexpr Rgb kEdgeShadow{160, 160, 160};
constexpr Rgb kEdgeHighlight{255, 255, 255};

} // namespace

QPainterSurface::QPainterSurface(QPainter& painter)
    : painter_(painter), pen_(ToQPen(kThinBlackPen)) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setBackgroundMode(Qt::TransparentMode);
    painter_.setPen(pen_);
    painter_.setBrush(ToQColor(kWhiteBrush.colour));
}

void QPainterSurface::SelectPen(const Pen& pen) {
    pen_ = ToQPen(pen);
    painter_.setPen(pen_);
}

void QPainterSurface::SelectBrush(const Brush& brush) {
    painter_.setBrush(ToQColor(brush.colour));
}

void QPainterSurface::SelectFont(const CanvasFont& font) {
    painter_.setFont(ToQFont(font));
}

Rgb QPainterSurface::SetTextColour(Rgb colour) {
    const Rgb previous = textColour_;
    textColour_ = colour;
    return previous;
}

void QPainterSurface::Rectangle(const ScreenRect& rect) {
    if (!rect.IsEmpty())
        painter_.drawRect(ToOutlineRect(rect));
}

void QPainterSurface::Ellipse(const ScreenRect& rect) {
    if (!rect.IsEmpty())
        painter_.drawEllipse(ToOutlineRect(rect));
}

void QPainterSurface::RoundRect(const ScreenRect& rect, int cornerWidth, int cornerHeight) {
    if (!rect.IsEmpty())
        painter_.drawRoundedRect(ToOutlineRect(rect), cornerWidth / 2.0, cornerHeight / 2.0);
}

void QPainterSurface::Line(ScreenPoint from, ScreenPoint to) {
    painter_.drawLine(from.x, from.y, to.x, to.y);
}

void QPainterSurface::DrawText(const std::string& text, const ScreenRect& rect, unsigned flags) {
    painter_.setPen(ToQColor(textColour_));
    painter_.drawText(ToTextBox(rect), ToQtTextFlags(flags), ToText(text));
    painter_.setPen(pen_);
}

void QPainterSurface::DrawBumpEdge(const ScreenRect& rect) {
    if (rect.IsEmpty())
        return;
    // Each border is one pixel wide: first its upper and left sides, then its
    // lower and right ones, which own the corners they share.
    const auto border = [this](int left, int top, int right, int bottom, Rgb upperLeft,
                               Rgb lowerRight) {
        painter_.setPen(ToQColor(upperLeft));
        painter_.drawLine(left, top, right, top);
        painter_.drawLine(left, top, left, bottom);
        painter_.setPen(ToQColor(lowerRight));
        painter_.drawLine(left, bottom, right, bottom);
        painter_.drawLine(right, top, right, bottom);
    };
    border(rect.left, rect.top, rect.right - 1, rect.bottom - 1, kEdgeLight, kEdgeDarkShadow);
    border(rect.left + 1, rect.top + 1, rect.right - 2, rect.bottom - 2, kEdgeShadow,
           kEdgeHighlight);
    painter_.setPen(pen_);
}

} // namespace lw
