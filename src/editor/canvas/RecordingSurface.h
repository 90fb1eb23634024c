#pragma once

#include "canvas/DrawingSurface.h"

#include <string>
#include <vector>

namespace lw {

// A surface that draws nothing and keeps every call as one line of text,
// such as "pen solid 2 255,0,0" or "line 10,20 30,40", so that a scene can be
// compared call by call and a difference reads plainly.
class RecordingSurface : public DrawingSurface {
public:
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

    std::vector<std::string> calls;

private:
    Rgb textColour_;
};

} // namespace lw
