#include "app/Weaver.h"

namespace lw {

// The canvas repaints even when there was nothing to take back.
void Weaver::Undo() {
    undoManager.UndoNewest();
    Repaint();
}

void Weaver::Redo() {
    undoManager.RedoNewest();
    Repaint();
}

} // namespace lw
