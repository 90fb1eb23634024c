#pragma once

#include "objects/Phase.h"
#include "operations/ObjectStore.h"

namespace lw {

// Moves a new check, action or unlinker of `phase` to the spot nearest to
// where it stands whose shape overlaps neither the phase's box, nor a gate
// label of the phase, nor another object of the phase, so that it cannot
// land hidden under something; it stays where it is when that spot is free.
void MoveToFreeSpot(const ObjectStore& store, const Phase& phase, EditorObject& object);

} // namespace lw
