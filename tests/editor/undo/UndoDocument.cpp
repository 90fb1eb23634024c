#include "UndoDocument.h"

#include <algorithm>
#include <sstream>

namespace lw::test {

namespace {

template <typename T> std::string List(const std::vector<T>& items) {
    std::ostringstream out;
    for (std::size_t i = 0; i < items.size(); ++i)
        out << (i == 0 ? "" : ",") << items[i];
    return "[" + out.str() + "]";
}

std::string Marks(const std::vector<GateSlot>& gates) {
    std::string text;
    for (const GateSlot& gate : gates)
        text += gate.name + (gate.openMark ? " open " : " used ");
    return text;
}

void DescribeObject(std::ostream& out, const EditorObject& object) {
    out << object.id << " at " << object.posX << "," << object.posY << ": ";
    if (const Phase* phase = As<Phase>(&object))
        out << "phase " << phase->name << " case " << phase->caseId << " links "
            << phase->primaryLinkId << "," << phase->secondaryLinkId << " checks "
            << List(phase->checkIds) << " actions " << List(phase->actionIds) << " "
            << Marks(phase->inputs) << Marks(phase->outputs);
    else if (const Case* aCase = As<Case>(&object))
        out << "case phases " << List(aCase->phaseIds) << " switch " << aCase->switchId;
    else if (const Switch* aSwitch = As<Switch>(&object))
        out << "switch cases " << List(aSwitch->caseIds);
    else if (const Check* check = As<Check>(&object))
        out << "check of " << check->phaseId << " type " << check->type;
    else if (const Action* action = As<Action>(&object))
        out << "action of " << action->phaseId << " " << action->objectName;
    else if (const Unlinker* unlinker = As<Unlinker>(&object))
        out << "unlinker of " << unlinker->phaseId;
}

} // namespace

Ids ObjectOrder(const Weaver& weaver) {
    Ids ids;
    for (const auto& object : weaver.objects)
        ids.push_back(object->id);
    return ids;
}

std::string Describe(const Weaver& weaver) {
    std::vector<const EditorObject*> byId;
    for (const auto& object : weaver.objects)
        byId.push_back(object.get());
    std::sort(byId.begin(), byId.end(), [](auto a, auto b) { return a->id < b->id; });
    std::ostringstream out;
    for (const EditorObject* object : byId) {
        DescribeObject(out, *object);
        out << (weaver.FindObject(object->id) == object ? "\n" : " not indexed\n");
    }
    for (const Link& link : weaver.links)
        out << "link " << link.fromPhaseId << " -> " << link.toPhaseId << "\n";
    return out.str();
}

} // namespace lw::test
