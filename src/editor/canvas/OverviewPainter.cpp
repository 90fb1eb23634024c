#include "canvas/OverviewPainter.h"

#include "canvas/CanvasPalette.h"
#include "canvas/ScenePainter.h"
#include "document/TemplateDesc.h"

#include <algorithm>
#include <utility>

namespace lw {

namespace {

constexpr std::int64_t kGateStubLength = 150;

using Segment = std::pair<ScreenPoint, ScreenPoint>;

void DrawAll(DrawingSurface& dc, const Pen& pen, const std::vector<Segment>& segments) {
    if (segments.empty())
        return;
    dc.SelectPen(pen);
    for (const auto& [from, to] : segments)
        dc.Line(from, to);
}

} // namespace

OverviewPainter::OverviewPainter(const ObjectStore& store, const EditorOptions& options,
                                 const SceneGesture& gesture, DrawingSurface& dc,
                                 const ViewTransform& view)
    : store_(store), options_(options), gesture_(gesture), dc_(dc), view_(view) {}

void OverviewPainter::Paint() {
    std::int32_t highestPhaseId = 0;
    for (const auto& object : store_.objects) {
        if (const Phase* phase = As<Phase>(object.get())) {
            phases_.push_back(phase);
            highestPhaseId = std::max(highestPhaseId, phase->id);
        } else if (const Case* item = As<Case>(object.get())) {
            cases_.push_back(item);
        } else if (const Switch* item = As<Switch>(object.get())) {
            switches_.push_back(item);
        }
    }
    // Ids are issued one after another, so the table is small next to the
    // store, unless a long session has spent most of its ids.
    if (static_cast<std::size_t>(highestPhaseId) <= 4 * phases_.size() + 1024) {
        phaseTable_.assign(static_cast<std::size_t>(highestPhaseId) + 1, nullptr);
        for (const Phase* phase : phases_)
            phaseTable_[static_cast<std::size_t>(phase->id)] = phase;
    }
    PaintBoxes();
    if (options_.DrawGeometry)
        PaintGeometryLines();
    if (options_.DrawInputOutputs)
        PaintLinks();
    if (options_.DrawSwitchAndCases)
        PaintCasesAndSwitches();
}

const Phase* OverviewPainter::PhaseById(std::int32_t id) const {
    if (phaseTable_.empty())
        return store_.FindPhase(id);
    return id > 0 && static_cast<std::size_t>(id) < phaseTable_.size()
               ? phaseTable_[static_cast<std::size_t>(id)]
               : nullptr;
}

ScreenPoint OverviewPainter::ConnectionPoint(std::int32_t phaseId) const {
    const Phase* phase = PhaseById(phaseId);
    return phase != nullptr ? phase->ConnectionPoint(view_) : ScreenPoint{};
}

// At the far end of the phase's gate stubs, half way down its box: a few
// pixels from the gate, and no gate is looked up by its name.
ScreenPoint OverviewPainter::LinkEnd(std::int32_t phaseId, bool atDestination) const {
    const Phase* phase = PhaseById(phaseId);
    if (phase == nullptr)
        return ScreenPoint{};
    const std::int64_t x = atDestination
                               ? std::int64_t{phase->posX} - kGateStubLength
                               : std::int64_t{phase->posX} + Phase::kWidth + kGateStubLength;
    return ScreenPoint{view_.ScreenX(x),
                       view_.ScreenY(std::int64_t{phase->posY} + Phase::kHeight / 2)};
}

// Boxes of one look go together, so that the surface changes its pen and
// brush a few times rather than for every box; boxes seldom overlap.
void OverviewPainter::PaintBoxes() const {
    std::vector<std::pair<int, const Phase*>> boxes;
    boxes.reserve(phases_.size());
    for (const Phase* phase : phases_) {
        const bool selected = store_.selection.Contains(phase);
        const int fill = selected ? 16 : phase->GetColorIndex() & 15;
        boxes.emplace_back(fill * 2 + (LacksMandatoryLink(*phase) ? 1 : 0), phase);
    }
    std::stable_sort(boxes.begin(), boxes.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    int previousLook = -1;
    for (const auto& [look, phase] : boxes) {
        if (look != previousLook) {
            dc_.SelectPen((look & 1) != 0 ? kThickRedPen : kThinBlackPen);
            dc_.SelectBrush(look / 2 == 16 ? kSelectedBrush : PhaseFill(phase->GetColorIndex()));
            previousLook = look;
        }
        dc_.Rectangle(phase->GetScreenRect(view_.viewX, view_.viewY, view_.scale));
    }
}

// Plain lines without their thick last tenth, the primary ones first.
void OverviewPainter::PaintGeometryLines() const {
    std::vector<Segment> primary;
    std::vector<Segment> secondary;
    for (const Phase* phase : phases_) {
        const std::int32_t type = phase->generationType;
        if (type == GenerationServerSetPos || type == GenerationServerTargetPos)
            continue;
        if (const Phase* target = PhaseById(phase->primaryLinkId))
            primary.emplace_back(phase->ConnectionPoint(view_), target->ScreenAnchor(view_));
        if (!HasSecondaryLink(type))
            continue;
        if (const Phase* target = PhaseById(phase->secondaryLinkId))
            secondary.emplace_back(phase->ConnectionPoint(view_), target->ScreenAnchor(view_));
    }
    DrawAll(dc_, kThinBluePen, primary);
    DrawAll(dc_, kThinRedPen, secondary);

    const Phase* picked = PhaseById(static_cast<std::int32_t>(gesture_.pickedGeometryPhase));
    if (picked == nullptr)
        return;
    const Phase* target =
        PhaseById(gesture_.pickedIsPrimary ? picked->primaryLinkId : picked->secondaryLinkId);
    if (target != nullptr)
        DrawAll(dc_, kBrightGreenPen,
                {{picked->ConnectionPoint(view_), target->ScreenAnchor(view_)}});
}

void OverviewPainter::PaintLinks() const {
    std::vector<Segment> targetLinks;
    std::vector<Segment> objectLinks;
    for (const Link& link : store_.links) {
        (link.isObjectLink ? objectLinks : targetLinks)
            .emplace_back(LinkEnd(link.fromPhaseId, false), LinkEnd(link.toPhaseId, true));
    }
    DrawAll(dc_, kThinBluePen, targetLinks);
    DrawAll(dc_, kDashedGreenPen, objectLinks);
    const Link& hovered = gesture_.hoveredLink;
    if (hovered.fromPhaseId != 0 &&
        std::find(store_.links.begin(), store_.links.end(), hovered) != store_.links.end())
        DrawAll(dc_, kHoverPen,
                {{LinkEnd(hovered.fromPhaseId, false), LinkEnd(hovered.toPhaseId, true)}});
    const Link& picked = gesture_.selectedLink;
    if (picked.fromPhaseId != 0)
        DrawAll(dc_, kBrightGreenPen,
                {{LinkEnd(picked.fromPhaseId, false), LinkEnd(picked.toPhaseId, true)}});
}

// The circles first, then the lines of each kind.
void OverviewPainter::PaintCasesAndSwitches() const {
    std::vector<Segment> caseLines;
    for (const Case* item : cases_) {
        dc_.SelectPen(kThinBlackPen);
        dc_.SelectBrush(store_.selection.Contains(item) ? kSelectedBrush : kWhiteBrush);
        dc_.Ellipse(item->GetScreenRect(view_.viewX, view_.viewY, view_.scale));
        for (std::int32_t phaseId : item->phaseIds)
            caseLines.emplace_back(item->ScreenAnchor(view_), ConnectionPoint(phaseId));
    }
    DrawAll(dc_, kThinBluePen, caseLines);
    std::vector<Segment> switchLines;
    for (const Switch* item : switches_) {
        dc_.SelectPen(kThinRedPen);
        dc_.SelectBrush(store_.selection.Contains(item) ? kSelectedBrush : kWhiteBrush);
        dc_.Ellipse(item->GetScreenRect(view_.viewX, view_.viewY, view_.scale));
        for (std::int32_t caseId : item->caseIds) {
            if (const Case* target = store_.FindCase(caseId))
                switchLines.emplace_back(item->ScreenAnchor(view_), target->ScreenAnchor(view_));
        }
    }
    DrawAll(dc_, kThinRedPen, switchLines);
}

} // namespace lw
