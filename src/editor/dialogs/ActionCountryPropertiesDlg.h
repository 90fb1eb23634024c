#pragma once

#include "dialogs/SingleRuleComboDlg.h"

namespace lw {

// "Country Action Properties": the side an action puts its object on, as its
// one "set_country" rule.
class ActionCountryPropertiesDlg : public SingleRuleComboDlg {
public:
    static constexpr const char* kTitle = "Country Action Properties";

    ActionCountryPropertiesDlg(Action& action);

    bool Ok(UserPrompts& prompts) { return Write(countryCombo, prompts); }

    // The country words in their fixed order.
    ComboField countryCombo{false, false};
};

} // namespace lw
