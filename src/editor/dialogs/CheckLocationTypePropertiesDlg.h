#pragma once

#include "dialogs/ComboField.h"
#include "objects/Check.h"
#include "platform/UserPrompts.h"

#include <array>
#include <string>

namespace lw {

// "Location Type Check": a location type and the kinds of it the phase may
// stand on. The kinds are a column of check boxes whose captions are the very
// texts stored after the type.
class CheckLocationTypePropertiesDlg {
public:
    static constexpr const char* kTitle = "Location Type Check";
    static constexpr int kBoxCount = 23;

    struct CheckBox {
        std::string caption;
        bool shown = true;
        bool ticked = false;
    };

    CheckLocationTypePropertiesDlg(Check& check);

    // After the user chose another entry of "Location Type:". Ticks of the
    // previous type fall away unless the stored `params` name them.
    void OnTypeChanged();
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    // The seven location types, unsorted.
    ComboField typeCombo{false, false};
    // From the top. A box keeps its last caption while hidden; one never
    // captioned shows its placeholder, "Check1" to "Check23".
    std::array<CheckBox, kBoxCount> boxes;

private:
    void ShowBoxes();
    void ClearBoxes();
    void TickBoxes();
    bool AnyBoxTicked() const;

    Check& check_;
};

} // namespace lw
