#include "dialogs/ActionGeneralPropertiesDlg.h"

#include "catalog/RuleCatalogue.h"
#include "dialogs/Refuse.h"
#include "document/ParserUtils.h"

namespace lw {

using SortieKitSpace::ParserUtils;

namespace {

// Replaces every `from` by `to`, reading on behind what was put in, so that
// a replacement holding `from` stays as it is.
void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t pos = text.find(from); pos != std::string::npos;
         pos = text.find(from, pos + to.size())) {
        text.replace(pos, from.size(), to);
    }
}

std::string WithoutBlanks(const std::string& text) {
    std::string result;
    for (char c : text) {
        if (c != ' ' && c != '\t')
            result += c;
    }
    return result;
}

bool HoldsOperator(const std::string& piece) {
    for (const char* op : {"!=", "==", ">=", "<=", "<", ">"}) {
        if (piece.find(op) != std::string::npos)
            return true;
    }
    return false;
}

// A piece of the condition without an operator is no test and goes unsaid.
std::string ConditionBlock(const std::string& piece) {
    const std::string test = WithoutBlanks(piece);
    return HoldsOperator(test) ? "if(" + test + "); " : std::string();
}

std::string RuleText(const ActionRule& rule) {
    std::string text = rule.ruleName + "(";
    for (std::size_t i = 0; i < rule.params.size(); ++i)
        text += (i == 0 ? "" : ",") + rule.params[i];
    return text + ");";
}

// A rule text of the shape "name(a,b)" as a rule of the action.
ActionRule ParseRuleText(const std::string& text, const std::string& condition) {
    ActionRule rule;
    std::size_t pos = 0;
    rule.ruleName = ParserUtils::getNextWord(text, pos);
    ParserUtils::getParamsInBrackets(rule.params, text, pos);
    rule.condition = condition;
    return rule;
}

} // namespace

ActionGeneralPropertiesDlg::ActionGeneralPropertiesDlg(const RuleCatalogue& rules, Action& action)
    : rules_(rules), action_(action) {
    FillRuleCombo();
    workingRules = action_.rules;
    RefreshRuleList();
}

// A hand-made action has no block property behind it, so it is offered the
// rules that need none; one made from a property is offered the others.
void ActionGeneralPropertiesDlg::FillRuleCombo() {
    const bool handMade = action_.objectName.empty();
    for (const RuleDef& rule : rules_.rules) {
        if (rule.noHelper == handMade)
            ruleCombo.Add(rule.name);
    }
    ruleCombo.SetCurrent(-1);
}

void ActionGeneralPropertiesDlg::RefreshRuleList() {
    ruleList.clear();
    for (const ActionRule& rule : workingRules) {
        Row row;
        row.texts = {RuleText(rule), rule.condition};
        ruleList.push_back(row);
    }
}

const RuleDef* ActionGeneralPropertiesDlg::ChosenRule() const {
    const std::string name = ruleCombo.Text();
    return name.empty() ? nullptr : rules_.FindRule(name);
}

std::string ActionGeneralPropertiesDlg::BuildParameterText() const {
    const RuleDef* rule = ChosenRule();
    if (rule == nullptr)
        return std::string();
    std::string text = rule->format;
    ReplaceAll(text, "$property", action_.name);
    ReplaceAll(text, "$value", parameter);
    return text + "; ";
}

// The piece behind the last ";" counts only from two characters on, blanks
// included, so a condition ending in ";" leaves no empty block behind.
std::string ActionGeneralPropertiesDlg::BuildConditionText() const {
    std::string result;
    std::size_t begin = 0;
    for (std::size_t end = condition.find(';'); end != std::string::npos;
         end = condition.find(';', begin)) {
        result += ConditionBlock(condition.substr(begin, end - begin));
        begin = end + 1;
    }
    const std::string last = condition.substr(begin);
    if (last.size() >= 2)
        result += ConditionBlock(last);
    return result;
}

void ActionGeneralPropertiesDlg::RefreshPreview() {
    format = BuildParameterText() + BuildConditionText();
}

// An unknown rule leaves the edits enabled or disabled as they were.
void ActionGeneralPropertiesDlg::OnRuleChanged() {
    comment.clear();
    format.clear();
    parameter.clear();
    condition.clear();
    imported.clear();
    if (const RuleDef* rule = ChosenRule()) {
        comment = rule->comment;
        for (const RuleAdd& add : rule->adds)
            imported += add.action + " " + add.condition + "\r\n";
        parameterEnabled = !rule->complex;
        conditionEnabled = !rule->complex;
    }
    RefreshPreview();
}

void ActionGeneralPropertiesDlg::OnParameterChanged() {
    RefreshPreview();
}

void ActionGeneralPropertiesDlg::OnConditionChanged() {
    RefreshPreview();
}

// The fields stay as they are, so the same rule can be added again at once.
void ActionGeneralPropertiesDlg::OnAddRule(UserPrompts& prompts) {
    if (ruleCombo.Text().empty()) {
        Refuse(prompts, "Select one of the rules!");
        return;
    }
    const RuleDef* rule = ChosenRule();
    if (rule == nullptr || BuildParameterText().empty())
        return;
    if (rule->complex)
        AddComplexRule(*rule);
    else
        AddPlainRule(*rule, prompts);
    RefreshRuleList();
}

// The rule is stored as the preview shows it. A format without a bracket
// gives no parameters to read, and the rule is dropped without a word.
void ActionGeneralPropertiesDlg::AddPlainRule(const RuleDef& rule, UserPrompts& prompts) {
    const std::string conditionText = BuildConditionText();
    if (rule.needCondition && conditionText.empty()) {
        Refuse(prompts, "This rule needs condition!");
        return;
    }
    const std::string parameterText = BuildParameterText();
    std::size_t pos = parameterText.find('(');
    if (pos == std::string::npos)
        return;
    ActionRule added;
    added.ruleName = rule.name;
    added.condition = conditionText;
    ParserUtils::getParamsInBrackets(added.params, parameterText, pos);
    workingRules.push_back(added);
}

// A complex rule brings its Add entries as they stand, or, as an import,
// one rule that names it for the generator to take over.
void ActionGeneralPropertiesDlg::AddComplexRule(const RuleDef& rule) {
    if (rule.isImport) {
        workingRules.push_back(ActionRule{"import_rules", {rule.name}, std::string()});
        return;
    }
    for (const RuleAdd& add : rule.adds)
        workingRules.push_back(ParseRuleText(add.action, add.condition));
}

void ActionGeneralPropertiesDlg::OnDelete() {
    for (std::size_t i = ruleList.size(); i-- > 0;) {
        if (ruleList[i].selected) {
            ruleList.erase(ruleList.begin() + static_cast<std::ptrdiff_t>(i));
            workingRules.erase(workingRules.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
}

bool ActionGeneralPropertiesDlg::Ok(UserPrompts&) {
    action_.rules = workingRules;
    return true;
}

bool ActionGeneralPropertiesDlg::IsResultValid() const {
    return !action_.name.empty();
}

} // namespace lw
