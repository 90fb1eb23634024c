// Reads any bytes as a .Group block file.
#include "catalog/GroupReader.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    lw::BlockInfo info;
    lw::ReadGroupStream(info, input);
    return 0;
}
