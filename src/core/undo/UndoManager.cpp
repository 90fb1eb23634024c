#include "undo/UndoManager.h"

#include "app/Weaver.h"

namespace lw {

namespace {

// Commands go newest first, so that a command never outlives one made after it.
void ClearNewestFirst(std::deque<std::unique_ptr<UR_Command>>& stack) {
    while (!stack.empty())
        stack.pop_back();
}

} // namespace

UndoManager::~UndoManager() {
    ClearUndoStack();
    ClearRedoStack();
}

void UndoManager::Push(std::unique_ptr<UR_Command> command) {
    changed = true;
    if (editor != nullptr)
        editor->RefreshTitle();
    if (!command)
        return;
    ClearRedoStack();
    undoStack.push_back(std::move(command));
    while (undoStack.size() > kUndoLimit)
        undoStack.pop_front();
}

void UndoManager::ClearUndoStack() {
    ClearNewestFirst(undoStack);
}

void UndoManager::ClearRedoStack() {
    ClearNewestFirst(redoStack);
}

void UndoManager::ClearHistory() {
    ClearUndoStack();
    ClearRedoStack();
    changed = false;
}

} // namespace lw
