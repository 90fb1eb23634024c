#include "objects/Case.h"

namespace lw {

ScreenRect Case::GetScreenRect(int viewX, int viewY, float scale) const {
    return CentredScreenRect(viewX, viewY, scale, GetRadius(), GetRadius());
}

CaseSnapshot::CaseSnapshot(const Case& object)
    : id(object.id), name(object.name), phaseIds(object.phaseIds), switchId(object.switchId),
      posX(object.posX), posY(object.posY) {}

std::unique_ptr<Case> CaseSnapshot::Rebuild() const {
    auto object = std::make_unique<Case>(id);
    object->name = name;
    object->phaseIds = phaseIds;
    object->switchId = switchId;
    object->posX = posX;
    object->posY = posY;
    return object;
}

} // namespace lw
