#include "operations/Acceptance.h"

#include <cstdint>

namespace lw {

bool IsAcceptable(const ObjectStore& store, const Phase& phase) {
    return !phase.name.empty() && !store.PhaseNameTaken(phase.id, phase.name) &&
           !phase.blocks.empty();
}

bool IsAcceptable(const ObjectStore& store, const Case& item) {
    return !item.phaseIds.empty() && !item.name.empty() && !store.CaseNameTaken(item.id, item.name);
}

bool IsAcceptable(const ObjectStore& store, const Switch& item) {
    return !item.name.empty() && !store.SwitchNameTaken(item.id, item.name) &&
           !item.caseIds.empty() &&
           std::int64_t{item.number} <= static_cast<std::int64_t>(item.caseIds.size());
}

bool IsAcceptable(const ObjectStore& store, const Unlinker& unlinker) {
    return unlinker.phaseId != 0 && store.FindPhase(unlinker.phaseId) != nullptr &&
           (!unlinker.inputGates.empty() || !unlinker.outputGates.empty());
}

} // namespace lw
