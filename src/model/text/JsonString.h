#pragma once

#include <string>

namespace lw {

// A text as a JSON string, quotes included. Bytes that are no UTF-8 are
// taken as Latin-1, so that any template gives valid JSON.
std::string JsonString(const std::string& text);

} // namespace lw
