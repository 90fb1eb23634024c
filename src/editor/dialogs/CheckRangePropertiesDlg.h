#pragma once

#include "dialogs/NumberField.h"
#include "objects/Check.h"
#include "platform/UserPrompts.h"

#include <cstdint>

namespace lw {

// "Range Check": how far from the phase of the primary link, either exactly
// at a range or the closest place not closer than it. A range of -1 leaves it
// to the mission's parameter.
//
// OK validates the range and writes `params` whatever the outcome: a range
// out of bounds keeps the dialog open but is already in the check.
class CheckRangePropertiesDlg {
public:
    static constexpr const char* kTitle = "Range Check";

    CheckRangePropertiesDlg(Check& check);

    // After the user set or cleared "Use Parameter ($checkrange)".
    void OnUseParameterClicked();
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    bool closest = false;
    bool useParameter = false;
    // In metres, -1 to 1000000.
    NumberField range;

private:
    void EnableRange();

    Check& check_;
    // What the edit last read, as the check is written from it.
    std::int32_t rangeValue_ = 0;
};

} // namespace lw
