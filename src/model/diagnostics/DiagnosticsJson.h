#pragma once

#include "diagnostics/Diagnostic.h"

#include <string>
#include <vector>

namespace lw {

// One template's result as a JSON object: its file, the messages the editor
// would show, and every diagnostic with its line, severity, code, message
// and object.
std::string TemplateResultJson(const std::string& file, const std::vector<std::string>& messages,
                               const Diagnostics& diagnostics);

} // namespace lw
