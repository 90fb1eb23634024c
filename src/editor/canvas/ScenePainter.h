#pragma once

#include "app/EditorOptions.h"
#include "canvas/DrawingSurface.h"
#include "canvas/InteractionState.h"
#include "objects/Link.h"
#include "objects/ViewTransform.h"
#include "operations/ObjectStore.h"

#include <cstdint>
#include <string>

namespace lw {

// The part of the pointer's gesture that shows on the canvas; at rest it
// paints nothing. The editor keeps its gesture in one, which the painter
// reads as it stands.
struct SceneGesture {
    bool bandActive = false;
    ScreenRect bandRect;
    Link selectedLink;
    Link hoveredLink;
    std::uint32_t pickedGeometryPhase = 0;
    bool pickedIsPrimary = true;
    // The object being placed; also the source of a link gesture.
    Phase* pendingPhase = nullptr;
    std::int32_t pointerX = 0;
    std::int32_t pointerY = 0;
};

// Draws the document as the canvas shows it, read-only. Each layer walks the
// objects in list order, which is the only stacking order the canvas has.
class ScenePainter {
public:
    ScenePainter(const ObjectStore& store, const EditorOptions& options,
                 const SceneGesture& gesture, InteractionState state, DrawingSurface& dc,
                 const ViewTransform& view);

    // The band, the layers from phases to unlinkers, the band's edge and the
    // line of a link gesture, in this order.
    void PaintScene() const;

    void PaintPhases() const;
    void PaintLinks() const;
    void PaintCases() const;
    void PaintSwitches() const;
    void PaintChecks() const;
    void PaintActions() const;
    void PaintUnlinkers() const;
    void PaintGeometryLink(const Phase& fromPhase, const Phase& toPhase, bool isPrimary) const;

private:
    void PaintPhaseBox(const Phase& phase) const;
    // Whether the view is zoomed out so far that the canvas font is too small
    // to read: the scene is then drawn as a map.
    bool IsMap() const;
    // Whether the map is zoomed out so far that only boxes and lines show.
    bool IsOverview() const;

    // A text other than a phase's name, which a map leaves out.
    void Label(const std::string& text, const ScreenRect& rect, unsigned flags) const;
    void PaintGates(const Phase& phase, bool isInput) const;
    void PaintGeometry(const Phase& phase) const;
    void PaintPickedGeometryLink() const;
    void PaintGestureLine() const;
    // The round box of a check or an action with its green line to the
    // phase; answers the box, in which the text goes.
    ScreenRect PaintRuleBox(const EditorObject& object, std::int32_t phaseId,
                            std::int32_t corner) const;
    // The fill of an object that is not a phase.
    void SelectFill(const EditorObject& object) const;

    // Where every line that leads to a phase ends; (0, 0) for no phase.
    ScreenPoint ConnectionPoint(const Phase* phase) const;

    const ObjectStore& store_;
    const EditorOptions& options_;
    const SceneGesture& gesture_;
    const InteractionState state_;
    DrawingSurface& dc_;
    const ViewTransform view_;
};

// A phase whose placement needs a geometry link it does not have: its box is
// outlined in red.
bool LacksMandatoryLink(const Phase& phase);

// The second line of a phase's geometry: some of its parameters, "; " between
// them, for azimuth, fractal and line phases with enough of them; else empty.
std::string GeometryDetailText(const Phase& phase);

} // namespace lw
