#pragma once

#include "objects/EditorObject.h"
#include "undo/UR_Command.h"

#include <cstdint>
#include <vector>

namespace lw {

// One finished drag of the selection: the total move and the ids of what
// moved. The selection's rectangle is left for the canvas to recalculate.
class UR_MoveObjectsCmd : public UR_Command {
public:
    UR_MoveObjectsCmd(ObjectStore* editor, std::int32_t deltaX, std::int32_t deltaY,
                      const std::vector<EditorObject*>& moved);
    void Undo() override;
    void Redo() override;

private:
    void MoveBy(std::int32_t dx, std::int32_t dy);

    std::int32_t deltaX;
    std::int32_t deltaY;
    std::vector<std::int32_t> objectIds;
};

} // namespace lw
