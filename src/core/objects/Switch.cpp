#include "objects/Switch.h"

namespace lw {

ScreenRect Switch::GetScreenRect(int viewX, int viewY, float scale) const {
    return CentredScreenRect(viewX, viewY, scale, GetRadius(), GetRadius());
}

SwitchSnapshot::SwitchSnapshot(const Switch& object)
    : id(object.id), name(object.name), number(object.number),
      preliminaryCheck(object.preliminaryCheck), planeType(object.planeType),
      caseIds(object.caseIds), posX(object.posX), posY(object.posY) {}

std::unique_ptr<Switch> SwitchSnapshot::Rebuild() const {
    auto object = std::make_unique<Switch>(id);
    object->name = name;
    object->number = number;
    object->preliminaryCheck = preliminaryCheck;
    object->planeType = planeType;
    object->caseIds = caseIds;
    object->posX = posX;
    object->posY = posY;
    return object;
}

} // namespace lw
