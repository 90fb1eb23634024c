#include "objects/Action.h"

namespace lw {

ActionSnapshot::ActionSnapshot(const Action& object)
    : id(object.id), phaseId(object.phaseId), objectName(object.objectName), name(object.name),
      rules(object.rules), posX(object.posX), posY(object.posY) {}

std::unique_ptr<Action> ActionSnapshot::Rebuild() const {
    auto object = std::make_unique<Action>(id);
    object->phaseId = phaseId;
    object->objectName = objectName;
    object->name = name;
    object->rules = rules;
    object->posX = posX;
    object->posY = posY;
    return object;
}

} // namespace lw
