#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// Numbers that belong to a file or a dialog are kept as text and read the way
// the C library's atoi and atof read them: leading blanks, an optional sign,
// as many digits as there are; no number reads as 0. Unlike atoi, a value out
// of range saturates instead of being undefined.
std::int32_t AtoiText(const std::string& text);
double AtofText(const std::string& text);

// Lower case of the ASCII letters only; other bytes stay as they are.
std::string LowerCase(std::string text);

bool EqualsIgnoringCase(const std::string& a, const std::string& b);

// The words one after the other with the separator between them.
std::string Joined(const std::vector<std::string>& words, const char* separator = ",");

} // namespace lw
