#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/NumberField.h"
#include "platform/UserPrompts.h"

#include <string>

namespace lw {

// "Azimuth Additional Parameters": the aspect, the range in metres and the
// azimuth, or all three left to the mission server. Its aspect codes differ
// from the other geometry dialogs': -1 "Default", -2 "Random", -3 server.
class AzimuthAdditionalDlg {
public:
    static constexpr const char* kTitle = "Azimuth Additional Parameters";

    AzimuthAdditionalDlg(std::string first, std::string second, std::string third);

    // After the user set or cleared "Get Parameters from Server".
    void OnFromServerClicked();
    // After the user chose another entry of "Aspect type:".
    void OnAspectChanged();
    // Reads the fields into the three texts; false, with a message, when a
    // field holds no number.
    bool Ok(UserPrompts& prompts);

    std::string param1;
    std::string param2;
    std::string param3;
    bool fromServer = false;
    // "Custom", "Default", "Random"; the selection is the aspect index.
    ComboField aspectCombo;
    NumberField aspectValue;
    NumberField range;
    NumberField azimuth;

private:
    // The fields from the three texts; `serverAsDefault` turns the server
    // code into "Default" with zeros.
    void LoadFields(bool serverAsDefault);
    void UpdateAzimuthControls();
};

} // namespace lw
