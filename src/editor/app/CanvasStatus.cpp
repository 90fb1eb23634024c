#include "app/CanvasStatus.h"

#include "app/Weaver.h"

#include <cmath>

namespace lw {

namespace {

const char* GestureHint(InteractionState state) {
    switch (state) {
    case InteractionState::StateRubberBand:
        return "Release to select what the band holds";
    case InteractionState::StateDrag:
        return "Release to drop, Esc puts everything back";
    case InteractionState::StatePlacePhase:
        return "Click to place the phase, Esc cancels";
    case InteractionState::StatePlaceCase:
        return "Click to place the case, Esc cancels";
    case InteractionState::StatePlaceSwitch:
        return "Click to place the switch, Esc cancels";
    case InteractionState::StatePlaceTemplate:
        return "Click to place the template, Esc cancels";
    case InteractionState::StatePrimaryLink:
        return "Click the phase the primary link leads to, Esc cancels";
    case InteractionState::StateSecondaryLink:
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
    status.hint = GestureHint(weaver.interactionState());
    return status;
}

} // namespace lw
