#pragma once

#include "objects/EditorObject.h"
#include "objects/Snapshot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// Chooses a number of its cases; a circle of radius 50. The generator alone
// gives `number`, `preliminaryCheck` and `planeType` their meaning.
class Switch final : public EditorObject {
public:
    static constexpr ObjectKind kKind = ObjectKind::Switch;

    explicit Switch(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override {
        return CentredScreenRect(viewX, viewY, scale, GetRadius(), GetRadius());
    }
    int GetRadius() const override { return 50; }
    ObjectKind GetKind() const override { return kKind; }

    std::string name;
    std::int32_t number = 0;
    // Index in "no", "player_category", "friendly_category_1" ... "enemy_category_3".
    std::int32_t preliminaryCheck = 0;
    // 0 fighter, 1 recon, 2 bomber.
    std::int32_t planeType = 0;
    std::vector<std::int32_t> caseIds;
};

using SwitchSnapshot = Snapshot<Switch>;

} // namespace lw
