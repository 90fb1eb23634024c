#pragma once

#include "diagnostics/Diagnostic.h"

#include <string>
#include <vector>

namespace lw {

// A text as a JSON string, quotes included. Bytes that are no UTF-8 are
// taken as Latin-1, so that any template gives valid JSON.
std::string JsonString(const std::string& text);

// One template's result as a JSON object: its file, the messages the editor
// would show, and every diagnostic with its line, severity, code, message
// and object.
std::string TemplateResultJson(const std::string& file, const std::vector<std::string>& messages,
                               const Diagnostics& diagnostics);

} // namespace lw
