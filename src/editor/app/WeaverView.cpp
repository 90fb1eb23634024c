#include "app/Weaver.h"
#include "canvas/ViewFitting.h"

#include <algorithm>

namespace lw {

namespace {

// One notch of the wheel, and one step of Zoom In and Zoom Out.
constexpr double kZoomStep = 1.1;

} // namespace

void Weaver::ApplyView(const ViewTransform& view, bool followsFit) {
    CanvasView& canvas = View();
    canvas.viewX = view.viewX;
    canvas.viewY = view.viewY;
    canvas.scale = view.scale;
    canvas.font = CanvasFontAt(view.scale, true);
    viewFollowsFit_ = followsFit;
    selection.Recalculate();
    Repaint();
}

void Weaver::FitAll() {
    WorldBox box;
    for (const auto& object : objects) {
        if (options.IsKindShown(object->GetKind()))
            box.Add(ObjectExtent(*object, options));
    }
    if (box.IsEmpty()) {
        ResetView();
        return;
    }
    const CanvasView& canvas = View();
    ApplyView(ViewShowing(box, canvas.pixelWidth, canvas.pixelHeight), true);
}

void Weaver::FitSelection() {
    WorldBox box;
    for (const EditorObject* member : selection.members)
        box.Add(ObjectExtent(*member, options));
    if (box.IsEmpty())
        return;
    const CanvasView& canvas = View();
    ApplyView(ViewShowing(box, canvas.pixelWidth, canvas.pixelHeight), false);
}

void Weaver::ZoomStep(bool zoomIn) {
    const CanvasView& canvas = View();
    const std::int32_t centreX = canvas.WorldX(canvas.pixelWidth / 2);
    const std::int32_t centreY = canvas.WorldY(canvas.pixelHeight / 2);
    const double stepped = zoomIn ? canvas.scale * kZoomStep : canvas.scale / kZoomStep;
    const auto scale = std::clamp(static_cast<float>(stepped), kMinScale, kMaxScale);
    ApplyView(ViewCentredOn(centreX, centreY, scale, canvas.pixelWidth, canvas.pixelHeight), false);
}

void Weaver::ZoomIn() {
    ZoomStep(true);
}

void Weaver::ZoomOut() {
    ZoomStep(false);
}

void Weaver::CentreOn(const EditorObject& object) {
    const WorldBox box = ObjectExtent(object, options);
    const CanvasView& canvas = View();
    ApplyView(ViewCentredOn((box.left + box.right) / 2, (box.top + box.bottom) / 2, canvas.scale,
                            canvas.pixelWidth, canvas.pixelHeight),
              false);
}

void Weaver::ShowObject(EditorObject& object) {
    selection.Clear();
    selection.Add(&object);
    selection.Recalculate();
    CentreOn(object);
}

// The view a canvas starts with: no offset, no zoom and the first font.
void Weaver::ResetView() {
    CanvasView& canvas = View();
    canvas.viewX = 0;
    canvas.viewY = 0;
    canvas.scale = 1.0f;
    canvas.font = CanvasFontAt(1.0f, false);
    viewFollowsFit_ = false;
    selection.Recalculate();
    Repaint();
}

// Until the user moves the view, a fitted view stays fitted when the canvas
// changes its size, as it does when the window first shows.
void Weaver::CanvasResized(int width, int height) {
    CanvasView& canvas = View();
    canvas.pixelWidth = width;
    canvas.pixelHeight = height;
    if (viewFollowsFit_)
        FitAll();
}

} // namespace lw
