#pragma once

#include "objects/EditorObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lw {

// Chooses a number of its cases; a circle of radius 50. The generator alone
// gives `number`, `preliminaryCheck` and `planeType` their meaning.
class Switch : public EditorObject {
public:
    explicit Switch(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override;
    int GetRadius() const override { return 50; }
    ObjectKind GetKind() const override { return ObjectKind::Switch; }

    std::string name;
    std::int32_t number = 0;
    // Index in "no", "player_category", "friendly_category_1" ... "enemy_category_3".
    std::int32_t preliminaryCheck = 0;
    // 0 fighter, 1 recon, 2 bomber.
    std::int32_t planeType = 0;
    std::vector<std::int32_t> caseIds;
};

struct SwitchSnapshot {
    SwitchSnapshot() = default;
    explicit SwitchSnapshot(const Switch& object);
    std::unique_ptr<Switch> Rebuild() const;

    std::int32_t id = 0;
    std::string name;
    std::int32_t number = 0;
    std::int32_t preliminaryCheck = 0;
    std::int32_t planeType = 0;
    std::vector<std::int32_t> caseIds;
    std::int32_t posX = 0;
    std::int32_t posY = 0;
};

} // namespace lw
