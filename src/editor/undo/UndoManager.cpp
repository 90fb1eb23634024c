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
    if (!command) {
        // A change was made that no command can take back.
        MarkChangedForGood();
        return;
    }
    // The saved state on the redo branch is lost with it.
    if (savedState_ && *savedState_ > StateNumber())
        savedState_.reset();
    ClearRedoStack();
    undoStack.push_back(std::move(command));
    while (undoStack.size() > kUndoLimit) {
        undoStack.pop_front();
        ++dropped_;
    }
    UpdateChanged();
}

void UndoManager::UpdateChanged() {
    changed = !savedState_ || *savedState_ != StateNumber();
    if (editor != nullptr)
        editor->RefreshTitle();
}

void UndoManager::MarkSaved() {
    savedState_ = StateNumber();
    changed = false;
}

void UndoManager::MarkChangedForGood() {
    savedState_.reset();
    UpdateChanged();
}

namespace {

// Takes the newest command of one stack back or makes it again, and moves it
// to the other. Either way the document now differs from the saved file.
template <typename Step>
bool MoveNewest(std::deque<std::unique_ptr<UR_Command>>& from,
                std::deque<std::unique_ptr<UR_Command>>& to, Step step) {
    if (from.empty())
        return false;
    step(*from.back());
    to.push_back(std::move(from.back()));
    from.pop_back();
    return true;
}

} // namespace

void UndoManager::UndoNewest() {
    if (MoveNewest(undoStack, redoStack, [](UR_Command& command) { command.Undo(); }))
        UpdateChanged();
}

void UndoManager::RedoNewest() {
    // The limit applies to pushes only: what was undone may all come back.
    if (MoveNewest(redoStack, undoStack, [](UR_Command& command) { command.Redo(); }))
        UpdateChanged();
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
    dropped_ = 0;
    MarkSaved();
}

} // namespace lw
