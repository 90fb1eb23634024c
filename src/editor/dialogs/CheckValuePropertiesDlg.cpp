#include "dialogs/CheckValuePropertiesDlg.h"

#include "text/Text.h"

#include <string>

namespace lw {

CheckValuePropertiesDlg::CheckValuePropertiesDlg(Check& check, std::int32_t maxValue)
    : check_(check), maxValue_(maxValue) {
    value_.digitsOnly = true;
    if (check.params.size() > 1)
        number_ = AtoiText(check.params[1]);
    value_.ShowInt(number_);
}

bool CheckValuePropertiesDlg::Ok(UserPrompts& prompts) {
    TakeIntUnchecked(value_, number_);
    std::int32_t checked = 0;
    const bool valid = ReadInt(value_, checked, prompts, 0, maxValue_);
    check_.params.resize(2);
    check_.params[1] = std::to_string(number_);
    return valid;
}

bool CheckValuePropertiesDlg::IsResultValid() const {
    return check_.params.size() == 2;
}

// The editors are handed the document as every property dialog is; these
// need only the check.
CheckInRadiusPropertiesDlg::CheckInRadiusPropertiesDlg(Check& check)
    : CheckValuePropertiesDlg(check, kMaxRadius) {}

CheckInSectorPropertiesDlg::CheckInSectorPropertiesDlg(Check& check)
    : CheckValuePropertiesDlg(check, kMaxArc) {}

} // namespace lw
