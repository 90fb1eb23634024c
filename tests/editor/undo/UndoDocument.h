#pragma once

#include "app/Weaver.h"
#include "support/HandBuilt.h"

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

} // namespace lw::test
