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
#include <unordered_map>
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
    UR_DeleteObjectsCmd(ObjectStore* editor, ObjectsGroup& group);

    // Whether the deletion found nothing to take, as when only an action of a
    // block property was selected; such a command is not kept.
    bool TookNothing() const;

    void Undo() override;
    void Redo() override;

private:
    class Deletion;

    void Take(EditorObject& member, const Deletion& group);
    void TakePhase(Phase& phase, const Deletion& group);
    void TakeLinksOf(std::int32_t phaseId, const Deletion& group);
    void CutGeometryLinksTo(PhaseSnapshot& snapshot, const Deletion& group);
    void TakeSwitch(Switch& object, const Deletion& group);
    void TakeCase(Case& object, const Deletion& group);
    void TakeCheck(Check& check, const Deletion& group);
    void TakeAction(Action& action, bool withPhase, const Deletion& group);
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
    // While the command is built: what it is about to remove, which links it
    // has taken by their place in the list, and which taken switches list a
    // case, by the switches' places in `switches`.
    std::vector<EditorObject*> doomed;
    std::vector<bool> linkTaken;
    std::unordered_map<std::int32_t, std::vector<std::size_t>> switchesListing;
};

} // namespace lw
