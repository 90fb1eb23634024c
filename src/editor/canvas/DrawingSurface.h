#pragma once

#include "canvas/CanvasFont.h"
#include "objects/Phase.h"
#include "objects/ScreenRect.h"

#include <cstdint>
#include <string>

namespace lw {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

inline bool operator==(const Rgb& a, const Rgb& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

enum class PenStyle { Solid, Dash };

// Outlines and lines; a width in pixels that does not follow the zoom.
struct Pen {
    PenStyle style = PenStyle::Solid;
    int width = 1;
    Rgb colour;
};

inline bool operator==(const Pen& a, const Pen& b) {
    return a.style == b.style && a.width == b.width && a.colour == b.colour;
}

// The inside of rectangles, ellipses and round rectangles: always solid.
struct Brush {
    Rgb colour;
};

// How DrawText places a text in its rectangle. Left and top unless told
// otherwise; vertical centring and bottom alignment need SingleLine.
enum TextFlags : unsigned {
    TextLeft = 0,
    TextCentre = 1u << 0,
    TextRight = 1u << 1,
    TextBottom = 1u << 2,
    TextVerticalCentre = 1u << 3,
    TextSingleLine = 1u << 4,
    TextNoClip = 1u << 5,
};

// What the scene draws on. Rectangles take the pixel convention of the
// canvas: right and bottom lie outside the shape. A new surface holds a thin
// black pen, a white brush, black text on a transparent background and no
// font; what is selected stays until the next selection.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    virtual void SelectPen(const Pen& pen) = 0;
    virtual void SelectBrush(const Brush& brush) = 0;
    virtual void SelectFont(const CanvasFont& font) = 0;
    // Returns the colour it replaces, so that a caller can put it back.
    virtual Rgb SetTextColour(Rgb colour) = 0;

    // Shapes are outlined with the pen and filled with the brush.
    virtual void Rectangle(const ScreenRect& rect) = 0;
    virtual void Ellipse(const ScreenRect& rect) = 0;
    // Corners are quarters of an ellipse of this width and height.
    virtual void RoundRect(const ScreenRect& rect, int cornerWidth, int cornerHeight) = 0;
    virtual void Line(ScreenPoint from, ScreenPoint to) = 0;
    virtual void DrawText(const std::string& text, const ScreenRect& rect, unsigned flags) = 0;
    // A raised ridge on all four sides: a raised outer and a sunken inner border.
    virtual void DrawBumpEdge(const ScreenRect& rect) = 0;
    // Everything drawn so far must be on the device: a surface that gathers
    // calls to draw them together draws what it holds.
    virtual void Finish() {}
};

} // namespace lw
