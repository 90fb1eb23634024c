#pragma once

#include "document/TemplateDesc.h"

#include <string>

namespace lw {

// Keywords of the generation and check types as the template files hold them.
// Reading never fails: an unknown keyword falls back to a harmless type, and
// writing a value outside the table falls back to that type's keyword.
GenerationType generationTypeFromKeyword(const std::string& keyword);
std::string generationTypeToKeyword(GenerationType type);

CheckType checkTypeFromKeyword(const std::string& keyword);
std::string checkTypeToKeyword(CheckType type);

// The name a generation type has in the phase editor.
std::string generationTypeLabel(GenerationType type);

} // namespace lw
