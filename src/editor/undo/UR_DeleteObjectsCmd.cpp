#include "undo/UR_DeleteObjectsCmd.h"

#include "operations/EraseMarked.h"
#include "operations/ObjectStore.h"
#include "undo/CommandSteps.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace lw {

// What the deletion consults while it takes its members: who is deleted by
// their own turn, and who refers to whom in the document as it stood before.
// Nothing is removed until every member has had its turn, so these indexes,
// built once, give what a walk over the store or the links in list order
// would give at each turn, and a large deletion costs no such walk per phase.
class UR_DeleteObjectsCmd::Deletion {
public:
    Deletion(const ObjectStore& store, const ObjectsGroup& group)
        : store(store), members(group.members.begin(), group.members.end()) {
        for (const EditorObject* member : group.members) {
            if (const Unlinker* unlinker = As<Unlinker>(member))
                phasesWithSelectedUnlinker.insert(unlinker->phaseId);
        }
        IndexObjects();
        IndexLinks();
    }

    bool Has(const EditorObject* object) const { return members.count(object) != 0; }
    bool HasUnlinkerOf(std::int32_t phaseId) const {
        return phasesWithSelectedUnlinker.count(phaseId) != 0;
    }
    // The phase's first unlinker in list order, or null.
    Unlinker* FirstUnlinkerOf(std::int32_t phaseId) const {
        const auto found = firstUnlinker.find(phaseId);
        return found == firstUnlinker.end() ? nullptr : found->second;
    }
    // The indexes of the links from or to the phase, in list order.
    const std::vector<std::size_t>& LinksOf(std::int32_t phaseId) const {
        static const std::vector<std::size_t> none;
        const auto found = linksByPhase.find(phaseId);
        return found == linksByPhase.end() ? none : found->second;
    }
    // The phases whose primary or secondary geometry link leads to the phase,
    // in list order.
    const std::vector<Phase*>& Referrers(std::int32_t phaseId, bool primary) const {
        static const std::vector<Phase*> none;
        const auto& index = primary ? primaryReferrers : secondaryReferrers;
        const auto found = index.find(phaseId);
        return found == index.end() ? none : found->second;
    }

private:
    void IndexObjects() {
        for (const auto& object : store.objects) {
            if (Unlinker* unlinker = As<Unlinker>(object.get()))
                firstUnlinker.emplace(unlinker->phaseId, unlinker);
            if (Phase* phase = As<Phase>(object.get())) {
                primaryReferrers[phase->primaryLinkId].push_back(phase);
                secondaryReferrers[phase->secondaryLinkId].push_back(phase);
            }
        }
    }

    void IndexLinks() {
        for (std::size_t i = 0; i < store.links.size(); ++i) {
            const Link& link = store.links[i];
            linksByPhase[link.fromPhaseId].push_back(i);
            if (link.toPhaseId != link.fromPhaseId)
                linksByPhase[link.toPhaseId].push_back(i);
        }
    }

