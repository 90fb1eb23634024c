#pragma once

#include "operations/ObjectStore.h"

#include <cstdint>
#include <string>

namespace lw::test {

// Objects made by hand in a document, as the editor's creators leave them.
// A phase without a name keeps the one the document gives it. It has the
// sample's patrol block and its gates "in" and "out": at
// scale 1 a phase at (x, y) covers x..x+199, y..y+149, its input gate stands
// at (x - 150, y + 75) and its output gate at (x + 350, y + 75).
Phase* PhaseAt(ObjectStore& document, const std::string& name = "", int x = 0, int y = 0);
Case* CaseAt(ObjectStore& document, const std::string& name, int x, int y);
// A check or an action entered in its phase.
Check* CheckOf(ObjectStore& document, Phase& phase, std::int32_t type, int x = 0, int y = 0);
Action* ActionOf(ObjectStore& document, Phase& phase, const std::string& objectName,
                 const std::string& name = "");
// A target link from the output "out" to the input "in".
Link LinkBetween(const Phase& from, const Phase& to);

} // namespace lw::test
