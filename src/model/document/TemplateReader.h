#pragma once

#include "document/TemplateDesc.h"
#include "document/TemplateReadReport.h"

#include <cstddef>
#include <istream>

namespace lw {

// Appends the records of a whole .mt stream to desc, which is not cleared.
// Lines may end in LF or CR LF. Nothing is reported: a line that does not fit
// its tag's grammar is dropped or gives a partial record, and judging the
// content is left to whoever builds objects from the description. Answers how
// many lines held words, whether they made records or not, so that a file
// of another kind can be told from an empty template.
// With a report, every line dropped or read only in part is told there with
// its line number, and the line of each record is kept.
std::size_t ReadTemplateDesc(TemplateDesc& desc, std::istream& stream,
                             TemplateReadReport* report = nullptr);

} // namespace lw
