#include "canvas/RecordingSurface.h"

namespace lw {

namespace {

// The flags by name, in a fixed order; left and top alignment have none.
std::string RecordedFlags(unsigned flags) {
    static const std::pair<unsigned, const char*> kNames[] = {
        {TextCentre, "centre"},          {TextRight, "right"},           {TextBottom, "bottom"},
        {TextVerticalCentre, "vcentre"}, {TextSingleLine, "singleline"}, {TextNoClip, "noclip"}};
    std::string text;
    for (const auto& [flag, name] : kNames) {
        if ((flags & flag) != 0)
            text += std::string(" ") + name;
    }
    return text;
}

std::string RecordedRect(const ScreenRect& rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
           std::to_string(rect.right) + "," + std::to_string(rect.bottom);
}

std::string RecordedPoint(ScreenPoint point) {
    return std::to_string(point.x) + "," + std::to_string(point.y);
}

std::string RecordedColour(Rgb colour) {
    return std::to_string(colour.red) + "," + std::to_string(colour.green) + "," +
           std::to_string(colour.blue);
}

std::string RecordedPen(const Pen& pen) {
    return std::string("pen ") + (pen.style == PenStyle::Dash ? "dash " : "solid ") +
           std::to_string(pen.width) + " " + RecordedColour(pen.colour);
}

} // namespace

void RecordingSurface::SelectPen(const Pen& pen) {
    calls.push_back(RecordedPen(pen));
}

void RecordingSurface::SelectBrush(const Brush& brush) {
    calls.push_back("brush " + RecordedColour(brush.colour));
}

void RecordingSurface::SelectFont(const CanvasFont& font) {
    calls.push_back("font " + font.family + " " + std::to_string(font.height) + " " +
                    std::to_string(font.weight));
}

Rgb RecordingSurface::SetTextColour(Rgb colour) {
    calls.push_back("textcolour " + RecordedColour(colour));
    const Rgb previous = textColour_;
    textColour_ = colour;
    return previous;
}

void RecordingSurface::Rectangle(const ScreenRect& rect) {
    calls.push_back("rectangle " + RecordedRect(rect));
}

void RecordingSurface::Ellipse(const ScreenRect& rect) {
    calls.push_back("ellipse " + RecordedRect(rect));
}

void RecordingSurface::RoundRect(const ScreenRect& rect, int cornerWidth, int cornerHeight) {
    calls.push_back("roundrect " + RecordedRect(rect) + " " + std::to_string(cornerWidth) + "," +
                    std::to_string(cornerHeight));
}

void RecordingSurface::Line(ScreenPoint from, ScreenPoint to) {
    calls.push_back("line " + RecordedPoint(from) + " " + RecordedPoint(to));
}

void RecordingSurface::DrawText(const std::string& text, const ScreenRect& rect, unsigned flags) {
    calls.push_back("text \"" + text + "\" " + RecordedRect(rect) + RecordedFlags(flags));
}

void RecordingSurface::DrawBumpEdge(const ScreenRect& rect) {
    calls.push_back("bumpedge " + RecordedRect(rect));
}

} // namespace lw
