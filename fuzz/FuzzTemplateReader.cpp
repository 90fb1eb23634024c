// Reads any bytes as a template file and writes the description back out.
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    lw::TemplateDesc desc;
    lw::ReadTemplateDesc(desc, input);
    std::ostringstream output;
    lw::WriteTemplateDesc(desc, output);
    return 0;
}
