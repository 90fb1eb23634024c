#pragma once

#include "objects/EditorObject.h"
#include "objects/Snapshot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// A group of phases among which the generator picks; a circle of radius 40.
class Case final : public EditorObject {
public:
    static constexpr ObjectKind kKind = ObjectKind::Case;

    explicit Case(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override {
        return CentredScreenRect(viewX, viewY, scale, GetRadius(), GetRadius());
    }
    int GetRadius() const override { return 40; }
    ObjectKind GetKind() const override { return kKind; }

    std::string name;
    std::vector<std::int32_t> phaseIds;
    // The switch that holds this case; 0 for none.
    std::int32_t switchId = 0;
};

using CaseSnapshot = Snapshot<Case>;

} // namespace lw
