#pragma once

#include "diff/DocumentDiff.h"

#include <string>

namespace lw {

// The differences as a reader goes through them: each phase, case and
// switch that differs with what differs about it, then the checks, actions
// and unlinkers of a phase under it, then the links. Lines end with "\n".
std::string DiffText(const DocumentDiff& diff);

// The same as one JSON object: {"same": ..., "objects": [...], "links":
// {"added": [...], "removed": [...]}}.
std::string DiffJson(const DocumentDiff& diff);

} // namespace lw
