#include "undo/UR_DeleteObjectsCmd.h"

#include "app/Weaver.h"
#include "operations/EraseMarked.h"
#include "undo/CommandSteps.h"

#include <algorithm>
#include <set>
#include <unordered_set>

namespace lw {

// Who is being deleted by their own turn. The deletion asks this for nearly
// every object it looks at, so the members are kept as a set rather than
// searched in the selection's list each time.
class UR_DeleteObjectsCmd::Membership {
public:
    Membership(const ObjectStore& store, const ObjectsGroup& group)
        : store(store), members(group.members.begin(), group.members.end()) {
        for (const EditorObject* member : group.members) {
            if (const Unlinker* unlinker = As<Unlinker>(member))
                phasesWithSelectedUnlinker.insert(unlinker->phaseId);
        }
    }

    bool Has(const EditorObject* object) const { return members.count(object) != 0; }
    bool HasId(std::int32_t id) const { return Has(store.FindObject(id)); }
    bool HasUnlinkerOf(std::int32_t phaseId) const {
        return phasesWithSelectedUnlinker.count(phaseId) != 0;
    }

private:
    const ObjectStore& store;
    std::unordered_set<const EditorObject*> members;
    std::set<std::int32_t> phasesWithSelectedUnlinker;
};

namespace {

// Sets the primary or the secondary geometry link of each referrer.
void SetGeometryLinks(ObjectStore& store, const std::vector<std::int32_t>& referrers,
                      std::int32_t Phase::*link, std::int32_t targetId) {
    for (std::int32_t id : referrers) {
        if (Phase* phase = store.FindPhase(id))
            phase->*link = targetId;
    }
}

} // namespace

UR_DeleteObjectsCmd::UR_DeleteObjectsCmd(Weaver* editor, ObjectsGroup& group) : UR_Command(editor) {
    const Membership membership(*editor, group);
    for (EditorObject* member : group.members)
        Take(*member, membership);
    // Nothing is removed before every member has had its turn, so that the
    // membership tests and lookups above all see the document as it was.
    // The selection is emptied first: it ends empty either way, and a large
    // one need not be searched and measured again for every removal.
    group.Clear();
    for (EditorObject* object : doomed)
        editor->RemoveObject(object);
    doomed.clear();
    editor->RefreshGateMarks();
}

bool UR_DeleteObjectsCmd::TookNothing() const {
    return phases.empty() && switches.empty() && cases.empty() && checks.empty() &&
           actions.empty() && unlinkers.empty() && links.empty();
}

void UR_DeleteObjectsCmd::Take(EditorObject& member, const Membership& group) {
    switch (member.GetKind()) {
    case ObjectKind::Phase:
        TakePhase(static_cast<Phase&>(member), group);
        break;
    case ObjectKind::Switch:
        TakeSwitch(static_cast<Switch&>(member), group);
        break;
    case ObjectKind::Case:
        TakeCase(static_cast<Case&>(member), group);
        break;
    case ObjectKind::Check:
        TakeCheck(static_cast<Check&>(member), group);
        break;
    case ObjectKind::Action:
        TakeAction(static_cast<Action&>(member), false, group);
        break;
    case ObjectKind::Unlinker:
        TakeUnlinker(static_cast<Unlinker&>(member));
        break;
    default:
        break;
    }
}

// What belongs to the phase goes with it, except what is selected itself and
// so is taken at its own turn: each object is taken exactly once, whatever
// the order of the selection.
void UR_DeleteObjectsCmd::TakePhase(Phase& phase, const Membership& group) {
    phases.emplace_back(phase);
    doomed.push_back(&phase);
    if (!group.HasUnlinkerOf(phase.id))
        TakeFirstUnlinkerOf(phase.id);
    Case* owner = editor->FindCase(phase.caseId);
    if (owner != nullptr && !group.Has(owner))
        RemoveFirstId(owner->phaseIds, phase.id);
    for (std::int32_t id : phase.checkIds) {
        Check* check = As<Check>(editor->FindObject(id));
        if (check != nullptr && !group.Has(check))
            TakeCheck(*check, group);
    }
    for (std::int32_t id : phase.actionIds) {
        Action* action = As<Action>(editor->FindObject(id));
        // A selected rule action has its own turn; a property action has not,
        // because its own turn refuses it.
        if (action != nullptr && !(action->objectName.empty() && group.Has(action)))
            TakeAction(*action, true, group);
    }
    TakeLinksOf(phase.id);
    CutGeometryLinksTo(phases.back(), group);
}

// A phase has one unlinker; should it have more, the others stay behind.
void UR_DeleteObjectsCmd::TakeFirstUnlinkerOf(std::int32_t phaseId) {
    for (const auto& object : editor->objects) {
        Unlinker* unlinker = As<Unlinker>(object.get());
        if (unlinker != nullptr && unlinker->phaseId == phaseId) {
            TakeUnlinker(*unlinker);
            return;
        }
    }
}

void UR_DeleteObjectsCmd::TakeLinksOf(std::int32_t phaseId) {
    std::vector<Link>& all = editor->links;
    std::vector<bool> taken(all.size(), false);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (LinkTouches(all[i], phaseId)) {
            links.push_back(all[i]);
            taken[i] = true;
        }
    }
    EraseMarked(all, taken);
}

