#pragma once

#include "dialogs/ComboField.h"
#include "objects/Action.h"
#include "platform/UserPrompts.h"

#include <string>
#include <vector>

namespace lw {

class ModelList;
class ModelList;

// "Action Model/Script properties": the model an action gives, as its one
// "set_model" rule of a type and what to make of it. The types are those of
// the model list; some of them stand for a choice the server makes and offer
// their own answers instead of models.
class ActionModelPropertiesDlg {
public:
    static constexpr const char* kTitle = "Action Model/Script properties";

    ActionModelPropertiesDlg(const ModelList& models, Action& action);

    // After the user chose another type: the make-it list follows it.
    void OnTypeChanged();
    bool Ok(UserPrompts& prompts);

    // The model list's types.
    ComboField typeCombo{true, false};
    // What the chosen type offers.
    ComboField makeItCombo{true, false};

private:
    void RefreshMakeIt();
    std::vector<std::string> MakeItTexts(const std::string& type) const;

    const ModelList& models_;
    Action& action_;
};

} // namespace lw
