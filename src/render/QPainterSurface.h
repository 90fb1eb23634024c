#pragma once

#include "canvas/DrawingSurface.h"

#include <QPainter>
#include <QPen>
#include <QRectF>
#include <vector>

namespace lw {

// The drawing surface on a QPainter, drawn as the canvas has always been
// drawn: shapes and lines without smoothing, so that they keep their exact
// pixels, and texts on a transparent background in their own colour.
//
// The scene paints every object wherever it lies, so a large template sends
// far more calls than a window shows. A call that cannot reach a single
// pixel of the device is dropped before Qt lays out its text or rasterizes
// its shape: that changes no pixel and makes a repaint cost what it shows.
//
// A fitted view shows all of a large template at once. Its many lines of one
// solid pen are handed to Qt together, which draws the same pixels at a
// fraction of the cost of one call a line.
class QPainterSurface : public DrawingSurface {
public:
    // Whether calls that cannot reach the device are dropped; drawing them
    // all is there to show that dropping them changes nothing.
    enum class Unseen { Drop, Draw };

    // Gives the painter the surface's starting state.
    explicit QPainterSurface(QPainter& painter, Unseen unseen = Unseen::Drop);
    ~QPainterSurface() override;

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
    // Draws the lines still waiting; the painter must still be active.
    void Finish() override;

private:
    // Whether anything drawn within `bounds` (logical coordinates), widened
    // by the pen, may touch the device.
    bool MayShow(const QRectF& bounds) const;
    bool MayShowText(const std::string& text, const ScreenRect& rect, unsigned flags);
    // Takes the widest glyph and the line height of the painter's font.
    void MeasureFont();
    // Draws the lines collected so far, before anything else is drawn over them.
    void FlushLines();

    QPainter& painter_;
    Unseen unseen_;
    // The device's pixels in the painter's logical coordinates.
    QRectF visible_;
    // The widest glyph and the line height of the selected font, which bound
    // where a text that may leave its box can reach.
    qreal maxGlyphWidth_ = 0;
    qreal lineHeight_ = 0;
    bool fontMeasured_ = false;
    // Qt draws texts with the pen, so the text colour is kept beside it.
    Pen selectedPen_;
    Brush selectedBrush_;
    bool brushSelected_ = false;
    QPen pen_;
    Rgb textColour_;
    // Lines of the selected pen not drawn yet; only a solid pen's lines wait,
    // since a dash pattern could run on from one line into the next.
    std::vector<QLine> lines_;
};

} // namespace lw
