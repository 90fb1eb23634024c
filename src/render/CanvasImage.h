#pragma once

#include "canvas/CanvasFont.h"
#include "objects/ViewTransform.h"

#include <QImage>
#include <QSize>

namespace lw {

class Weaver;

// The canvas as the editor paints it into its back buffer: a white ground in
// a one-pixel black frame, then the scene at this view. Null when an image of
// that size cannot be made.
QImage PaintCanvasImage(const Weaver& weaver, const ViewTransform& view, const CanvasFont& font,
                        QSize size);

} // namespace lw
