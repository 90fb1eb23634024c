#pragma once

#include "platform/UserPrompts.h"

#include <cstdint>
#include <limits>
#include <string>

namespace lw {

// An edit that holds a number. It keeps the text the user sees, since that
// may be anything until OK reads it.
struct NumberField {
    void ShowInt(std::int32_t value);
    // Six significant digits, as a float edit shows its value.
    void ShowFloat(float value);

    std::string text;
    // The edit takes only digits from the keyboard; text set by the program
    // may still hold a sign.
    bool digitsOnly = false;
    bool enabled = true;
};

// Read the number of an edit when OK is pressed. Text that is no number, or a
// number out of the range, is refused with a message, and the caller keeps the
// dialog open.
bool ReadInt(const NumberField& field, std::int32_t& value, UserPrompts& prompts,
             std::int32_t min = std::numeric_limits<std::int32_t>::min(),
             std::int32_t max = std::numeric_limits<std::int32_t>::max());
bool ReadFloat(const NumberField& field, float& value, UserPrompts& prompts);

// The number of an edit as a dialog takes it before validating it: a whole
// number is taken whatever the dialog's range, and text that is no number
// leaves `value` as it was. Some editors write this into their object even
// when the validation that follows refuses the edit.
void TakeIntUnchecked(const NumberField& field, std::int32_t& value);

} // namespace lw
