#pragma once

#include "platform/MemoryFileSystem.h"

#include <string>

namespace lw::fuzz {

// Where the harnesses keep their data folder in memory.
inline constexpr const char* kDataFolder = "/fuzz/data";
inline constexpr const char* kIniPath = "/fuzz/data/scg/Loomwright.ini";

// A small data folder of our own: the configuration, six block files in two
// configured folders (one in a subfolder, two with mixed-case names, so that
// the case-blind lookup is taken), and the two catalogues. Block names and
// gates follow the sample data, so that its templates find their blocks.
void AddSmallDataFolder(MemoryFileSystem& disk);

} // namespace lw::fuzz
