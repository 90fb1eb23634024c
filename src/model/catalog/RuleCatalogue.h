#pragma once

#include <istream>
#include <string>
#include <vector>

namespace lw {

// One entry of a rule's Add block: a rule text of the shape "name(a,b)" that
// the rule brings along, with its condition.
struct RuleAdd {
    std::string action;
    std::string condition;
};

// One rule a designer can attach to a phase's action, as actions.cfg
// describes it.
struct RuleDef {
    std::string name;
    std::string comment = "<empty>";
    bool noHelper = true;
    bool needCondition = false;
    bool complex = false;
    bool isImport = false;
    // The text the rule expands to; may hold "$property" and "$value".
    std::string format = "<empty>";
    std::vector<RuleAdd> adds;
};

// The rules of actions.cfg, in file order.
class RuleCatalogue {
public:
    // Replaces the content by what the stream holds.
    void Read(std::istream& stream);

    // The first rule of exactly this name, or null.
    const RuleDef* FindRule(const std::string& name) const;

    std::vector<RuleDef> rules;
    // 0 outside any rule, 1 within a rule, 2 within its Add block.
    int parseState = 0;

private:
    void ReadInRule(const std::vector<std::string>& words);
    void ReadInAdd(const std::vector<std::string>& words);
};

} // namespace lw
