#pragma once

#include <string>

namespace lw {

class Weaver;

// What the status bar tells about the canvas: the zoom in percent, the
// pointer's world point, how many objects are selected, and what the gesture
// under way waits for.
struct CanvasStatus {
    std::string zoom;
    std::string pointer;
    std::string selection;
    std::string hint;
};

CanvasStatus DescribeCanvas(const Weaver& weaver);

} // namespace lw
