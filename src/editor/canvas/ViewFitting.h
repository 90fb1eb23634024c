#pragma once

#include "app/EditorOptions.h"
#include "objects/EditorObject.h"
#include "objects/ViewTransform.h"

#include <cstdint>
#include <limits>

namespace lw {

// A box in world units that objects are added to; empty until the first.
struct WorldBox {
    std::int64_t left = std::numeric_limits<std::int64_t>::max();
    std::int64_t top = std::numeric_limits<std::int64_t>::max();
    std::int64_t right = std::numeric_limits<std::int64_t>::min();
    std::int64_t bottom = std::numeric_limits<std::int64_t>::min();

    bool IsEmpty() const { return left > right; }
    void Add(const WorldBox& other);
};

// What the object covers on the canvas in world units: its shape, and for a
// phase its gate stubs while the gates are drawn. Texts that run out of a
// shape are left to the margin of the fitted view.
WorldBox ObjectExtent(const EditorObject& object, const EditorOptions& options);

// The zoom limits of the canvas.
constexpr float kMinScale = 0.01f;
constexpr float kMaxScale = 2.0f;
// The pixels a fitted view leaves free round what it shows, room for the gate
// labels above the top gates and for texts that run out of their shapes.
constexpr int kFitMargin = 24;

// The view that shows the whole box centred in a canvas of this size, at the
// largest scale within the zoom limits that leaves the margin free.
ViewTransform ViewShowing(const WorldBox& box, int width, int height);
// The view at this scale with the world point in the canvas's centre.
ViewTransform ViewCentredOn(std::int64_t worldX, std::int64_t worldY, float scale, int width,
                            int height);

} // namespace lw
