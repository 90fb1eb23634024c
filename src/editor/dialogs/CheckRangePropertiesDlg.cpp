#include "dialogs/CheckRangePropertiesDlg.h"

#include "text/Text.h"

#include <string>

namespace lw {

namespace {

constexpr const char* kAtMode = "at";
constexpr const char* kClosestMode = "closest_outof";
// The range that leaves the distance to the mission's parameter.
constexpr std::int32_t kParameterRange = -1;
constexpr std::int32_t kMaxRange = 1000000;

} // namespace

CheckRangePropertiesDlg::CheckRangePropertiesDlg(Check& check) : check_(check) {
    const auto& params = check.params;
    if (params.size() > 1)
        closest = params[1] != kAtMode;
    if (params.size() > 2)
        rangeValue_ = AtoiText(params[2]);
    useParameter = rangeValue_ < 0;
    range.digitsOnly = true;
    range.ShowInt(rangeValue_);
    EnableRange();
}

void CheckRangePropertiesDlg::EnableRange() {
    range.enabled = !useParameter;
}

void CheckRangePropertiesDlg::OnUseParameterClicked() {
    EnableRange();
}

bool CheckRangePropertiesDlg::Ok(UserPrompts& prompts) {
    TakeIntUnchecked(range, rangeValue_);
    std::int32_t checked = 0;
    const bool valid = ReadInt(range, checked, prompts, kParameterRange, kMaxRange);
    check_.params.resize(3);
    check_.params[1] = closest ? kClosestMode : kAtMode;
    check_.params[2] = std::to_string(useParameter ? kParameterRange : rangeValue_);
    return valid;
}

bool CheckRangePropertiesDlg::IsResultValid() const {
    return check_.params.size() == 3;
}

} // namespace lw
