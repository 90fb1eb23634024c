// Reads any bytes as actions.cfg, then looks a rule up as the dialogs do.
#include "catalog/RuleCatalogue.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    lw::RuleCatalogue catalogue;
    catalogue.Read(input);
    if (!catalogue.rules.empty())
        catalogue.FindRule(catalogue.rules.back().name);
    return 0;
}
