#include "HandBuilt.h"

namespace lw::test {

Phase* PhaseAt(ObjectStore& document, const std::string& name, int x, int y) {
    Phase* phase = document.NewPhase();
    if (!name.empty())
        phase->name = name;
    phase->posX = x;
    phase->posY = y;
    phase->blocks["main"] = "scg\\0\\blocks\\air\\patrol.group";
    phase->inputs = {GateSlot{"in"}};
    phase->outputs = {GateSlot{"out"}};
    return phase;
}

Case* CaseAt(ObjectStore& document, const std::string& name, int x, int y) {
    Case* item = document.NewCase();
    item->name = name;
    item->posX = x;
    item->posY = y;
    return item;
}

Check* CheckOf(ObjectStore& document, Phase& phase, std::int32_t type, int x, int y) {
    Check* check = document.NewCheck();
    check->phaseId = phase.id;
    check->type = type;
    check->posX = x;
    check->posY = y;
    phase.AddCheckId(check->id);
    return check;
}

Action* ActionOf(ObjectStore& document, Phase& phase, const std::string& objectName,
                 const std::string& name) {
    Action* action = document.NewAction();
    action->phaseId = phase.id;
    action->objectName = objectName;
    action->name = name;
    phase.AddActionId(action->id);
    return action;
}

Link LinkBetween(const Phase& from, const Phase& to) {
    return Link{true, from.id, "out", to.id, "in"};
}

} // namespace lw::test
