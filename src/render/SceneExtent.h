#pragma once

#include "canvas/CanvasFont.h"
#include "objects/ScreenRect.h"
#include "objects/ViewTransform.h"

#include <cstdint>
#include <functional>

namespace lw {

class DrawingSurface;
class Weaver;

// What is drawn over the scene, such as the marks of a comparison; it counts
// for the scene's extent as the scene itself does.
using SceneOverlay = std::function<void(DrawingSurface&, const ViewTransform&)>;

// The pixels the scene covers at this view: every shape and every text as
// the font measures it. Lines are left out: each runs between points that
// shapes and gate labels already cover, except those that lead to an unknown
// phase or gate and end at the window's corner wherever the view is.
ScreenRect SceneExtent(const Weaver& weaver, const ViewTransform& view, const CanvasFont& font,
                       const SceneOverlay& overlay = {});

// A view and a picture size that hold the whole scene at a scale.
struct SceneFrame {
    ViewTransform view;
    std::int64_t width = 0;
    std::int64_t height = 0;
};

// Moves the view so that the scene begins `margin` pixels from the top-left
// corner and sizes the picture to leave the same margin at the other sides.
SceneFrame FrameWholeScene(const Weaver& weaver, float scale, const CanvasFont& font, int margin,
                           const SceneOverlay& overlay = {});

} // namespace lw
