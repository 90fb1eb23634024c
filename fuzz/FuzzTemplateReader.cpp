// Reads any bytes as a template file and writes the description back out;
// reads them again reporting every problem, which must read the same.
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    lw::TemplateDesc desc;
    lw::ReadTemplateDesc(desc, input);
    std::ostringstream output;
    lw::WriteTemplateDesc(desc, output);

    std::istringstream again(std::string(reinterpret_cast<const char*>(data), size));
    lw::TemplateDesc reported;
    lw::TemplateReadReport report;
    lw::ReadTemplateDesc(reported, again, &report);
    if (lw::TemplateDescText(reported) != output.str())
        std::abort();
    return 0;
}
