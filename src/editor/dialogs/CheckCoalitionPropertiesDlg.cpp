#include "dialogs/CheckCoalitionPropertiesDlg.h"

#include <string>

namespace lw {

CheckCoalitionPropertiesDlg::CheckCoalitionPropertiesDlg(Check& check) : check_(check) {
    if (check.params.empty())
        return;
    const std::string& word = check.params[0];
    friendly = word.find('f') != std::string::npos;
    enemy = word.find('e') != std::string::npos;
    neutral = word.find('n') != std::string::npos;
}

bool CheckCoalitionPropertiesDlg::Ok(UserPrompts& /*prompts*/) {
    std::string word;
    if (friendly)
        word += 'f';
    if (enemy)
        word += 'e';
    if (neutral)
        word += 'n';
    check_.params.clear();
    if (!word.empty())
        check_.params.push_back(word);
    return true;
}

bool CheckCoalitionPropertiesDlg::IsResultValid() const {
    return check_.params.size() < 2;
}

} // namespace lw
