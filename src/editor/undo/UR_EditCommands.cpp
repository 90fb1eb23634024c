#include "undo/UR_EditCommands.h"

#include "operations/ObjectStore.h"
#include "undo/CommandSteps.h"

namespace lw {

namespace {

// Each writes the edited fields of `from` into the live object of its id; a
// missing object or one of another kind ends it.

void WriteEditedFields(ObjectStore& store, const Action& from) {
    Action* action = As<Action>(store.FindObject(from.id));
    if (action == nullptr)
        return;
    action->name = from.name;
    action->rules = from.rules;
}

void WriteEditedFields(ObjectStore& store, const Check& from) {
    if (Check* check = As<Check>(store.FindObject(from.id)))
        check->params = from.params;
}

void WriteEditedFields(ObjectStore& store, const Unlinker& from) {
    Unlinker* unlinker = As<Unlinker>(store.FindObject(from.id));
    if (unlinker == nullptr)
        return;
    unlinker->inputGates = from.inputGates;
    unlinker->outputGates = from.outputGates;
}

// The old members let go of the case before the new ones take it, so that a
// phase in both lists ends up in the case.
void WriteEditedFields(ObjectStore& store, const Case& from) {
    Case* object = store.FindCase(from.id);
    if (object == nullptr)
        return;
    object->name = from.name;
    ClearBackReferences(store, *object);
    object->phaseIds = from.phaseIds;
    RestoreBackReferences(store, *object);
}

void WriteEditedFields(ObjectStore& store, const Switch& from) {
    Switch* object = store.FindSwitch(from.id);
    if (object == nullptr)
        return;
    object->name = from.name;
    object->number = from.number;
    object->preliminaryCheck = from.preliminaryCheck;
    object->planeType = from.planeType;
    ClearBackReferences(store, *object);
    object->caseIds = from.caseIds;
    RestoreBackReferences(store, *object);
}

} // namespace

template <typename T> void UR_EditObjectCmd<T>::Undo() {
    WriteEditedFields(*editor, before.object);
}

template <typename T> void UR_EditObjectCmd<T>::Redo() {
    if (after)
        WriteEditedFields(*editor, after->object);
}

template class UR_EditObjectCmd<Action>;
template class UR_EditObjectCmd<Check>;
template class UR_EditObjectCmd<Unlinker>;
template class UR_EditObjectCmd<Case>;
template class UR_EditObjectCmd<Switch>;

} // namespace lw
