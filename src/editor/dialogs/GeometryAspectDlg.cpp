#include "dialogs/GeometryAspectDlg.h"

#include "text/Text.h"

#include <utility>

namespace lw {

namespace {

// The aspect codes of a fractal or line phase. Every other number is a custom
// aspect, so a custom aspect of 0 or -1 comes back as "Default" or "Random".
constexpr std::int32_t kDefaultCode = 0;
constexpr std::int32_t kRandomCode = -1;

enum AspectIndex { kCustom = 0, kDefault = 1, kRandom = 2 };

} // namespace

GeometryAspectDlg::GeometryAspectDlg(std::string first, std::string second, std::string third)
    : param1(std::move(first)), param2(std::move(second)), param3(std::move(third)) {
    aspectCombo.Add("Custom");
    aspectCombo.Add("Default");
    aspectCombo.Add("Random");
    aspectValue.digitsOnly = true;
    const std::int32_t aspect = AtoiText(param1);
    if (aspect == kRandomCode) {
        aspectCombo.SetCurrent(kRandom);
        aspectValue.ShowInt(kRandomCode);
    } else if (aspect == kDefaultCode) {
        aspectCombo.SetCurrent(kDefault);
        aspectValue.ShowInt(0);
    } else {
        aspectCombo.SetCurrent(kCustom);
        aspectValue.ShowInt(aspect);
    }
    EnableAspectValue();
}

void GeometryAspectDlg::OnAspectChanged() {
    aspectValue.ShowInt(aspectCombo.Current() == kCustom ? AtoiText(param1) : 0);
    EnableAspectValue();
}

void GeometryAspectDlg::EnableAspectValue() {
    aspectValue.enabled = aspectCombo.Current() == kCustom;
}

bool GeometryAspectDlg::Ok(UserPrompts& prompts) {
    std::int32_t aspect = 0;
    if (!ReadInt(aspectValue, aspect, prompts) || !ReadOtherFields(prompts))
        return false;
    switch (aspectCombo.Current()) {
    case kCustom:
        param1 = std::to_string(aspect);
        break;
    case kDefault:
        param1 = std::to_string(kDefaultCode);
        break;
    case kRandom:
        param1 = std::to_string(kRandomCode);
        break;
    default:
        break;
    }
    return true;
}

CFractalAdditionalDlg::CFractalAdditionalDlg(std::string first, std::string second,
                                             std::string third)
    : GeometryAspectDlg(std::move(first), std::move(second), std::move(third)) {
    typeCombo.Add("both");
    typeCombo.Add("left");
    typeCombo.Add("right");
    deviation.digitsOnly = true;
    deviation.ShowInt(AtoiText(param2));
    typeCombo.SelectByText(param3);
}

bool CFractalAdditionalDlg::ReadOtherFields(UserPrompts& prompts) {
    std::int32_t value = 0;
    if (!ReadInt(deviation, value, prompts))
        return false;
    param2 = std::to_string(value);
    param3 = typeCombo.Text();
    return true;
}

LineAdditionalDlg::LineAdditionalDlg(std::string first, std::string second, std::string third)
    : GeometryAspectDlg(std::move(first), std::move(second), std::move(third)) {
    offset.digitsOnly = true;
    deflection.digitsOnly = true;
    offset.ShowInt(AtoiText(param2));
    deflection.ShowInt(AtoiText(param3));
}

bool LineAdditionalDlg::ReadOtherFields(UserPrompts& prompts) {
    std::int32_t offsetValue = 0;
    std::int32_t deflectionValue = 0;
    if (!ReadInt(offset, offsetValue, prompts) || !ReadInt(deflection, deflectionValue, prompts))
        return false;
    param2 = std::to_string(offsetValue);
    param3 = std::to_string(deflectionValue);
    return true;
}

} // namespace lw
