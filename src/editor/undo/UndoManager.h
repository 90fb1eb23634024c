#pragma once

#include "undo/UR_Command.h"

#include <deque>
#include <memory>
#include <optional>

namespace lw {

class Weaver;

// The command history: two stacks, newest at the back, and the document's
// changed flag. The history remembers where the document was last saved (or
// read), so that undoing or redoing back to that point clears the flag again
// and leaving it sets it.
class UndoManager {
public:
    static constexpr std::size_t kUndoLimit = 100;

    explicit UndoManager(Weaver* editor) : editor(editor) {}
    virtual ~UndoManager();

    UndoManager(const UndoManager&) = delete;
    UndoManager& operator=(const UndoManager&) = delete;

    // Takes a command whose change has already been made. A null command still
    // marks the document as changed.
    void Push(std::unique_ptr<UR_Command> command);
    // Undoes the newest command and moves it to the redo stack; RedoNewest
    // is the mirror. Nothing happens on an empty stack.
    void UndoNewest();
    void RedoNewest();
    void ClearUndoStack();
    void ClearRedoStack();
    // Forgets the whole history of the document, as a new or newly read one has none.
    void ClearHistory();
    // The document as it stands now is the one in its file.
    void MarkSaved();
    // The document differs from its file in a way no undo or redo leads back from.
    void MarkChangedForGood();

    Weaver* editor;
    bool changed = false;
    std::deque<std::unique_ptr<UR_Command>> undoStack;
    std::deque<std::unique_ptr<UR_Command>> redoStack;

private:
    // How many commands are applied since the history began, counting those
    // the limit has dropped: the number of the document's present state.
    std::size_t StateNumber() const { return dropped_ + undoStack.size(); }
    void UpdateChanged();

    std::size_t dropped_ = 0;
    // The state the file holds; none once that state can no longer be reached.
    std::optional<std::size_t> savedState_ = 0;
};

} // namespace lw
