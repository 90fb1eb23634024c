#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/ReportView.h"
#include "objects/Action.h"
#include "platform/UserPrompts.h"

#include <array>
#include <string>
#include <vector>

namespace lw {

class RuleCatalogue;
struct RuleDef;

// "Action General Rules properties": the rules of an action that is neither a
// skin, a country nor a model. The upper half offers the catalogue's rules
// with a live preview of the text they expand to; the lower half lists the
// action's rules, kept in a working copy until OK.
class ActionGeneralPropertiesDlg {
public:
    static constexpr const char* kTitle = "Action General Rules properties";

    static constexpr std::array<ReportColumn, 2> kColumns{{{"Action", 450}, {"Condition", 380}}};

    // A row of the rule list: one text per column and whether it is selected.
    using Row = ReportRow<kColumns.size()>;

    ActionGeneralPropertiesDlg(const RuleCatalogue& rules, Action& action);

    // The rule's format with the action's name and the parameter put in,
    // followed by "; "; empty when the combo names no rule of the catalogue.
    std::string BuildParameterText() const;
    // One "if(...); " per piece of the condition that holds an operator.
    std::string BuildConditionText() const;

    // A rule was chosen in the combo.
    void OnRuleChanged();
    // The parameter or the condition was edited: the preview follows.
    void OnParameterChanged();
    void OnConditionChanged();
    // "Add Rule": the chosen rule, as the preview shows it, joins the list.
    void OnAddRule(UserPrompts& prompts);
    // "Delete": the selected rows go, with their rules.
    void OnDelete();
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    std::vector<ActionRule> workingRules;
    ComboField ruleCombo{true, false};
    std::string comment;
    // The preview: parameter text followed by condition text.
    std::string format;
    std::string parameter;
    std::string condition;
    // The Add entries of the chosen rule, one "action condition\r\n" each.
    std::string imported;
    bool parameterEnabled = true;
    bool conditionEnabled = true;
    std::vector<Row> ruleList;

private:
    void FillRuleCombo();
    void RefreshRuleList();
    void RefreshPreview();
    const RuleDef* ChosenRule() const;
    void AddPlainRule(const RuleDef& rule, UserPrompts& prompts);
    void AddComplexRule(const RuleDef& rule);

    const RuleCatalogue& rules_;
    Action& action_;
};

} // namespace lw
