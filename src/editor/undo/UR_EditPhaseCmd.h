#pragma once

#include "objects/Check.h"
#include "objects/Phase.h"
#include "undo/UR_Command.h"

#include <optional>
#include <vector>

namespace lw {

// One change of a phase: its property dialog, a link gesture that sets one of
// its geometry links, or the deleting of a picked geometry link. Undo and
// redo write back name, blocks, generationType, allocationType, both
// geometry links, blockProperties, actionIds and geoParams. The gates, the
// colour, the case and the checks stay as they are then, so a new main block
// keeps its new gates and a new colour survives an undo.
class UR_EditPhaseCmd : public UR_Command {
public:
    UR_EditPhaseCmd(ObjectStore* editor, const Phase& phase) : UR_Command(editor), before(phase) {}

    // Called once the change has been made. Losing the primary link takes
    // the checks measured from it along, in the same undo step.
    void Complete(Phase& phase);

    void Undo() override;
    void Redo() override;

private:
    void RemoveChecksMeasuredFromPrimaryLink(Phase& phase);

    PhaseSnapshot before;
    std::optional<PhaseSnapshot> after;
    std::vector<CheckSnapshot> removedChecks;
};

} // namespace lw
