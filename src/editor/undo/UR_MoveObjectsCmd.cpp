#include "undo/UR_MoveObjectsCmd.h"

#include "operations/ObjectStore.h"

namespace lw {

UR_MoveObjectsCmd::UR_MoveObjectsCmd(ObjectStore* editor, std::int32_t deltaX, std::int32_t deltaY,
                                     const std::vector<EditorObject*>& moved)
    : UR_Command(editor), deltaX(deltaX), deltaY(deltaY) {
    for (const EditorObject* object : moved)
        objectIds.push_back(object->id);
}

void UR_MoveObjectsCmd::Undo() {
    MoveBy(-deltaX, -deltaY);
}

void UR_MoveObjectsCmd::Redo() {
    MoveBy(deltaX, deltaY);
}

void UR_MoveObjectsCmd::MoveBy(std::int32_t dx, std::int32_t dy) {
    for (std::int32_t id : objectIds) {
        if (EditorObject* object = editor->FindObject(id)) {
            object->posX += dx;
            object->posY += dy;
        }
    }
}

} // namespace lw
