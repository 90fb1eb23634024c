#pragma once

#include "SceneExtent.h"
#include "canvas/CanvasFont.h"
#include "objects/ViewTransform.h"

#include <QImage>
#include <QSize>

namespace lw {

class Weaver;

// The canvas as the editor paints it into its back buffer: a white ground in
// a one-pixel black frame, then the scene at this view, then the overlay if
// any. Null when an image of that size cannot be made. On a scaled screen
// the image has as many pixels as the screen shows for `size`, so lines and
// texts stay sharp.
QImage PaintCanvasImage(const Weaver& weaver, const ViewTransform& view, const CanvasFont& font,
                        QSize size, qreal devicePixelRatio = 1.0, const SceneOverlay& overlay = {});

} // namespace lw
