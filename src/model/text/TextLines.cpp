#include "text/TextLines.h"

namespace lw {

bool ReadTextLine(std::istream& stream, std::string& line) {
    if (!std::getline(stream, line))
        return false;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

} // namespace lw
