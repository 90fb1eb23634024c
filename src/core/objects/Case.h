#pragma once

#include "objects/EditorObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lw {

// A group of phases among which the generator picks; a circle of radius 40.
class Case : public EditorObject {
public:
    explicit Case(std::int32_t id) : EditorObject(id) {}

    ScreenRect GetScreenRect(int viewX, int viewY, float scale) const override;
    int GetRadius() const override { return 40; }
    ObjectKind GetKind() const override { return ObjectKind::Case; }

    std::string name;
    std::vector<std::int32_t> phaseIds;
    // The switch that holds this case; 0 for none.
    std::int32_t switchId = 0;
};

struct CaseSnapshot {
    CaseSnapshot() = default;
    explicit CaseSnapshot(const Case& object);
    std::unique_ptr<Case> Rebuild() const;

    std::int32_t id = 0;
    std::string name;
    std::vector<std::int32_t> phaseIds;
    std::int32_t switchId = 0;
    std::int32_t posX = 0;
    std::int32_t posY = 0;
};

} // namespace lw
