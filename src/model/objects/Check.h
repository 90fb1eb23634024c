#pragma once

#include "objects/EditorObject.h"
#include "objects/Snapshot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// A condition on where the generator may place a phase.
class Check final : public EditorObject {
public:
    static constexpr ObjectKind kKind = ObjectKind::Check;

    explicit Check(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override {
        return CentredScreenRect(viewX, viewY, scale, 15, 15);
    }
    ObjectKind GetKind() const override { return kKind; }

    std::int32_t phaseId = 0;
    // A CheckType; a new check is free.
    std::int32_t type = 5;
    std::vector<std::string> params;
};

using CheckSnapshot = Snapshot<Check>;

// The word that stands for the phase of the primary geometry link, the first
// parameter of the range, in-radius and in-sector checks.
inline constexpr const char* kPrimaryLinkPhase = "PRIMARY_LINK_PHASE";

// Whether checks of this type are measured from the phase's primary link.
bool IsMeasuredFromPrimaryLink(std::int32_t checkType);

} // namespace lw
