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

namespace {

// Takes the newest command of one stack back or makes it again, and moves it
// to the other. Either way the document now differs from the saved file.
template <typename Step>
void MoveNewest(UndoManager& history, std::deque<std::unique_ptr<UR_Command>>& from,
                std::deque<std::unique_ptr<UR_Command>>& to, Step step) {
    if (from.empty())
        return;
    history.changed = true;
    if (history.editor != nullptr)
        history.editor->RefreshTitle();
    step(*from.back());
    to.push_back(std::move(from.back()));
    from.pop_back();
}

} // namespace

void UndoManager::UndoNewest() {
    MoveNewest(*this, undoStack, redoStack, [](UR_Command& command) { command.Undo(); });
}

void UndoManager::RedoNewest() {
    // The limit applies to pushes only: what was undone may all come back.
    MoveNewest(*this, redoStack, undoStack, [](UR_Command& command) { command.Redo(); });
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
