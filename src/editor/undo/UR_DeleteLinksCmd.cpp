#include "undo/UR_DeleteLinksCmd.h"

#include "operations/ObjectStore.h"

namespace lw {

void UR_DeleteLinksCmd::Undo() {
    editor->links.insert(editor->links.end(), links.begin(), links.end());
    editor->RefreshGateMarks();
}

void UR_DeleteLinksCmd::Redo() {
    editor->RemoveLinks(links);
    editor->RefreshGateMarks();
}

} // namespace lw
