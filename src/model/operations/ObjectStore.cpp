#include "operations/ObjectStore.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <unordered_set>

namespace lw {

std::int32_t OwnerPhaseId(const EditorObject& object) {
    if (const auto* check = As<Check>(&object))
        return check->phaseId;
    if (const auto* action = As<Action>(&object))
        return action->phaseId;
    if (const auto* unlinker = As<Unlinker>(&object))
        return unlinker->phaseId;
    return 0;
}

namespace {

// Visits the elements of the list, or of the store without one, in order.
template <typename Visit>
void ForEachIn(const std::vector<std::unique_ptr<EditorObject>>& objects, const ObjectList* list,
               Visit visit) {
    if (list != nullptr) {
        for (EditorObject* object : *list) {
            if (visit(object))
                return;
        }
        return;
    }
    for (const auto& object : objects) {
        if (visit(object.get()))
            return;
    }
}

} // namespace

EditorObject* ObjectStore::FindObject(std::int32_t id) const {
    // Ids are unique in the store, so the index gives the same object as a
    // walk of the list would.
    const auto found = objectIndex.find(id);
    return found == objectIndex.end() ? nullptr : found->second;
}

template <typename T>
T* ObjectStore::FindByName(const std::string& name, const ObjectList* list) const {
    T* result = nullptr;
    ForEachIn(objects, list, [&](EditorObject* object) {
        T* candidate = As<T>(object);
        if (candidate != nullptr && candidate->name == name)
            result = candidate;
        return result != nullptr;
    });
    return result;
}

Phase* ObjectStore::FindPhaseByName(const std::string& name, const ObjectList* list) const {
    return FindByName<Phase>(name, list);
}

Case* ObjectStore::FindCaseByName(const std::string& name, const ObjectList* list) const {
    return FindByName<Case>(name, list);
}

Action* ObjectStore::FindActionOf(const std::string& phaseName, const std::string& objectName,
                                  const std::string& actionName, const ObjectList* list) const {
    Action* result = nullptr;
    ForEachIn(objects, list, [&](EditorObject* object) {
        Action* action = As<Action>(object);
        if (action == nullptr || action->objectName != objectName || action->name != actionName)
            return false;
        const Phase* phase = FindPhase(action->phaseId);
        if (phase != nullptr && phase->name == phaseName)
            result = action;
        return result != nullptr;
    });
    return result;
}

template <typename T> bool ObjectStore::NameTaken(std::int32_t id, const std::string& name) const {
    return std::any_of(objects.begin(), objects.end(), [&](const auto& object) {
        const T* candidate = As<T>(object.get());
        return candidate != nullptr && candidate->name == name && candidate->id != id;
    });
}

ScreenPoint ObjectStore::LinkEnd(const Link& link, bool atDestination,
                                 const ViewTransform& view) const {
    const Phase* phase = FindPhase(atDestination ? link.toPhaseId : link.fromPhaseId);
    if (phase == nullptr)
        return ScreenPoint{};
    return phase->GateScreenPoint(atDestination ? link.toGate : link.fromGate, atDestination,
                                  view.scale, view.viewX, view.viewY);
}

bool ObjectStore::PhaseNameTaken(std::int32_t id, const std::string& name) const {
    return NameTaken<Phase>(id, name);
}

bool ObjectStore::CaseNameTaken(std::int32_t id, const std::string& name) const {
    return NameTaken<Case>(id, name);
}

bool ObjectStore::SwitchNameTaken(std::int32_t id, const std::string& name) const {
    return NameTaken<Switch>(id, name);
}

bool ObjectStore::HasPhaseAction(const Phase& phase, const std::string& actionName,
                                 const std::string& objectName) const {
    if (actionName == "Script")
        return true;
    return std::any_of(phase.actionIds.begin(), phase.actionIds.end(), [&](std::int32_t id) {
        const Action* action = As<Action>(FindObject(id));
        return action != nullptr && action->name == actionName && action->objectName == objectName;
    });
}

template <typename T> T* ObjectStore::Create() {
    T* object = static_cast<T*>(Restore(std::make_unique<T>(nextId)));
    ++nextId;
    return object;
}

// Building copies the file's name over this default; a user's creation
// command gives its own.
template <typename T> T* ObjectStore::CreateNamed(const char* prefix) {
    T* object = Create<T>();
    object->name = prefix + std::to_string(object->id);
    return object;
}

Phase* ObjectStore::NewPhase() {
    return CreateNamed<Phase>("phase_");
}

Case* ObjectStore::NewCase() {
    return CreateNamed<Case>("case_");
}

Switch* ObjectStore::NewSwitch() {
    return CreateNamed<Switch>("switch_");
}

Check* ObjectStore::NewCheck() {
    return Create<Check>();
}
Action* ObjectStore::NewAction() {
    return Create<Action>();
}
Unlinker* ObjectStore::NewUnlinker() {
    return Create<Unlinker>();
}

EditorObject* ObjectStore::Restore(std::unique_ptr<EditorObject> object) {
    EditorObject* entered = object.get();
    objectIndex[entered->id] = entered;
    objects.push_back(std::move(object));
    return entered;
}

void ObjectStore::RemoveObject(EditorObject* object) {
    if (object == nullptr)
        return;
    // Searched from the end: what is removed alone is mostly what was just
    // made, such as a phase that a template gave no blocks.
    const auto last = std::find_if(objects.rbegin(), objects.rend(),
                                   [&](const auto& owned) { return owned.get() == object; });
    if (last == objects.rend())
        return;
    const auto found = std::prev(last.base());
    const auto indexed = objectIndex.find(object->id);
    if (indexed != objectIndex.end() && indexed->second == object)
        objectIndex.erase(indexed);
    ForgetObject(object);
    objects.erase(found);
}

void ObjectStore::RemoveObjects(const std::vector<EditorObject*>& doomed) {
    std::unordered_set<const EditorObject*> gone(doomed.begin(), doomed.end());
    gone.erase(nullptr);
    // Leaving the selection all at once measures what stays only once.
    selection.RemoveAll(gone);
    for (auto& owned : objects) {
        EditorObject* object = owned.get();
        if (gone.count(object) == 0)
            continue;
        const auto indexed = objectIndex.find(object->id);
        if (indexed != objectIndex.end() && indexed->second == object)
            objectIndex.erase(indexed);
        ForgetObject(object);
        owned.reset();
    }
    objects.erase(std::remove(objects.begin(), objects.end(), nullptr), objects.end());
}

void ObjectStore::ForgetObject(const EditorObject* object) {
    // The selection must never hold a destroyed object, whoever destroys it:
    // an undo, a redo or a removal.
    if (selection.Contains(object)) {
        selection.Remove(object);
        selection.Recalculate();
    }
}

void ObjectStore::RemoveLink(const Link& link) {
    const auto found = std::find(links.begin(), links.end(), link);
    if (found != links.end())
        links.erase(found);
}

void ObjectStore::RemoveLinks(const std::vector<Link>& doomed) {
    // Removing the first equal link once for each of k equal ones removes the
    // first k of them.
    using Key = std::tuple<bool, std::int32_t, std::string, std::int32_t, std::string>;
    const auto keyOf = [](const Link& link) {
        return Key{link.isObjectLink, link.fromPhaseId, link.fromGate, link.toPhaseId, link.toGate};
    };
    std::map<Key, std::size_t> remaining;
    for (const Link& link : doomed)
        ++remaining[keyOf(link)];
    links.erase(std::remove_if(links.begin(), links.end(),
                               [&](const Link& link) {
                                   const auto found = remaining.find(keyOf(link));
                                   if (found == remaining.end() || found->second == 0)
                                       return false;
                                   --found->second;
                                   return true;
                               }),
                links.end());
}

void ObjectStore::RefreshGateMarks() {
    for (const auto& object : objects) {
        if (Phase* phase = As<Phase>(object.get())) {
            for (GateSlot& gate : phase->inputs)
                gate.openMark = true;
            for (GateSlot& gate : phase->outputs)
                gate.openMark = true;
        }
    }
    for (const Link& link : links) {
        if (Phase* from = FindPhase(link.fromPhaseId))
            from->MarkGateUsed(link.fromGate, false);
        if (Phase* to = FindPhase(link.toPhaseId))
            to->MarkGateUsed(link.toGate, true);
    }
}

void ObjectStore::ClearObjects() {
    selection.Clear();
    nextId = 1;
    objects.clear();
    links.clear();
    objectIndex.clear();
}

} // namespace lw
