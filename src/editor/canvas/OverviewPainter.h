#pragma once

#include "app/EditorOptions.h"
#include "canvas/DrawingSurface.h"
#include "objects/ViewTransform.h"
#include "operations/ObjectStore.h"

#include <cstdint>
#include <vector>

namespace lw {

struct SceneGesture;

// Below this scale a phase's box is less than 30 pixels wide: the scene is
// drawn as an overview.
constexpr float kOverviewScale = 0.15f;

// The scene zoomed so far out that a phase's box is a few pixels wide, and
// gates, checks, actions, unlinkers and every text would be specks: the
// overview shows the boxes, the circles and the lines between them. A view
// this far out is where a large template is seen whole, so the objects are
// walked once, boxes of one look and lines of one kind are drawn together,
// and a link ends half way down its phase instead of at its gate.
class OverviewPainter {
public:
    OverviewPainter(const ObjectStore& store, const EditorOptions& options,
                    const SceneGesture& gesture, DrawingSurface& dc, const ViewTransform& view);

    void Paint();

private:
    void PaintBoxes() const;
    void PaintGeometryLines() const;
    void PaintLinks() const;
    void PaintCasesAndSwitches() const;

    // The phase of an id by a table, not by the store's hash, and the points
    // the lines run to.
    const Phase* PhaseById(std::int32_t id) const;
    ScreenPoint ConnectionPoint(std::int32_t phaseId) const;
    ScreenPoint LinkEnd(std::int32_t phaseId, bool atDestination) const;

    const ObjectStore& store_;
    const EditorOptions& options_;
    const SceneGesture& gesture_;
    DrawingSurface& dc_;
    const ViewTransform view_;
    std::vector<const Phase*> phases_;
    std::vector<const Case*> cases_;
    std::vector<const Switch*> switches_;
    std::vector<const Phase*> phaseTable_;
};

} // namespace lw
