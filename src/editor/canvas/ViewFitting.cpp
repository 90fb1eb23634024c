#include "canvas/ViewFitting.h"

#include "objects/Phase.h"

#include <algorithm>

namespace lw {

namespace {

// Gate stubs reach this far out of a phase's box.
constexpr std::int64_t kGateStubLength = 150;

} // namespace

void WorldBox::Add(const WorldBox& other) {
    left = std::min(left, other.left);
    top = std::min(top, other.top);
    right = std::max(right, other.right);
    bottom = std::max(bottom, other.bottom);
}

WorldBox ObjectExtent(const EditorObject& object, const EditorOptions& options) {
    // At the scale 1 and no offset, the screen rectangle is in world units.
    const ScreenRect shape = object.GetScreenRect(0, 0, 1.0f);
    WorldBox box{shape.left, shape.top, shape.right, shape.bottom};
    if (object.GetKind() == ObjectKind::Phase && options.DrawInputOutputs) {
        box.left -= kGateStubLength;
        box.right += kGateStubLength;
    }
    return box;
}

ViewTransform ViewCentredOn(std::int64_t worldX, std::int64_t worldY, float scale, int width,
                            int height) {
    ViewTransform view;
    view.scale = scale;
    view.viewX = TruncateToInt(width / 2.0 / scale - static_cast<double>(worldX));
    view.viewY = TruncateToInt(height / 2.0 / scale - static_cast<double>(worldY));
    return view;
}

ViewTransform ViewShowing(const WorldBox& box, int width, int height) {
    const double roomX = width - 2.0 * kFitMargin;
    const double roomY = height - 2.0 * kFitMargin;
    if (box.IsEmpty() || roomX <= 0 || roomY <= 0)
        return ViewTransform{};
    const double boxWidth = std::max<double>(1.0, static_cast<double>(box.right - box.left));
    const double boxHeight = std::max<double>(1.0, static_cast<double>(box.bottom - box.top));
    const auto scale = static_cast<float>(std::clamp(std::min(roomX / boxWidth, roomY / boxHeight),
                                                     double{kMinScale}, double{kMaxScale}));
    return ViewCentredOn((box.left + box.right) / 2, (box.top + box.bottom) / 2, scale, width,
                         height);
}

} // namespace lw