void UR_DeleteObjectsCmd::CutGeometryLinksTo(PhaseSnapshot& snapshot, const Membership& group) {
    const std::int32_t id = snapshot.object.id;
    for (const auto& object : editor->objects) {
        Phase* other = As<Phase>(object.get());
        if (other == nullptr || group.Has(other))
            continue;
        if (other->primaryLinkId == id) {
            other->primaryLinkId = 0;
            snapshot.primaryReferrers.push_back(other->id);
        }
        if (other->secondaryLinkId == id) {
            other->secondaryLinkId = 0;
            snapshot.secondaryReferrers.push_back(other->id);
        }
    }
}

void UR_DeleteObjectsCmd::TakeSwitch(Switch& object, const Membership& group) {
    switches.emplace_back(object);
    doomed.push_back(&object);
    for (std::int32_t id : object.caseIds) {
        Case* member = editor->FindCase(id);
        if (member != nullptr && !group.Has(member))
            member->switchId = 0;
    }
}

void UR_DeleteObjectsCmd::TakeCase(Case& object, const Membership& group) {
    cases.emplace_back(object);
    if (object.switchId != 0) {
        if (Switch* owner = editor->FindSwitch(object.switchId))
            RemoveFirstId(owner->caseIds, object.id);
        // A switch taken earlier must not list the case either: undoing
        // re-enters the case in its switch itself.
        for (SwitchSnapshot& taken : switches)
            RemoveFirstId(taken.object.caseIds, object.id);
    }
    for (std::int32_t id : object.phaseIds) {
        Phase* member = editor->FindPhase(id);
        if (member != nullptr && !group.Has(member))
            member->caseId = 0;
    }
    doomed.push_back(&object);
}

void UR_DeleteObjectsCmd::TakeCheck(Check& check, const Membership& group) {
    checks.emplace_back(check);
    doomed.push_back(&check);
    Phase* owner = editor->FindPhase(check.phaseId);
    if (owner != nullptr && !group.Has(owner))
        owner->RemoveCheckId(check.id);
}

// An action made for a block property can't be deleted by itself, only with
// its phase.
void UR_DeleteObjectsCmd::TakeAction(Action& action, bool withPhase, const Membership& group) {
    if (!withPhase && !action.objectName.empty())
        return;
    actions.emplace_back(action);
    doomed.push_back(&action);
    Phase* owner = editor->FindPhase(action.phaseId);
    if (owner != nullptr && !group.Has(owner))
        owner->RemoveActionId(action.id);
}

void UR_DeleteObjectsCmd::TakeUnlinker(Unlinker& unlinker) {
    unlinkers.emplace_back(unlinker);
    doomed.push_back(&unlinker);
}

