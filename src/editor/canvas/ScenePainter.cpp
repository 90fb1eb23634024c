#include "canvas/ScenePainter.h"

#include "canvas/CanvasPalette.h"
#include "canvas/InteractionState.h"
#include "canvas/OverviewPainter.h"
#include "document/Keywords.h"

#include <algorithm>

namespace lw {

namespace {

// Everything that leads to a phase ends here, deliberately off the centre of
// its box, in world units from its top-left corner.

// Gate stubs reach this far out of the box, in world units.
constexpr int kGateStubLength = 150;

// Insets of the phase's texts and of the gate labels, in pixels at any zoom.
constexpr int kPhaseTextInset = 5;

// Below this scale the canvas font is too small to read, and the scene is a
// map: phase names keep a readable size, gate labels are left out.
constexpr float kMapScale = 0.5f;
// Names are drawn on the map only while a phase's box is this many pixels
// wide: on smaller boxes they would merely cover each other.
constexpr int kMapNameMinBoxWidth = 30;

const CanvasFont kMapNameFont{"Arial", 12, 400};
// The gap between a case's circle and its name.
constexpr int kCaseNameGap = 4;
constexpr int kGateLabelHeight = 20;
constexpr int kGateLabelInset = 2;

ScreenRect Shrunk(ScreenRect rect, int inset) {
    return ScreenRect{ClampedSum(rect.left, inset), ClampedSum(rect.top, inset),
                      ClampedSum(rect.right, -inset), ClampedSum(rect.bottom, -inset)};
}

// The generation keyword with the parameters it shows on the phase: the first
// one for at, azimuth, random and server_waypoint, the first two for fractal
// and line, none for the others.
std::string GeometryText(const Phase& phase) {
    const std::vector<std::string>& p = phase.geoParams;
    std::string shown;
    switch (phase.generationType) {
    case GenerationAt:
    case GenerationAzimuth:
    case GenerationRandom:
    case GenerationServerWaypoint:
        if (!p.empty())
            shown = p[0];
        break;
    case GenerationFractal:
    case GenerationLine:
        if (p.size() >= 2)
            shown = p[0] + "," + p[1];
        break;
    default:
        break;
    }
    return generationTypeToKeyword(static_cast<GenerationType>(phase.generationType)) + "(" +
           shown + ")";
}

} // namespace

bool LacksMandatoryLink(const Phase& phase) {
    return (HasPrimaryLink(phase.generationType) && phase.primaryLinkId == 0) ||
           (HasSecondaryLink(phase.generationType) && phase.secondaryLinkId == 0);
}

std::string GeometryDetailText(const Phase& phase) {
    const std::vector<std::string>& p = phase.geoParams;
    const std::int32_t type = phase.generationType;
    std::string text;
    if (type == GenerationAzimuth && p.size() >= 4)
        text = p[0] + "; " + p[1] + "; " + p[2];
    // A second run, appended with no separator: an azimuth phase with five
    // parameters shows the third one twice.
    const bool spread =
        type == GenerationAzimuth || type == GenerationFractal || type == GenerationLine;
    if (spread && p.size() >= 5)
        text += p[2] + "; " + p[3] + "; " + p[4];
    return text;
}

ScenePainter::ScenePainter(const ObjectStore& store, const EditorOptions& options,
                           const SceneGesture& gesture, InteractionState state, DrawingSurface& dc,
                           const ViewTransform& view)
    : store_(store), options_(options), gesture_(gesture), state_(state), dc_(dc), view_(view) {}

void ScenePainter::PaintScene() const {
    // The band is filled first, under everything, with whatever pen the
    // surface holds, and gets its edge once the objects are drawn.
    if (gesture_.bandActive) {
        dc_.SelectBrush(kBandBrush);
        dc_.Rectangle(gesture_.bandRect);
    }
    if (IsOverview()) {
        OverviewPainter(store_, options_, gesture_, dc_, view_).Paint();
    } else {
        PaintPhases();
        PaintLinks();
        PaintCases();
        PaintSwitches();
        PaintChecks();
        PaintActions();
        PaintUnlinkers();
    }
    if (gesture_.bandActive)
        dc_.DrawBumpEdge(gesture_.bandRect);
    PaintGestureLine();
    dc_.Finish();
}

void ScenePainter::PaintPhases() const {
    store_.ForEach<Phase>([&](const Phase& phase) {
        PaintPhaseBox(phase);
        if (options_.DrawInputOutputs) {
            PaintGates(phase, true);
            PaintGates(phase, false);
        }
        if (options_.DrawGeometry)
            PaintGeometry(phase);
    });
    if (options_.DrawGeometry)
        PaintPickedGeometryLink();
}

bool ScenePainter::IsOverview() const {
    return view_.scale < kOverviewScale;
}

void ScenePainter::PaintPhaseBox(const Phase& phase) const {
    const ScreenRect r = phase.GetScreenRect(view_.viewX, view_.viewY, view_.scale);
    dc_.SelectPen(LacksMandatoryLink(phase) ? kThickRedPen : kThinBlackPen);
    // The selection colour hides the phase's own colour.
    dc_.SelectBrush(store_.selection.Contains(&phase) ? kSelectedBrush
                                                      : PhaseFill(phase.GetColorIndex()));
    dc_.Rectangle(r);
    if (!IsMap()) {
        dc_.DrawText(phase.name, Shrunk(r, kPhaseTextInset), TextCentre | TextNoClip);
    } else if (r.right - r.left >= kMapNameMinBoxWidth) {
        dc_.SelectFont(kMapNameFont);
        dc_.DrawText(phase.name, Shrunk(r, kPhaseTextInset), TextCentre | TextNoClip);
        dc_.SelectFont(CanvasFontAt(view_.scale, true));
    }
}

// Views that small are reached only by zooming, so the canvas font is then
// the one that zoom gives.
bool ScenePainter::IsMap() const {
    return view_.scale < kMapScale;
}

// On a map, every text but the phases' names is too small to read, and is
// left out.
void ScenePainter::Label(const std::string& text, const ScreenRect& rect, unsigned flags) const {
    if (!IsMap())
        dc_.DrawText(text, rect, flags);
}

// A stub with the gate's name above it and an arrowhead at its right end for
// an input, at its left end for an output: both point to the right, the
// output's barbs reaching back into the box.
void ScenePainter::PaintGates(const Phase& phase, bool isInput) const {
    const std::vector<GateSlot>& gates = isInput ? phase.inputs : phase.outputs;
    const std::int64_t step = Phase::kHeight / (static_cast<std::int64_t>(gates.size()) + 1);
    const std::int64_t boxRight = std::int64_t{phase.posX} + Phase::kWidth;
    const std::int32_t x0 =
        view_.ScreenX(isInput ? phase.posX - std::int64_t{kGateStubLength} : boxRight);
    const std::int32_t x1 = view_.ScreenX(isInput ? phase.posX : boxRight + kGateStubLength);
    const std::int32_t tipX = isInput ? x1 : x0;
    const std::int32_t a = TruncateToInt(view_.scale * -15.0f);
    const std::int32_t b = TruncateToInt(view_.scale * -10.0f);
    const std::int32_t c = TruncateToInt(view_.scale * 10.0f);
    const unsigned labelFlags =
        TextBottom | TextSingleLine | TextNoClip | (isInput ? TextLeft : TextRight);
    for (std::size_t i = 0; i < gates.size(); ++i) {
        const std::int32_t y = view_.ScreenY(step * static_cast<std::int64_t>(i + 1) + phase.posY);
        dc_.SelectPen(gates[i].openMark ? kThickRedPen : kThinBlackPen);
        dc_.Line({x0, y}, {x1, y});
        const ScreenRect label =
            Shrunk(ScreenRect{x0, ClampedSum(y, -kGateLabelHeight), x1, y}, kGateLabelInset);
        Label(gates[i].name, label, labelFlags);
        dc_.Line({ClampedSum(tipX, a), ClampedSum(y, b)}, {tipX, y});
        dc_.Line({ClampedSum(tipX, a), ClampedSum(y, c)}, {tipX, y});
    }
}

void ScenePainter::PaintGeometry(const Phase& phase) const {
    const ScreenRect t =
        Shrunk(phase.GetScreenRect(view_.viewX, view_.viewY, view_.scale), kPhaseTextInset);
    if (!IsMap()) {
        const Rgb previousColour = dc_.SetTextColour(kGeometryTextColour);
        dc_.DrawText(GeometryText(phase), t,
                     TextCentre | TextVerticalCentre | TextSingleLine | TextNoClip);
        const std::string detail = GeometryDetailText(phase);
        if (!detail.empty()) {
            dc_.SetTextColour(kGeometryDetailColour);
            dc_.DrawText(detail, t, TextCentre | TextBottom | TextSingleLine | TextNoClip);
        }
        dc_.SetTextColour(previousColour);
    }

    // A server_waypoint phase needs no primary link, yet shows one it has.
    const std::int32_t type = phase.generationType;
    if (type == GenerationServerSetPos || type == GenerationServerTargetPos)
        return;
    if (const Phase* target = store_.FindPhase(phase.primaryLinkId))
        PaintGeometryLink(phase, *target, true);
    if (HasSecondaryLink(type)) {
        if (const Phase* target = store_.FindPhase(phase.secondaryLinkId))
            PaintGeometryLink(phase, *target, false);
    }
}

// The last tenth of the line, next to the target, is drawn thick and stands
// in for an arrowhead.
void ScenePainter::PaintGeometryLink(const Phase& fromPhase, const Phase& toPhase,
                                     bool isPrimary) const {
    const ScreenPoint s = ConnectionPoint(&fromPhase);
    const ScreenPoint t = toPhase.ScreenAnchor(view_);
    dc_.SelectPen(isPrimary ? kThinBluePen : kThinRedPen);
    dc_.Line(s, t);
    dc_.SelectPen(isPrimary ? kThickBluePen : kThickRedPen);
    const ScreenPoint head{ClampedSum(t.x, TruncateToInt((static_cast<double>(s.x) - t.x) * 0.1)),
                           ClampedSum(t.y, TruncateToInt((static_cast<double>(s.y) - t.y) * 0.1))};
    dc_.Line(t, head);
}

void ScenePainter::PaintPickedGeometryLink() const {
    if (gesture_.pickedGeometryPhase == 0)
        return;
    const Phase* phase = store_.FindPhase(static_cast<std::int32_t>(gesture_.pickedGeometryPhase));
    if (phase == nullptr)
        return;
    const Phase* target =
        store_.FindPhase(gesture_.pickedIsPrimary ? phase->primaryLinkId : phase->secondaryLinkId);
    if (target == nullptr)
        return;
    dc_.SelectPen(kBrightGreenPen);
    dc_.Line(ConnectionPoint(phase), target->ScreenAnchor(view_));
}

// Links run between the far ends of the gate stubs and have no arrowheads.
void ScenePainter::PaintLinks() const {
    if (!options_.DrawInputOutputs)
        return;
    for (const Link& link : store_.links) {
        dc_.SelectPen(link.isObjectLink ? kDashedGreenPen : kThinBluePen);
        dc_.Line(store_.LinkEnd(link, false, view_), store_.LinkEnd(link, true, view_));
    }
    const Link& hovered = gesture_.hoveredLink;
    if (hovered.fromPhaseId != 0 &&
        std::find(store_.links.begin(), store_.links.end(), hovered) != store_.links.end()) {
        dc_.SelectPen(kHoverPen);
        dc_.Line(store_.LinkEnd(hovered, false, view_), store_.LinkEnd(hovered, true, view_));
    }
    const Link& picked = gesture_.selectedLink;
    if (picked.fromPhaseId != 0) {
        dc_.SelectPen(kBrightGreenPen);
        dc_.Line(store_.LinkEnd(picked, false, view_), store_.LinkEnd(picked, true, view_));
    }
}

void ScenePainter::PaintCases() const {
    if (!options_.DrawSwitchAndCases)
        return;
    store_.ForEach<Case>([&](const Case& item) {
        dc_.SelectPen(kThinBlackPen);
        SelectFill(item);
        const ScreenRect r = item.GetScreenRect(view_.viewX, view_.viewY, view_.scale);
        dc_.Ellipse(r);
        // Its name stands right of the circle, so that a case can be told
        // from another on the canvas.
        const ScreenRect nameRect{ClampedSum(r.right, kCaseNameGap), r.top,
                                  ClampedSum(r.right, kCaseNameGap), r.bottom};
        Label(item.name, nameRect, TextLeft | TextVerticalCentre | TextSingleLine | TextNoClip);
        dc_.SelectPen(kThinBluePen);
        for (std::int32_t phaseId : item.phaseIds)
            dc_.Line(item.ScreenAnchor(view_), ConnectionPoint(store_.FindPhase(phaseId)));
    });
}

void ScenePainter::PaintSwitches() const {
    if (!options_.DrawSwitchAndCases)
        return;
    store_.ForEach<Switch>([&](const Switch& item) {
        const ScreenRect r = item.GetScreenRect(view_.viewX, view_.viewY, view_.scale);
        dc_.SelectPen(kThinRedPen);
        SelectFill(item);
        dc_.Ellipse(r);
        for (std::int32_t caseId : item.caseIds) {
            if (const Case* target = store_.FindCase(caseId))
                dc_.Line(item.ScreenAnchor(view_), target->ScreenAnchor(view_));
        }
        dc_.SelectPen(kThinBlackPen);
        const std::string count =
            std::to_string(item.number) + " of " + std::to_string(item.caseIds.size());
        Label(count, r, TextCentre | TextVerticalCentre | TextSingleLine | TextNoClip);
    });
}

// The check's type starts right of the box's left edge and runs out of it.
void ScenePainter::PaintChecks() const {
    if (!options_.DrawChecks)
        return;
    const std::int32_t corner = TruncateToInt(view_.scale * 15.0f);
    const std::int32_t textShift = TruncateToInt(view_.scale * 32.0f);
    store_.ForEach<Check>([&](const Check& check) {
        const ScreenRect r = PaintRuleBox(check, check.phaseId, corner);
        const ScreenRect textRect{ClampedSum(r.left, textShift), r.top,
                                  ClampedSum(r.right, textShift), r.bottom};
        Label(checkTypeToKeyword(static_cast<CheckType>(check.type)), textRect,
              TextVerticalCentre | TextSingleLine | TextNoClip);
    });
}

void ScenePainter::PaintActions() const {
    if (!options_.DrawActions)
        return;
    const std::int32_t corner = TruncateToInt(view_.scale * 15.0f);
    store_.ForEach<Action>([&](const Action& action) {
        const ScreenRect r = PaintRuleBox(action, action.phaseId, corner);
        const std::string owner = action.objectName.empty() ? "*" : action.objectName;
        Label(owner + ":" + action.name, r,
              TextCentre | TextVerticalCentre | TextSingleLine | TextNoClip);
    });
}

ScreenRect ScenePainter::PaintRuleBox(const EditorObject& object, std::int32_t phaseId,
                                      std::int32_t corner) const {
    const ScreenRect r = object.GetScreenRect(view_.viewX, view_.viewY, view_.scale);
    dc_.SelectPen(kThinBlackPen);
    SelectFill(object);
    dc_.RoundRect(r, corner, corner);
    dc_.SelectPen(kThinGreenPen);
    dc_.Line(object.ScreenAnchor(view_), ConnectionPoint(store_.FindPhase(phaseId)));
    return r;
}

// Unlinkers have no option of their own: they come and go with the actions.
void ScenePainter::PaintUnlinkers() const {
    if (!options_.DrawActions)
        return;
    store_.ForEach<Unlinker>([&](const Unlinker& unlinker) {
        const ScreenRect r = unlinker.GetScreenRect(view_.viewX, view_.viewY, view_.scale);
        dc_.SelectPen(kThinBlackPen);
        SelectFill(unlinker);
        dc_.Rectangle(r);
        dc_.Line({r.left, r.bottom}, {r.right, r.top});
        dc_.Line({r.left, r.top}, {r.right, r.bottom});
        dc_.Line(unlinker.ScreenAnchor(view_), ConnectionPoint(store_.FindPhase(unlinker.phaseId)));
    });
}

void ScenePainter::PaintGestureLine() const {
    const bool primary = state_ == InteractionState::StatePrimaryLink;
    if ((!primary && state_ != InteractionState::StateSecondaryLink) ||
        gesture_.pendingPhase == nullptr)
        return;
    dc_.SelectPen(primary ? kThinBluePen : kThinRedPen);
    // The pointer is already in window pixels.
    dc_.Line(ConnectionPoint(gesture_.pendingPhase), {gesture_.pointerX, gesture_.pointerY});
}

void ScenePainter::SelectFill(const EditorObject& object) const {
    dc_.SelectBrush(store_.selection.Contains(&object) ? kSelectedBrush : kWhiteBrush);
}

ScreenPoint ScenePainter::ConnectionPoint(const Phase* phase) const {
    return phase != nullptr ? phase->ConnectionPoint(view_) : ScreenPoint{};
}

} // namespace lw
