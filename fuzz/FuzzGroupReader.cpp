// Reads any bytes as a .Group block file, reporting what it skips.
#include "catalog/GroupReader.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    lw::BlockInfo info;
    lw::GroupReadReport report;
    lw::ReadGroupStream(info, input, &report);
    return 0;
}
