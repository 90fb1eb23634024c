#include "document/WordLines.h"

#include "document/ParserUtils.h"
#include "text/TextLines.h"

namespace lw {

bool ReadWordLine(std::istream& stream, std::string& line, std::vector<std::string>& words) {
    while (ReadTextLine(stream, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        words.clear();
        SortieKitSpace::ParserUtils::parseLineIntoWords(words, line);
        if (!words.empty())
            return true;
    }
    return false;
}

} // namespace lw
