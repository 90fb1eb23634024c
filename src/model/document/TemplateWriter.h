#pragma once

#include "document/TemplateDesc.h"

#include <ostream>
#include <string>

namespace lw {

// Writes desc as a .mt file: a header and eight commented sections, one line
// per record, every line ending in CR LF. The stream should be binary so that
// the line ends reach the file unchanged. Nothing is flushed or closed.
void WriteTemplateDesc(const TemplateDesc& desc, std::ostream& stream);

// The bytes WriteTemplateDesc would write.
std::string TemplateDescText(const TemplateDesc& desc);

} // namespace lw
