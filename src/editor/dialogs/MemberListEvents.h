#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/ListField.h"

namespace lw {

// The Add and Remove buttons of the case and switch dialogs, which move
// names between the list of members and the combo of candidates.

// Adds the combo's text, typed or chosen, as a member and takes every
// candidate of that very text out of the combo; an empty text does nothing.
void AddCandidateToMembers(ComboField& candidateCombo, ListField& memberList);

// Moves every selected member back among the candidates.
void ReturnSelectedMembers(ListField& memberList, ComboField& candidateCombo);

} // namespace lw
