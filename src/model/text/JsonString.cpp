#include "text/JsonString.h"

#include <cstdio>

namespace lw {

namespace {

// The length of the UTF-8 sequence that starts at `i`, or 0 where none does.
std::size_t Utf8Length(const std::string& text, std::size_t i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    std::size_t length = byte >= 0xF0 && byte <= 0xF4 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC2 ? 2 : 0;
    if (length == 0 || byte >= 0xF5 || i + length > text.size())
        return 0;
    for (std::size_t k = 1; k < length; ++k) {
        if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80)
            return 0;
    }
    return length;
}

std::string Escaped(unsigned value) {
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, "\\u%04x", value);
    return buffer;
}

} // namespace

std::string JsonString(const std::string& text) {
    std::string json = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte == '"' || byte == '\\') {
            json += '\\';
            json += static_cast<char>(byte);
        } else if (byte < 0x20) {
            json += Escaped(byte);
        } else if (byte < 0x80) {
            json += static_cast<char>(byte);
        } else if (const std::size_t length = Utf8Length(text, i)) {
            json.append(text, i, length);
            i += length - 1;
        } else {
            json += Escaped(byte);
        }
    }
    return json + "\"";
}

} // namespace lw
