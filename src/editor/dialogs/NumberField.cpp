#include "dialogs/NumberField.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace lw {

namespace {

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return std::string();
    const auto last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

// A sign and digits, nothing else; false for anything that is not, or that
// does not fit 64 bits.
bool ParseWhole(const std::string& text, long long& value) {
    const std::string trimmed = Trimmed(text);
    const std::size_t digitsFrom = !trimmed.empty() && (trimmed[0] == '-' || trimmed[0] == '+');
    if (trimmed.size() == digitsFrom)
        return false;
    for (std::size_t i = digitsFrom; i < trimmed.size(); ++i) {
        if (trimmed[i] < '0' || trimmed[i] > '9')
            return false;
    }
    errno = 0;
    value = std::strtoll(trimmed.c_str(), nullptr, 10);
    return errno == 0;
}

} // namespace

void NumberField::ShowInt(std::int32_t value) {
    text = std::to_string(value);
}

void NumberField::ShowFloat(float value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.6g", static_cast<double>(value));
    text = buffer;
}

bool ReadInt(const NumberField& field, std::int32_t& value, UserPrompts& prompts, std::int32_t min,
             std::int32_t max) {
    long long number = 0;
    if (!ParseWhole(field.text, number) || number < min || number > max) {
        const bool fullRange = min == std::numeric_limits<std::int32_t>::min() &&
                               max == std::numeric_limits<std::int32_t>::max();
        prompts.ShowMessage(fullRange ? "Please enter a whole number."
                                      : "Please enter a whole number from " + std::to_string(min) +
                                            " to " + std::to_string(max) + ".",
                            MessageIcon::Warning);
        return false;
    }
    value = static_cast<std::int32_t>(number);
    return true;
}

void TakeIntUnchecked(const NumberField& field, std::int32_t& value) {
    long long number = 0;
    if (ParseWhole(field.text, number) && number >= std::numeric_limits<std::int32_t>::min() &&
        number <= std::numeric_limits<std::int32_t>::max())
        value = static_cast<std::int32_t>(number);
}

bool ReadFloat(const NumberField& field, float& value, UserPrompts& prompts) {
    const std::string trimmed = Trimmed(field.text);
    char* end = nullptr;
    errno = 0;
    const double number = trimmed.empty() ? 0.0 : std::strtod(trimmed.c_str(), &end);
    const bool whole = !trimmed.empty() && end == trimmed.c_str() + trimmed.size();
    if (!whole || errno != 0 || !std::isfinite(number) ||
        std::fabs(number) > std::numeric_limits<float>::max()) {
        prompts.ShowMessage("Please enter a number.", MessageIcon::Warning);
        return false;
    }
    value = static_cast<float>(number);
    return true;
}

} // namespace lw
