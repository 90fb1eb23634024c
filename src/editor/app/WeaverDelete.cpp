#include "app/Weaver.h"
#include "undo/UR_DeleteObjectsCmd.h"

#include <memory>

namespace lw {

void Weaver::DeleteSelection() {
    if (!selection.members.empty()) {
        auto command = std::make_unique<UR_DeleteObjectsCmd>(this, selection);
        // A selection of nothing deletable is emptied all the same, but
        // leaves nothing to undo.
        if (!command->TookNothing())
            undoManager.Push(std::move(command));
    }
    Repaint();
}

} // namespace lw
