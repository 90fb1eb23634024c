#pragma once

#include "undo/UR_Command.h"

#include <deque>
#include <memory>

namespace lw {

class Weaver;

// The command history: two stacks, newest at the back, and the document's
// changed flag.
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

    Weaver* editor;
    bool changed = false;
    std::deque<std::unique_ptr<UR_Command>> undoStack;
    std::deque<std::unique_ptr<UR_Command>> redoStack;
};

} // namespace lw
