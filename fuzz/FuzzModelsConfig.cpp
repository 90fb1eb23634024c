// Reads any bytes as models.cfg.
#include "catalog/ModelList.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    lw::ModelList models;
    models.Read(input);
    return 0;
}
