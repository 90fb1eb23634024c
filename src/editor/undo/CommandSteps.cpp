#include "undo/CommandSteps.h"

#include <algorithm>

namespace lw {

namespace {

void SetCaseOfPhases(ObjectStore& store, const std::vector<std::int32_t>& phaseIds,
                     std::int32_t caseId) {
    for (std::int32_t id : phaseIds) {
        if (Phase* phase = store.FindPhase(id))
            phase->caseId = caseId;
    }
}

void SetSwitchOfCases(ObjectStore& store, const std::vector<std::int32_t>& caseIds,
                      std::int32_t switchId) {
    for (std::int32_t id : caseIds) {
        if (Case* object = store.FindCase(id))
            object->switchId = switchId;
    }
}

} // namespace

void RemoveObjectById(ObjectStore& store, std::int32_t id) {
    store.RemoveObject(store.FindObject(id));
}

bool LinkTouches(const Link& link, std::int32_t phaseId) {
    return link.fromPhaseId == phaseId || link.toPhaseId == phaseId;
}

void RestoreBackReferences(ObjectStore& store, const Check& check) {
    if (Phase* phase = store.FindPhase(check.phaseId))
        phase->AddCheckId(check.id);
}

void RestoreBackReferences(ObjectStore& store, const Action& action) {
    if (Phase* phase = store.FindPhase(action.phaseId))
        phase->AddActionId(action.id);
}

void RestoreBackReferences(ObjectStore& store, const Case& object) {
    SetCaseOfPhases(store, object.phaseIds, object.id);
}

void RestoreBackReferences(ObjectStore& store, const Switch& object) {
    SetSwitchOfCases(store, object.caseIds, object.id);
}

void ClearBackReferences(ObjectStore& store, const Check& check) {
    if (Phase* phase = store.FindPhase(check.phaseId))
        phase->RemoveCheckId(check.id);
}

void ClearBackReferences(ObjectStore& store, const Action& action) {
    if (Phase* phase = store.FindPhase(action.phaseId))
        phase->RemoveActionId(action.id);
}

void ClearBackReferences(ObjectStore& store, const Case& object) {
    SetCaseOfPhases(store, object.phaseIds, 0);
}

void ClearBackReferences(ObjectStore& store, const Switch& object) {
    SetSwitchOfCases(store, object.caseIds, 0);
}

} // namespace lw
