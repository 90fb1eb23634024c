#pragma once

#include "app/Weaver.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw::test {

using Ids = std::vector<std::int32_t>;

// The ids of `objects` in list order: restored objects go to the end.
Ids ObjectOrder(const Weaver& weaver);

// The document as the commands see it: one line per object sorted by id,
// with its position, references and gate marks, then the links in order.
// Documents that differ only in the order of `objects` read alike; an object
// the index does not find is marked.
std::string Describe(const Weaver& weaver);

// A phase with one input gate "in" and one output gate "out".
Phase* AddPhase(Weaver& weaver);
// A check or an action entered in its phase, as their creators leave them.
Check* AddCheck(Weaver& weaver, Phase& phase, std::int32_t type);
Action* AddAction(Weaver& weaver, Phase& phase, const std::string& objectName);
Link LinkBetween(const Phase& from, const Phase& to);

} // namespace lw::test