void UR_DeleteObjectsCmd::Undo() {
    for (const PhaseSnapshot& snapshot : phases)
        RestorePhase(snapshot);
    // A switch comes back alone: the cases that stayed outside the deletion
    // are listed by it again but keep `switchId` 0. Only a case restored
    // below enters its switch again.
    for (const SwitchSnapshot& snapshot : switches)
        RestoreObject(*editor, snapshot);
    for (const CaseSnapshot& snapshot : cases)
        RestoreCase(snapshot);
    for (const CheckSnapshot& snapshot : checks)
        RestoreBackReferences(*editor, *RestoreObject(*editor, snapshot));
    for (const ActionSnapshot& snapshot : actions)
        RestoreBackReferences(*editor, *RestoreObject(*editor, snapshot));
    for (const UnlinkerSnapshot& snapshot : unlinkers)
        RestoreObject(*editor, snapshot);
    editor->links.insert(editor->links.end(), links.begin(), links.end());
    editor->RefreshGateMarks();
}

void UR_DeleteObjectsCmd::RestorePhase(const PhaseSnapshot& snapshot) {
    const Phase* phase = RestoreObject(*editor, snapshot);
    if (Case* owner = editor->FindCase(phase->caseId))
        AppendIdIfAbsent(owner->phaseIds, phase->id);
    SetGeometryLinks(*editor, snapshot.primaryReferrers, &Phase::primaryLinkId, phase->id);
    SetGeometryLinks(*editor, snapshot.secondaryReferrers, &Phase::secondaryLinkId, phase->id);
}

void UR_DeleteObjectsCmd::RestoreCase(const CaseSnapshot& snapshot) {
    const Case* object = RestoreObject(*editor, snapshot);
    if (Switch* owner = editor->FindSwitch(object->switchId))
        AppendIdIfAbsent(owner->caseIds, object->id);
    RestoreBackReferences(*editor, *object);
}

void UR_DeleteObjectsCmd::Redo() {
    for (const PhaseSnapshot& snapshot : phases)
        RemovePhase(snapshot);
    for (const SwitchSnapshot& snapshot : switches)
        RemoveObjectById(*editor, snapshot.object.id);
    for (const CaseSnapshot& snapshot : cases)
        RemoveCase(snapshot);
    for (const CheckSnapshot& snapshot : checks) {
        RemoveObjectById(*editor, snapshot.object.id);
        ClearBackReferences(*editor, snapshot.object);
    }
    for (const ActionSnapshot& snapshot : actions) {
        RemoveObjectById(*editor, snapshot.object.id);
        ClearBackReferences(*editor, snapshot.object);
    }
    for (const UnlinkerSnapshot& snapshot : unlinkers)
        RemoveObjectById(*editor, snapshot.object.id);
    editor->RefreshGateMarks();
}

void UR_DeleteObjectsCmd::RemovePhase(const PhaseSnapshot& snapshot) {
    const std::int32_t id = snapshot.object.id;
    RemoveObjectById(*editor, id);
    if (Case* owner = editor->FindCase(snapshot.object.caseId))
        RemoveFirstId(owner->phaseIds, id);
    std::vector<Link>& all = editor->links;
    all.erase(std::remove_if(all.begin(), all.end(),
                             [id](const Link& link) { return LinkTouches(link, id); }),
              all.end());
    SetGeometryLinks(*editor, snapshot.primaryReferrers, &Phase::primaryLinkId, 0);
    SetGeometryLinks(*editor, snapshot.secondaryReferrers, &Phase::secondaryLinkId, 0);
}

void UR_DeleteObjectsCmd::RemoveCase(const CaseSnapshot& snapshot) {
    RemoveObjectById(*editor, snapshot.object.id);
    if (Switch* owner = editor->FindSwitch(snapshot.object.switchId))
        RemoveFirstId(owner->caseIds, snapshot.object.id);
    ClearBackReferences(*editor, snapshot.object);
}

} // namespace lw