    const ObjectStore& store;
    std::unordered_set<const EditorObject*> members;
    std::set<std::int32_t> phasesWithSelectedUnlinker;
    std::unordered_map<std::int32_t, Unlinker*> firstUnlinker;
    std::unordered_map<std::int32_t, std::vector<std::size_t>> linksByPhase;
    std::unordered_map<std::int32_t, std::vector<Phase*>> primaryReferrers;
    std::unordered_map<std::int32_t, std::vector<Phase*>> secondaryReferrers;
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

UR_DeleteObjectsCmd::UR_DeleteObjectsCmd(ObjectStore* editor, ObjectsGroup& group)
    : UR_Command(editor) {
    const Deletion deletion(*editor, group);
    linkTaken.assign(editor->links.size(), false);
    for (EditorObject* member : group.members)
        Take(*member, deletion);
    // Nothing is removed before every member has had its turn, so that the
    // membership tests and lookups above all see the document as it was.
    group.Clear();
    editor->RemoveObjects(doomed);
    doomed.clear();
    EraseMarked(editor->links, linkTaken);
    linkTaken.clear();
    switchesListing.clear();
    editor->RefreshGateMarks();
}

bool UR_DeleteObjectsCmd::TookNothing() const {
    return phases.empty() && switches.empty() && cases.empty() && checks.empty() &&
           actions.empty() && unlinkers.empty() && links.empty();
}

void UR_DeleteObjectsCmd::Take(EditorObject& member, const Deletion& group) {
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
void UR_DeleteObjectsCmd::TakePhase(Phase& phase, const Deletion& group) {
    phases.emplace_back(phase);
    doomed.push_back(&phase);
    if (!group.HasUnlinkerOf(phase.id)) {
        if (Unlinker* unlinker = group.FirstUnlinkerOf(phase.id))
            TakeUnlinker(*unlinker);
    }
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
    TakeLinksOf(phase.id, group);
    CutGeometryLinksTo(phases.back(), group);
}

// A phase has one unlinker; should it have more, only the first goes with
// it. The links go in list order, each link once.
void UR_DeleteObjectsCmd::TakeLinksOf(std::int32_t phaseId, const Deletion& group) {
    for (std::size_t i : group.LinksOf(phaseId)) {
        if (!linkTaken[i]) {
            links.push_back(editor->links[i]);
            linkTaken[i] = true;
        }
    }
}

void UR_DeleteObjectsCmd::CutGeometryLinksTo(PhaseSnapshot& snapshot, const Deletion& group) {
    const std::int32_t id = snapshot.object.id;
    for (Phase* other : group.Referrers(id, true)) {
        if (!group.Has(other) && other->primaryLinkId == id) {
            other->primaryLinkId = 0;
            snapshot.primaryReferrers.push_back(other->id);
        }
    }
    for (Phase* other : group.Referrers(id, false)) {
        if (!group.Has(other) && other->secondaryLinkId == id) {
            other->secondaryLinkId = 0;
            snapshot.secondaryReferrers.push_back(other->id);
        }
    }
}

void UR_DeleteObjectsCmd::TakeSwitch(Switch& object, const Deletion& group) {
    const std::size_t taken = switches.size();
    switches.emplace_back(object);
    doomed.push_back(&object);
    for (std::int32_t id : object.caseIds) {
        std::vector<std::size_t>& listing = switchesListing[id];
        if (listing.empty() || listing.back() != taken)
            listing.push_back(taken);
        Case* member = editor->FindCase(id);
        if (member != nullptr && !group.Has(member))
            member->switchId = 0;
    }
}

void UR_DeleteObjectsCmd::TakeCase(Case& object, const Deletion& group) {
    cases.emplace_back(object);
    if (object.switchId != 0) {
        if (Switch* owner = editor->FindSwitch(object.switchId))
            RemoveFirstId(owner->caseIds, object.id);
        // A switch taken earlier must not list the case either: undoing
        // re-enters the case in its switch itself.
        for (std::size_t taken : switchesListing[object.id])
            RemoveFirstId(switches[taken].object.caseIds, object.id);
    }
    for (std::int32_t id : object.phaseIds) {
        Phase* member = editor->FindPhase(id);
        if (member != nullptr && !group.Has(member))
            member->caseId = 0;
    }
    doomed.push_back(&object);
}

void UR_DeleteObjectsCmd::TakeCheck(Check& check, const Deletion& group) {
    checks.emplace_back(check);
    doomed.push_back(&check);
    Phase* owner = editor->FindPhase(check.phaseId);
    if (owner != nullptr && !group.Has(owner))
        owner->RemoveCheckId(check.id);
}

// An action made for a block property can't be deleted by itself, only with
// its phase.
void UR_DeleteObjectsCmd::TakeAction(Action& action, bool withPhase, const Deletion& group) {
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

// The objects go in one removal at the end. Until then a lookup may still
// find an object that a removal one at a time would already have taken; what
// the steps change on such an object goes with it.
void UR_DeleteObjectsCmd::Redo() {
    std::vector<EditorObject*> gone;
    const auto take = [&](std::int32_t id) { gone.push_back(editor->FindObject(id)); };
    std::unordered_set<std::int32_t> phaseIds;
    for (const PhaseSnapshot& snapshot : phases) {
        take(snapshot.object.id);
        phaseIds.insert(snapshot.object.id);
        RemovePhase(snapshot);
    }
    for (const SwitchSnapshot& snapshot : switches)
        take(snapshot.object.id);
    for (const CaseSnapshot& snapshot : cases) {
        take(snapshot.object.id);
        RemoveCase(snapshot);
    }
    for (const CheckSnapshot& snapshot : checks) {
        take(snapshot.object.id);
        ClearBackReferences(*editor, snapshot.object);
    }
    for (const ActionSnapshot& snapshot : actions) {
        take(snapshot.object.id);
        ClearBackReferences(*editor, snapshot.object);
    }
    for (const UnlinkerSnapshot& snapshot : unlinkers)
        take(snapshot.object.id);
    editor->RemoveObjects(gone);
    std::vector<Link>& all = editor->links;
    all.erase(std::remove_if(all.begin(), all.end(),
                             [&](const Link& link) {
                                 return phaseIds.count(link.fromPhaseId) != 0 ||
                                        phaseIds.count(link.toPhaseId) != 0;
                             }),
              all.end());
    editor->RefreshGateMarks();
}

void UR_DeleteObjectsCmd::RemovePhase(const PhaseSnapshot& snapshot) {
    const std::int32_t id = snapshot.object.id;
    if (Case* owner = editor->FindCase(snapshot.object.caseId))
        RemoveFirstId(owner->phaseIds, id);
    SetGeometryLinks(*editor, snapshot.primaryReferrers, &Phase::primaryLinkId, 0);
    SetGeometryLinks(*editor, snapshot.secondaryReferrers, &Phase::secondaryLinkId, 0);
}

void UR_DeleteObjectsCmd::RemoveCase(const CaseSnapshot& snapshot) {
    if (Switch* owner = editor->FindSwitch(snapshot.object.switchId))
        RemoveFirstId(owner->caseIds, snapshot.object.id);
    ClearBackReferences(*editor, snapshot.object);
}

} // namespace lw
