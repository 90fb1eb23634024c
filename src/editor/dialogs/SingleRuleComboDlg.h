#pragma once

#include "dialogs/ComboField.h"
#include "objects/Action.h"
#include "platform/UserPrompts.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lw {

// The stored parameter of the action's first rule at `index`; null when the
// action has no rule or the rule has no such parameter.
const std::string* StoredParam(const Action& action, std::size_t index);

// Cuts the action down to its one rule of `ruleName` with `paramCount`
// parameters. A first rule stays with its condition and leading parameters;
// whatever is missing comes in empty.
ActionRule& MakeSingleRule(Action& action, const std::string& ruleName, std::size_t paramCount);

// An action editor of one drop-down list, whose choice becomes the single
// parameter of the action's one rule. The skin and country editors are this
// with their own word lists, rule and message.
class SingleRuleComboDlg {
protected:
    SingleRuleComboDlg(Action& action, std::string ruleName, std::string missingMessage);

    // Fills the combo with the texts and selects the stored word, if the list
    // has it.
    void Start(ComboField& combo, const std::vector<std::string>& texts) const;
    // Refuses an empty choice; otherwise writes the rule.
    bool Write(const ComboField& combo, UserPrompts& prompts);

private:
    Action& action_;
    std::string ruleName_;
    std::string missingMessage_;
};

} // namespace lw
