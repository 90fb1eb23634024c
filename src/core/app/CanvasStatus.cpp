#include "app/CanvasStatus.h"

#include "app/Weaver.h"

#include <cmath>

namespace lw {

namespace {

const char* GestureHint(int state) {
    switch (state) {
    case StateRubberBand:
        return "Release to select what the band holds";
    case StateDrag:
        return "Release to drop, Esc puts everything back";
    case StatePlacePhase:
        return "Click to place the phase, Esc cancels";
    case StatePlaceCase:
        return "Click to place the case, Esc cancels";
    case StatePlaceSwitch:
        return "Click to place the switch, Esc cancels";
    case StatePlaceTemplate:
        return "Click to place the template, Esc cancels";
    case StatePrimaryLink:
        return "Click the phase the primary link leads to, Esc cancels";
    case StateSecondaryLink:
        return "Click the phase the secondary link leads to, Esc cancels";
    default:
        return "";
    }
}

} // namespace

CanvasStatus DescribeCanvas(const Weaver& weaver) {
    const ViewTransform view = weaver.CurrentView();
    CanvasStatus status;
    status.zoom = std::to_string(std::lround(view.scale * 100.0)) + "%";
    status.pointer = std::to_string(view.WorldX(weaver.pointerX)) + ", " +
                     std::to_string(view.WorldY(weaver.pointerY));
    const std::size_t selected = weaver.selection.members.size();
    if (selected != 0)
        status.selection = std::to_string(selected) + " selected";
    status.hint = GestureHint(weaver.interactionState);
    return status;
}

} // namespace lw
