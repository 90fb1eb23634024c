#pragma once

#include "catalog/BlockInfo.h"

#include <istream>
#include <string>
#include <vector>

namespace lw {

// The words of one line of a .Group file. Quoted and "[...]" texts are one
// word each without their delimiters; a plain word is a run of letters,
// digits and _ - + . { } |. Everything else only separates words.
std::vector<std::string> SplitGroupLine(const std::string& line);

// Reads the gates and dynamic objects of a .Group file into `info`, which the
// caller passes fresh: nothing is cleared. The rest of the format is skipped.
void ReadGroupStream(BlockInfo& info, std::istream& stream);

} // namespace lw
