#include "operations/FreeSpot.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace lw {

namespace {

// The search tries spots on a grid of this step, out to this distance.
constexpr int kStep = 10;
constexpr int kReach = 500;

// The label of a gate lies above its stub, inset as the canvas draws it.
constexpr int kStubLength = 150;
constexpr int kLabelHeight = 20;
constexpr int kLabelInset = 2;

struct Offset {
    int dx;
    int dy;
};

// Every grid offset within reach, nearest first; of two as near, the upper,
// then the left one.
const std::vector<Offset>& OffsetsByDistance() {
    static const std::vector<Offset> offsets = [] {
        std::vector<Offset> all;
        for (int dy = -kReach; dy <= kReach; dy += kStep) {
            for (int dx = -kReach; dx <= kReach; dx += kStep)
                all.push_back({dx, dy});
        }
        std::stable_sort(all.begin(), all.end(), [](const Offset& a, const Offset& b) {
            return a.dx * a.dx + a.dy * a.dy < b.dx * b.dx + b.dy * b.dy;
        });
        return all;
    }();
    return offsets;
}

bool Overlaps(const ScreenRect& a, const ScreenRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// World rectangles at the scale 1, where screen units are world units.
void AddGateLabels(std::vector<ScreenRect>& taken, const Phase& phase, bool isInput) {
    const std::vector<GateSlot>& gates = isInput ? phase.inputs : phase.outputs;
    const std::int64_t step = Phase::kHeight / (static_cast<std::int64_t>(gates.size()) + 1);
    const std::int64_t x0 =
        isInput ? std::int64_t{phase.posX} - kStubLength : std::int64_t{phase.posX} + Phase::kWidth;
    for (std::size_t i = 0; i < gates.size(); ++i) {
        const std::int64_t y = phase.posY + step * static_cast<std::int64_t>(i + 1);
        taken.push_back(
            ScreenRect{ClampedSum(x0, kLabelInset), ClampedSum(y, kLabelInset - kLabelHeight),
                       ClampedSum(x0, kStubLength - kLabelInset), ClampedSum(y, -kLabelInset)});
    }
}

std::vector<ScreenRect> TakenAround(const ObjectStore& store, const Phase& phase,
                                    const EditorObject& newcomer) {
    std::vector<ScreenRect> taken{phase.GetScreenRect(0, 0, 1.0f)};
    AddGateLabels(taken, phase, true);
    AddGateLabels(taken, phase, false);
    for (const auto& object : store.objects) {
        if (object.get() != &newcomer && OwnerPhaseId(*object) == phase.id)
            taken.push_back(object->GetScreenRect(0, 0, 1.0f));
    }
    return taken;
}

} // namespace

void MoveToFreeSpot(const ObjectStore& store, const Phase& phase, EditorObject& object) {
    const std::vector<ScreenRect> taken = TakenAround(store, phase, object);
    const ScreenRect shape = object.GetScreenRect(0, 0, 1.0f);
    for (const Offset& offset : OffsetsByDistance()) {
        const ScreenRect moved{ClampedSum(shape.left, offset.dx), ClampedSum(shape.top, offset.dy),
                               ClampedSum(shape.right, offset.dx),
                               ClampedSum(shape.bottom, offset.dy)};
        const bool free = std::none_of(taken.begin(), taken.end(), [&](const ScreenRect& rect) {
            return Overlaps(moved, rect);
        });
        if (free) {
            object.posX = ClampedSum(object.posX, offset.dx);
            object.posY = ClampedSum(object.posY, offset.dy);
            return;
        }
    }
}

} // namespace lw
