#pragma once

#include "catalog/BlockInfo.h"
#include "objects/EditorObject.h"
#include "objects/ScreenRect.h"
#include "objects/Snapshot.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace lw {

// One gate of a phase; open while no link uses it.
struct GateSlot {
    std::string name;
    bool openMark = true;
};

inline bool operator==(const GateSlot& a, const GateSlot& b) {
    return a.name == b.name && a.openMark == b.openMark;
}

// Whether a gate of that name is among the gates.
bool HasGate(const std::vector<GateSlot>& gates, const std::string& name);

// The central object of a template: a set of blocks with their gates, how the
// generator places it, and, by id, its checks and actions. A box of 200 by
// 150 world units with its position at the top-left corner.
class Phase final : public EditorObject {
public:
    static constexpr ObjectKind kKind = ObjectKind::Phase;

    static constexpr int kWidth = 200;
    static constexpr int kHeight = 150;
    // Every line that leads to a phase ends at this point of it, which is
    // deliberately not the centre of its box.
    static constexpr int kConnectionX = 66;
    static constexpr int kConnectionY = 50;

    explicit Phase(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override;
    ObjectKind GetKind() const override { return kKind; }
    int GetColorIndex() const override { return colorIndex; }

    // Clears the open mark of the first gate of that name, if any.
    void MarkGateUsed(const std::string& gateName, bool isInput);
    // Replaces the gates, all open, and the property lists by the block's.
    void TakeGatesFrom(const BlockInfo& block);
    // Where the gate stands on the canvas: 150 units left of the box for an
    // input, right of it for an output, spread over its height in equal
    // integer steps; (0, 0) for a gate the phase does not have.
    ScreenPoint ConnectionPoint(const ViewTransform& view) const {
        return ScreenPoint{view.ScreenX(std::int64_t{posX} + kConnectionX),
                           view.ScreenY(std::int64_t{posY} + kConnectionY)};
    }
    ScreenPoint GateScreenPoint(const std::string& gateName, bool isInput, float scale, int viewX,
                                int viewY) const;
    // Where the phase's next check goes, below the ones it has.
    void NextCheckPoint(std::int32_t& outX, std::int32_t& outY) const;

    void AddCheckId(std::int32_t checkId);
    void AddActionId(std::int32_t actionId);
    void RemoveCheckId(std::int32_t checkId);
    void RemoveActionId(std::int32_t actionId);

    std::string name;
    std::int32_t generationType = 4;
    // Block key ("main" or an additional key) to block reference.
    std::map<std::string, std::string> blocks;
    std::string blocksFolder;
    std::vector<GateSlot> inputs;
    std::vector<GateSlot> outputs;
    std::map<std::string, std::vector<std::string>> blockProperties;
    // The numeric geometry parameters; the geometry links are the two ids.
    std::vector<std::string> geoParams;
    std::string allocationType = "clone_location";
    std::int32_t primaryLinkId = 0;
    std::int32_t secondaryLinkId = 0;
    std::int32_t caseId = 0;
    std::vector<std::int32_t> checkIds;
    std::vector<std::int32_t> actionIds;
    std::int32_t colorIndex = 0;
};

// Whether a phase of this generation type is placed against a primary
// geometry link (all but the three server types), and also against a
// secondary one (fractal and line).
bool HasPrimaryLink(std::int32_t generationType);
bool HasSecondaryLink(std::int32_t generationType);

// A phase as the undo history keeps it. A deletion also notes the phases
// whose primary and whose secondary geometry link pointed at it.
struct PhaseSnapshot : Snapshot<Phase> {
    using Snapshot::Snapshot;

    std::vector<std::int32_t> primaryReferrers;
    std::vector<std::int32_t> secondaryReferrers;
};

} // namespace lw
