#pragma once

#include "diagnostics/Diagnostic.h"

#include <string>
#include <vector>

namespace lw {

// The line each record of a TemplateDesc was read from, list by list, in the
// order of the lists.
struct RecordSourceLines {
    std::vector<int> blockSets;
    std::vector<int> phases;
    std::vector<int> cases;
    std::vector<int> switches;
    std::vector<int> links;
    std::vector<int> checks;
    std::vector<int> actions;
    std::vector<int> unlinks;
    std::vector<int> guiHelpers;
};

// What reading a template tells beside the records, when it is asked: every
// line it dropped or read only in part, and where each record came from.
struct TemplateReadReport {
    // The file as the diagnostics name it.
    std::string file;
    Diagnostics diagnostics;
    RecordSourceLines lines;
};

} // namespace lw
