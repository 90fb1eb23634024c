#include "undo/UR_AddCommands.h"

#include "operations/ObjectStore.h"
#include "undo/CommandSteps.h"

#include <algorithm>

namespace lw {

template <typename T> void UR_AddObjectCmd<T>::Undo() {
    ClearBackReferences(*editor, snapshot.object);
    RemoveObjectById(*editor, snapshot.object.id);
}

template <typename T> void UR_AddObjectCmd<T>::Redo() {
    RestoreObject(*editor, snapshot);
    RestoreBackReferences(*editor, snapshot.object);
}

template class UR_AddObjectCmd<Action>;
template class UR_AddObjectCmd<Check>;
template class UR_AddObjectCmd<Case>;
template class UR_AddObjectCmd<Switch>;
template class UR_AddObjectCmd<Unlinker>;

// No link can touch the phase here: links made after it stand later on the
// stack and have been undone first, so the gate marks need no refresh.
void UR_AddNewPhaseCmd::Undo() {
    RemoveObjectById(*editor, phase.object.id);
    for (const ActionSnapshot& action : actions)
        RemoveObjectById(*editor, action.object.id);
}

void UR_AddNewPhaseCmd::Redo() {
    RestoreObject(*editor, phase);
    for (const ActionSnapshot& action : actions)
        RestoreObject(*editor, action);
}

void UR_AddNewLinkCmd::Undo() {
    std::vector<Link>& links = editor->links;
    const auto found = std::find(links.begin(), links.end(), link);
    if (found == links.end())
        return;
    links.erase(found);
    editor->RefreshGateMarks();
}

void UR_AddNewLinkCmd::Redo() {
    editor->links.push_back(link);
    editor->RefreshGateMarks();
}

} // namespace lw
