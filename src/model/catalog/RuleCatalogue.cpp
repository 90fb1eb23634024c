#include "catalog/RuleCatalogue.h"

#include "document/WordLines.h"

namespace lw {

namespace {

std::string* TextField(RuleDef& rule, const std::string& key) {
    if (key == "Name")
        return &rule.name;
    if (key == "Comment")
        return &rule.comment;
    if (key == "Format")
        return &rule.format;
    return nullptr;
}

bool* FlagField(RuleDef& rule, const std::string& key) {
    if (key == "NoHelper")
        return &rule.noHelper;
    if (key == "NeedCondition")
        return &rule.needCondition;
    if (key == "Complex")
        return &rule.complex;
    if (key == "Import")
        return &rule.isImport;
    return nullptr;
}

} // namespace

void RuleCatalogue::Read(std::istream& stream) {
    rules.clear();
    parseState = 0;
    std::string line;
    std::vector<std::string> words;
    while (ReadWordLine(stream, line, words)) {
        if (parseState == 0 && words[0] == "Action") {
            rules.emplace_back();
            parseState = 1;
        } else if (parseState == 1) {
            ReadInRule(words);
        } else if (parseState == 2) {
            ReadInAdd(words);
        }
    }
}

void RuleCatalogue::ReadInRule(const std::vector<std::string>& words) {
    const std::string& key = words[0];
    if (key == "}") {
        parseState = 0;
        return;
    }
    if (key == "Add") {
        parseState = 2;
        return;
    }
    if (words.size() < 2)
        return;
    if (std::string* text = TextField(rules.back(), key))
        *text = words[1];
    else if (bool* flag = FlagField(rules.back(), key))
        *flag = words[1] != "0";
}

void RuleCatalogue::ReadInAdd(const std::vector<std::string>& words) {
    const std::string& key = words[0];
    std::vector<RuleAdd>& adds = rules.back().adds;
    if (key == "}")
        parseState = 1;
    else if (key == "Action" && words.size() >= 2)
        adds.push_back(RuleAdd{words[1], std::string()});
    else if (key == "Condition" && words.size() >= 2 && !adds.empty())
        adds.back().condition = words[1];
}

const RuleDef* RuleCatalogue::FindRule(const std::string& name) const {
    for (const RuleDef& rule : rules) {
        if (rule.name == name)
            return &rule;
    }
    return nullptr;
}

} // namespace lw
