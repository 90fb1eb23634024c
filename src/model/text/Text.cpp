#include "text/Text.h"

#include <cstdlib>
#include <limits>

namespace lw {

std::int32_t AtoiText(const std::string& text) {
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    if (value > std::numeric_limits<std::int32_t>::max())
        return std::numeric_limits<std::int32_t>::max();
    if (value < std::numeric_limits<std::int32_t>::min())
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

double AtofText(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

std::string LowerCase(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

bool EqualsIgnoringCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() && LowerCase(a) == LowerCase(b);
}

std::string Joined(const std::vector<std::string>& words, const char* separator) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i)
        text += (i == 0 ? "" : separator) + words[i];
    return text;
}

} // namespace lw
