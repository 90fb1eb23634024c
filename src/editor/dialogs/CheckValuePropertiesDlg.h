#pragma once

#include "dialogs/NumberField.h"
#include "objects/Check.h"
#include "platform/UserPrompts.h"

#include <cstdint>

namespace lw {

// The editors of a check measured from its phase's primary link that hold a
// single number after the first text, "In Radius Check" and "In Sector
// Check". They differ only in title and the range of the number.
//
// OK validates the number and writes `params` whatever the outcome: a number
// out of range keeps the dialog open but is already in the check.
class CheckValuePropertiesDlg {
public:
    CheckValuePropertiesDlg(const CheckValuePropertiesDlg&) = delete;
    CheckValuePropertiesDlg& operator=(const CheckValuePropertiesDlg&) = delete;

    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    // The number edit, whichever name the dialog gives it.
    NumberField& Value() { return value_; }

protected:
    CheckValuePropertiesDlg(Check& check, std::int32_t maxValue);
    ~CheckValuePropertiesDlg() = default;

    NumberField value_;

private:
    Check& check_;
    std::int32_t maxValue_;
    // What the edit last read, as the check is written from it.
    std::int32_t number_ = 0;
};

class CheckInRadiusPropertiesDlg : public CheckValuePropertiesDlg {
public:
    static constexpr const char* kTitle = "In Radius Check";
    static constexpr std::int32_t kMaxRadius = 1000000;

    CheckInRadiusPropertiesDlg(Check& check);

    // In metres.
    NumberField& radius = value_;
};

class CheckInSectorPropertiesDlg : public CheckValuePropertiesDlg {
public:
    static constexpr const char* kTitle = "In Sector Check";
    static constexpr std::int32_t kMaxArc = 359;

    CheckInSectorPropertiesDlg(Check& check);

    // In degrees.
    NumberField& arc = value_;
};

} // namespace lw
