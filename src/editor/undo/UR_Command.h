#pragma once

namespace lw {

class ObjectStore;

// One undoable change. The change itself is made by the gesture or dialog
// that builds the command; the command only knows how to take it back and
// make it again, from value snapshots and object ids, in the document
// (`editor`, the store that Weaver is).
class UR_Command {
public:
    explicit UR_Command(ObjectStore* editor) : editor(editor) {}
    virtual ~UR_Command() = default;
    virtual void Undo() = 0;
    virtual void Redo() = 0;

protected:
    ObjectStore* editor;
};

} // namespace lw
