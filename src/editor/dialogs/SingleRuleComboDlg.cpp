#include "dialogs/SingleRuleComboDlg.h"

#include "dialogs/Refuse.h"

#include <utility>

namespace lw {

const std::string* StoredParam(const Action& action, std::size_t index) {
    if (action.rules.empty() || action.rules.front().params.size() <= index)
        return nullptr;
    return &action.rules.front().params[index];
}

ActionRule& MakeSingleRule(Action& action, const std::string& ruleName, std::size_t paramCount) {
    action.rules.resize(1);
    ActionRule& rule = action.rules.front();
    rule.ruleName = ruleName;
    rule.params.resize(paramCount);
    return rule;
}

SingleRuleComboDlg::SingleRuleComboDlg(Action& action, std::string ruleName,
                                       std::string missingMessage)
    : action_(action), ruleName_(std::move(ruleName)), missingMessage_(std::move(missingMessage)) {}

void SingleRuleComboDlg::Start(ComboField& combo, const std::vector<std::string>& texts) const {
    for (const std::string& text : texts)
        combo.Add(text);
    if (const std::string* stored = StoredParam(action_, 0))
        combo.SelectByText(*stored);
}

bool SingleRuleComboDlg::Write(const ComboField& combo, UserPrompts& prompts) {
    if (combo.Current() < 0)
        return Refuse(prompts, missingMessage_);
    MakeSingleRule(action_, ruleName_, 1).params[0] = combo.Text();
    return true;
}

} // namespace lw
