#pragma once

#include "objects/Link.h"
#include "undo/UR_Command.h"

#include <vector>

namespace lw {

// Links deleted together. The caller removes them itself, just after it has
// pushed the command.
class UR_DeleteLinksCmd : public UR_Command {
public:
    UR_DeleteLinksCmd(ObjectStore* editor, const std::vector<Link>& links)
        : UR_Command(editor), links(links) {}
    void Undo() override;
    void Redo() override;

private:
    std::vector<Link> links;
};

} // namespace lw
