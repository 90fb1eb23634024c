#pragma once

#include "canvas/DrawingSurface.h"
#include "diff/DocumentDiff.h"
#include "objects/ViewTransform.h"
#include "operations/ObjectStore.h"

namespace lw {

// Marks a comparison on the newer document's scene: a frame round each
// object that was added (green), changed or renamed (orange) or only moved
// (blue), and where each removed object stood in the older document, its
// outline dashed in grey with its name.
void PaintDiffOverlay(DrawingSurface& surface, const DocumentDiff& diff, const ObjectStore& older,
                      const ObjectStore& newer, const ViewTransform& view);

} // namespace lw
