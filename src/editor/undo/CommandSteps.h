#pragma once

#include "objects/IdList.h"
#include "operations/ObjectStore.h"

#include <cstdint>
#include <vector>

namespace lw {

// Steps that several undo commands share. Every lookup by id tolerates an id
// that names nothing or an object of another kind: that step is skipped.

// Enters a new object rebuilt from the snapshot under its old id, at the end
// of `objects`.
template <typename T> T* RestoreObject(ObjectStore& store, const Snapshot<T>& snapshot) {
    return static_cast<T*>(store.Restore(snapshot.Rebuild()));
}

void RemoveObjectById(ObjectStore& store, std::int32_t id);

bool LinkTouches(const Link& link, std::int32_t phaseId);

// The references by which other objects point back at an object: a check or
// an action is listed by its phase, the phases of a case name it by `caseId`,
// the cases of a switch name it by `switchId`. An unlinker has none. Both
// follow the object's own fields as they stand; neither changes the object.
void RestoreBackReferences(ObjectStore& store, const Check& check);
void RestoreBackReferences(ObjectStore& store, const Action& action);
void RestoreBackReferences(ObjectStore& store, const Case& object);
void RestoreBackReferences(ObjectStore& store, const Switch& object);
inline void RestoreBackReferences(ObjectStore&, const Unlinker&) {}

void ClearBackReferences(ObjectStore& store, const Check& check);
void ClearBackReferences(ObjectStore& store, const Action& action);
void ClearBackReferences(ObjectStore& store, const Case& object);
void ClearBackReferences(ObjectStore& store, const Switch& object);
inline void ClearBackReferences(ObjectStore&, const Unlinker&) {}

} // namespace lw
