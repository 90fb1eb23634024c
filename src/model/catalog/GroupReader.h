#pragma once

#include "catalog/BlockInfo.h"
#include "diagnostics/Diagnostic.h"

#include <istream>
#include <string>
#include <vector>

namespace lw {

// The words of one line of a .Group file. Quoted and "[...]" texts are one
// word each without their delimiters; a plain word is a run of letters,
// digits and _ - + . { } |. Everything else only separates words.
std::vector<std::string> SplitGroupLine(const std::string& line);

// What reading a block file tells, when asked, about what it skipped in the
// sections it reads.
struct GroupReadReport {
    std::string file;
    Diagnostics diagnostics;
};

// Reads the gates and dynamic objects of a .Group file into `info`, which the
// caller passes fresh: nothing is cleared. The rest of the format is skipped.
void ReadGroupStream(BlockInfo& info, std::istream& stream, GroupReadReport* report = nullptr);

} // namespace lw
