#pragma once

#include "objects/Action.h"
#include "objects/Case.h"
#include "objects/Check.h"
#include "objects/Link.h"
#include "objects/ObjectsGroup.h"
#include "objects/Phase.h"
#include "objects/Switch.h"
#include "objects/Unlinker.h"
#include "undo/UR_Command.h"

#include <cstdint>
#include <vector>

namespace lw {

// A selection deleted with everything that goes with it: a phase takes its
// unlinker, checks, actions and links along, and whatever outside the
// selection referred to a deleted object loses that reference. The command
// keeps a copy of all it took and of every reference it cut, and restores
// them in a fixed order: phases first, since everything refers to them, and
// switches before cases, so that a case can enter its switch again.
class UR_DeleteObjectsCmd : public UR_Command {
public:
    // Makes the whole deletion, and leaves the group empty.
    UR_DeleteObjectsCmd(Weaver* editor, ObjectsGroup& group);

    // Whether the deletion found nothing to take, as when only an action of a
    // block property was selected; such a command is not kept.
    bool TookNothing() const;

    void Undo() override;
    void Redo() override;

private:
    class Membership;

    void Take(EditorObject& member, const Membership& group);
    void TakePhase(Phase& phase, const Membership& group);
    void TakeFirstUnlinkerOf(std::int32_t phaseId);
    void TakeLinksOf(std::int32_t phaseId);
    void CutGeometryLinksTo(PhaseSnapshot& snapshot, const Membership& group);
    void TakeSwitch(Switch& object, const Membership& group);
    void TakeCase(Case& object, const Membership& group);
    void TakeCheck(Check& check, const Membership& group);
    void TakeAction(Action& action, bool withPhase, const Membership& group);
    void TakeUnlinker(Unlinker& unlinker);

    void RestorePhase(const PhaseSnapshot& snapshot);
    void RestoreCase(const CaseSnapshot& snapshot);
    void RemovePhase(const PhaseSnapshot& snapshot);
    void RemoveCase(const CaseSnapshot& snapshot);

    std::vector<PhaseSnapshot> phases;
    std::vector<SwitchSnapshot> switches;
    std::vector<CaseSnapshot> cases;
    std::vector<CheckSnapshot> checks;
    std::vector<ActionSnapshot> actions;
    std::vector<UnlinkerSnapshot> unlinkers;
    // The links that ended on a deleted phase.
    std::vector<Link> links;
    // What the deletion is about to remove; empty once the command is built.
    std::vector<EditorObject*> doomed;
};

} // namespace lw
