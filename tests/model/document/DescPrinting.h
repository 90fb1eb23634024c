#pragma once

// A description that fails a comparison prints as the file it would become.

#include "document/TemplateWriter.h"

#include <ostream>

namespace lw {

inline void PrintTo(const TemplateDesc& desc, std::ostream* os) {
    *os << "\n" << TemplateDescText(desc);
}

} // namespace lw
