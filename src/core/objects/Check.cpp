#include "objects/Check.h"

#include "document/TemplateDesc.h"

namespace lw {

bool IsMeasuredFromPrimaryLink(std::int32_t checkType) {
    return checkType == CheckRange || checkType == CheckInRadius || checkType == CheckInSector;
}

CheckSnapshot::CheckSnapshot(const Check& object)
    : id(object.id), phaseId(object.phaseId), type(object.type), params(object.params),
      posX(object.posX), posY(object.posY) {}

std::unique_ptr<Check> CheckSnapshot::Rebuild() const {
    auto object = std::make_unique<Check>(id);
    object->phaseId = phaseId;
    object->type = type;
    object->params = params;
    object->posX = posX;
    object->posY = posY;
    return object;
}

} // namespace lw
