// Reads any bytes as a replay script of the tool.
#include "ReplayScript.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    ReadReplayScript(input);
    return 0;
}
