#include "dialogs/AzimuthAdditionalDlg.h"

#include "text/Text.h"

#include <cstdio>
#include <utility>

namespace lw {

namespace {

// The aspect codes of an azimuth phase. Every other number is a custom aspect.
constexpr std::int32_t kDefaultCode = -1;
constexpr std::int32_t kRandomCode = -2;
constexpr std::int32_t kServerCode = -3;

enum AspectIndex { kNoAspect = -1, kCustom = 0, kDefault = 1, kRandom = 2 };

std::string IntText(std::int32_t value) {
    return std::to_string(value);
}

std::string FloatText(float value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%f", static_cast<double>(value));
    return buffer;
}

} // namespace

AzimuthAdditionalDlg::AzimuthAdditionalDlg(std::string first, std::string second, std::string third)
    : param1(std::move(first)), param2(std::move(second)), param3(std::move(third)) {
    aspectCombo.Add("Custom");
    aspectCombo.Add("Default");
    aspectCombo.Add("Random");
    LoadFields(false);
    UpdateAzimuthControls();
}

void AzimuthAdditionalDlg::LoadFields(bool serverAsDefault) {
    const std::int32_t aspect = AtoiText(param1);
    fromServer = aspect == kServerCode && !serverAsDefault;
    range.ShowFloat(static_cast<float>(AtofText(param2)));
    azimuth.ShowInt(AtoiText(param3));
    aspectValue.ShowInt(0);
    if (aspect == kServerCode) {
        aspectCombo.SetCurrent(serverAsDefault ? kDefault : kNoAspect);
        aspectValue.ShowInt(serverAsDefault ? 0 : kServerCode);
        range.ShowFloat(0);
        azimuth.ShowInt(0);
    } else if (aspect == kRandomCode) {
        aspectCombo.SetCurrent(kRandom);
    } else if (aspect == kDefaultCode) {
        aspectCombo.SetCurrent(kDefault);
    } else {
        aspectCombo.SetCurrent(kCustom);
        aspectValue.ShowInt(aspect);
    }
}

void AzimuthAdditionalDlg::UpdateAzimuthControls() {
    aspectCombo.enabled = !fromServer;
    range.enabled = !fromServer;
    azimuth.enabled = !fromServer;
    aspectValue.enabled = !fromServer && aspectCombo.Current() == kCustom;
}

void AzimuthAdditionalDlg::OnFromServerClicked() {
    if (fromServer) {
        aspectCombo.SetCurrent(kNoAspect);
        aspectValue.ShowInt(kServerCode);
        range.ShowFloat(0);
        azimuth.ShowInt(0);
    } else {
        LoadFields(true);
    }
    UpdateAzimuthControls();
}

void AzimuthAdditionalDlg::OnAspectChanged() {
    aspectValue.ShowInt(aspectCombo.Current() == kCustom ? AtoiText(param1) : 0);
    UpdateAzimuthControls();
}

bool AzimuthAdditionalDlg::Ok(UserPrompts& prompts) {
    std::int32_t aspect = 0;
    float rangeValue = 0;
    std::int32_t azimuthValue = 0;
    if (!ReadInt(aspectValue, aspect, prompts) || !ReadFloat(range, rangeValue, prompts) ||
        !ReadInt(azimuth, azimuthValue, prompts))
        return false;
    if (fromServer) {
        param1 = IntText(kServerCode);
        param2 = "0";
        param3 = "0";
        return true;
    }
    const int index = aspectCombo.Current();
    if (index == kNoAspect)
        return true;
    param1 = IntText(index == kCustom ? aspect : index == kDefault ? kDefaultCode : kRandomCode);
    param2 = FloatText(rangeValue);
    param3 = IntText(azimuthValue);
    return true;
}

} // namespace lw
