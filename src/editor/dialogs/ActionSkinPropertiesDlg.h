#pragma once

#include "dialogs/SingleRuleComboDlg.h"

namespace lw {

// "Action Skin Property": the skin an action gives, as its one "set_skin"
// rule.
class ActionSkinPropertiesDlg : public SingleRuleComboDlg {
public:
    static constexpr const char* kTitle = "Action Skin Property";

    ActionSkinPropertiesDlg(Action& action);

    bool Ok(UserPrompts& prompts) { return Write(skinCombo, prompts); }

    // The skin words in their fixed order.
    ComboField skinCombo{false, false};
};

} // namespace lw
