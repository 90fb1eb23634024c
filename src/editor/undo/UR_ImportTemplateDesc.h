#pragma once

#include "catalog/BlocksContainer.h"
#include "document/TemplateDesc.h"
#include "objects/EditorObject.h"
#include "objects/Link.h"
#include "platform/UserPrompts.h"
#include "undo/UR_Command.h"

#include <cstdint>
#include <vector>

namespace lw {

// One paste or import. Unlike every other command it makes its change
// itself: Run builds the template into the document, renames what clashes
// and centres it on the target. Redo runs it once more from the kept
// description, so the objects come back under new ids, and commands pushed
// after the first run that named the old ids find nothing any more.
class UR_ImportTemplateDesc : public UR_Command {
public:
    // Building reads the blocks from the pool and tells the user of what it
    // cannot build.
    UR_ImportTemplateDesc(ObjectStore* editor, BlocksContainer& blockPool, UserPrompts& prompts,
                          TemplateDesc desc, std::int32_t targetX, std::int32_t targetY);

    // Builds the template centred on the target; with `selectResult` what it
    // made is added to the selection.
    void Run(bool selectResult);
    void Undo() override;
    void Redo() override;

    const TemplateDesc desc;
    // What every run made; ids and links of earlier runs name nothing later.
    std::vector<std::int32_t> importedIds;
    std::vector<Link> importedLinks;
    std::int32_t targetX;
    std::int32_t targetY;

private:
    BlocksContainer& blockPool_;
    UserPrompts& prompts_;
};

} // namespace lw
