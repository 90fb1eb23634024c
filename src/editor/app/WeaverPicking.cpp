#include "app/Weaver.h"
#include "undo/UR_DeleteLinksCmd.h"
#include "undo/UR_EditPhaseCmd.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace lw {

namespace {

// Lines are picked within six pixels of the pointer at any zoom, so that a
// thin line is not a game of skill.
constexpr float kPickTolerance = 6.0f;
// The distance to a geometry line that a phase does not have.
constexpr float kNoLine = 50000.0f;

// The distance from `p` to the segment from `a` to `b`, in 32-bit floats.
float DistanceToSegment(ScreenPoint p, ScreenPoint a, ScreenPoint b) {
    const float px = static_cast<float>(p.x), py = static_cast<float>(p.y);
    const float ux = px - static_cast<float>(a.x), uy = py - static_cast<float>(a.y);
    const float vx = px - static_cast<float>(b.x), vy = py - static_cast<float>(b.y);
    const float wx = static_cast<float>(b.x) - static_cast<float>(a.x);
    const float wy = static_cast<float>(b.y) - static_cast<float>(a.y);
    const float along = (ux * wx + uy * wy) * (wx * vx + wy * vy);
    // The foot of the perpendicular lies between the ends.
    if (along <= -0.0001) {
        const float cross = ux * wy - uy * wx;
        return std::sqrt(cross * cross / (wx * wx + wy * wy));
    }
    return std::min(std::sqrt(ux * ux + uy * uy), std::sqrt(vx * vx + vy * vy));
}

} // namespace

const Link* Weaver::LinkNear(int x, int y) const {
    if (!options.DrawInputOutputs)
        return nullptr;
    const ViewTransform view = CurrentView();
    const ScreenPoint pointer{x, y};
    const Link* nearest = nullptr;
    float best = kPickTolerance;
    for (const Link& link : links) {
        const float d =
            DistanceToSegment(pointer, LinkEnd(link, false, view), LinkEnd(link, true, view));
        if (d < best) {
            nearest = &link;
            best = d;
        }
    }
    return nearest;
}

// The link under a resting pointer is shown, so that the user sees what a
// click would pick.
void Weaver::HoverAt(int x, int y) {
    const Link* near = IsIdle() ? LinkNear(x, y) : nullptr;
    const Link hovered = near != nullptr ? *near : Link{};
    if (hovered == hoveredLink)
        return;
    hoveredLink = hovered;
    Repaint();
}

// A link between gates wins over a geometry line; among each, the nearest,
// and of two as near, the first.
void Weaver::PickLinkAt(int x, int y) {
    if (const Link* link = LinkNear(x, y)) {
        selectedLink = *link;
        return;
    }
    if (!options.DrawGeometry)
        return;
    const ViewTransform view = CurrentView();
    const ScreenPoint pointer{x, y};
    const auto lineDistance = [&](const Phase& phase, std::int32_t targetId) {
        const Phase* target = FindPhase(targetId);
        return target != nullptr ? DistanceToSegment(pointer, phase.ConnectionPoint(view),
                                                     target->ScreenAnchor(view))
                                 : kNoLine;
    };
    float best = kPickTolerance;
    ForEach<Phase>([&](const Phase& phase) {
        const float primary = lineDistance(phase, phase.primaryLinkId);
        if (primary < best) {
            best = primary;
            pickedGeometryPhase = static_cast<std::uint32_t>(phase.id);
            pickedIsPrimary = true;
        }
        const float secondary = lineDistance(phase, phase.secondaryLinkId);
        if (secondary < best) {
            best = secondary;
            pickedGeometryPhase = static_cast<std::uint32_t>(phase.id);
            pickedIsPrimary = false;
        }
    });
}

void Weaver::DeleteKey() {
    if (!IsIdle())
        return;
    if (selectedLink.fromPhaseId != 0) {
        undoManager.Push(
            std::make_unique<UR_DeleteLinksCmd>(this, std::vector<Link>{selectedLink}));
        RemoveLink(selectedLink);
        selectedLink = Link{};
        RefreshGateMarks();
        Repaint();
        return;
    }
    if (Phase* phase = FindPhase(static_cast<std::int32_t>(pickedGeometryPhase))) {
        auto command = std::make_unique<UR_EditPhaseCmd>(this, *phase);
        (pickedIsPrimary ? phase->primaryLinkId : phase->secondaryLinkId) = 0;
        command->Complete(*phase);
        undoManager.Push(std::move(command));
        pickedGeometryPhase = 0;
        pickedIsPrimary = true;
        Repaint();
        return;
    }
    DeleteSelection();
}

} // namespace lw
