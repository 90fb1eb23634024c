#include "QPainterSurface.h"

#include "QtSurfaceValues.h"
#include "canvas/CanvasPalette.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <algorithm>

namespace lw {

namespace {

// The colours of the bump edge: light above and to the left of the outer
// border, dark below and to the right, and the other way round inside.
constexpr Rgb kEdgeLight{227, 227, 227};
constexpr Rgb kEdgeDarkShadow{105, 105, 105};
constexpr Rgb kEdgeShadow{160, 160, 160};
constexpr Rgb kEdgeHighlight{255, 255, 255};

// Room around a shape for its pen and the painter's rounding.
constexpr qreal kShapeMargin = 2;

QRectF DeviceArea(const QPainter& painter) {
    const QPaintDevice* device = painter.device();
    if (device == nullptr)
        return {};
    const QRectF pixels(0, 0, device->width(), device->height());
    return painter.deviceTransform().inverted().mapRect(pixels);
}

} // namespace

QPainterSurface::QPainterSurface(QPainter& painter, Unseen unseen)
    : painter_(painter), unseen_(unseen), selectedPen_(kThinBlackPen), pen_(ToQPen(kThinBlackPen)) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setBackgroundMode(Qt::TransparentMode);
    painter_.setPen(pen_);
    painter_.setBrush(ToQColor(kWhiteBrush.colour));
    visible_ = DeviceArea(painter_);
}

// A surface dropped with lines still waiting draws them while it can.
QPainterSurface::~QPainterSurface() {
    if (painter_.isActive())
        FlushLines();
}

void QPainterSurface::Finish() {
    FlushLines();
}

void QPainterSurface::FlushLines() {
    if (lines_.empty())
        return;
    painter_.drawLines(lines_.data(), static_cast<int>(lines_.size()));
    lines_.clear();
}

// Finding a font's widest glyph is costly, and a view zoomed far out draws
// no text at all: the font is measured when the first text needs it.
void QPainterSurface::MeasureFont() {
    if (fontMeasured_)
        return;
    const QFontMetricsF metrics(painter_.font());
    maxGlyphWidth_ = metrics.maxWidth();
    lineHeight_ = metrics.lineSpacing();
    fontMeasured_ = true;
}

bool QPainterSurface::MayShow(const QRectF& bounds) const {
    if (unseen_ == Unseen::Draw)
        return true;
    const qreal margin = std::max<qreal>(pen_.widthF(), 1) + kShapeMargin;
    return bounds.adjusted(-margin, -margin, margin, margin).intersects(visible_);
}

// A text kept to its box shows only there; one that may leave it stays
// within as many widest glyphs as it has characters to either side and as
// many lines as it has above and below.
bool QPainterSurface::MayShowText(const std::string& text, const ScreenRect& rect, unsigned flags) {
    if (unseen_ == Unseen::Draw)
        return true;
    MeasureFont();
    QRectF bounds = ToTextBox(rect);
    if ((flags & TextNoClip) != 0) {
        const qreal lines = 1 + static_cast<qreal>(std::count(text.begin(), text.end(), '\n'));
        const qreal dx = maxGlyphWidth_ * static_cast<qreal>(text.size());
        const qreal dy = lineHeight_ * lines;
        bounds = bounds.normalized().adjusted(-dx, -dy, dx, dy);
    }
    return bounds.intersects(visible_);
}

void QPainterSurface::SelectPen(const Pen& pen) {
    if (pen == selectedPen_)
        return;
    FlushLines();
    selectedPen_ = pen;
    pen_ = ToQPen(pen);
    painter_.setPen(pen_);
}

void QPainterSurface::SelectBrush(const Brush& brush) {
    if (brushSelected_ && brush.colour == selectedBrush_.colour)
        return;
    selectedBrush_ = brush;
    brushSelected_ = true;
    painter_.setBrush(ToQColor(brush.colour));
}

void QPainterSurface::SelectFont(const CanvasFont& font) {
    FlushLines();
    painter_.setFont(ToQFont(font));
    fontMeasured_ = false;
}

Rgb QPainterSurface::SetTextColour(Rgb colour) {
    const Rgb previous = textColour_;
    textColour_ = colour;
    return previous;
}

void QPainterSurface::Rectangle(const ScreenRect& rect) {
    if (rect.IsEmpty() || !MayShow(ToTextBox(rect)))
        return;
    FlushLines();
    painter_.drawRect(ToOutlineRect(rect));
}

void QPainterSurface::Ellipse(const ScreenRect& rect) {
    if (rect.IsEmpty() || !MayShow(ToTextBox(rect)))
        return;
    FlushLines();
    painter_.drawEllipse(ToOutlineRect(rect));
}

void QPainterSurface::RoundRect(const ScreenRect& rect, int cornerWidth, int cornerHeight) {
    if (rect.IsEmpty() || !MayShow(ToTextBox(rect)))
        return;
    FlushLines();
    painter_.drawRoundedRect(ToOutlineRect(rect), cornerWidth / 2.0, cornerHeight / 2.0);
}

void QPainterSurface::Line(ScreenPoint from, ScreenPoint to) {
    if (!MayShow(QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)).normalized()))
        return;
    if (selectedPen_.style == PenStyle::Solid)
        lines_.emplace_back(from.x, from.y, to.x, to.y);
    else
        painter_.drawLine(from.x, from.y, to.x, to.y);
}

void QPainterSurface::DrawText(const std::string& text, const ScreenRect& rect, unsigned flags) {
    if (!MayShowText(text, rect, flags))
        return;
    FlushLines();
    painter_.setPen(ToQColor(textColour_));
    painter_.drawText(ToTextBox(rect), ToQtTextFlags(flags), ToText(text));
    painter_.setPen(pen_);
}

void QPainterSurface::DrawBumpEdge(const ScreenRect& rect) {
    if (rect.IsEmpty() || !MayShow(ToTextBox(rect)))
        return;
    FlushLines();
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
