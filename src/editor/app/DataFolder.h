#pragma once

#include <string>

namespace lw {

// The data folder of an installation lies two levels above the executable,
// then "data": <root>/bin/<config>/program finds <root>/data, and so does a
// build's <checkout>/build/bin/program find <checkout>/data. The result is
// normalised ("." and ".." folded away) with "/" separators, in its real case.
std::string DataFolderForExecutable(const std::string& executablePath);

} // namespace lw
