#include "dialogs/ActionCountryPropertiesDlg.h"

namespace lw {
namespace {

const std::vector<std::string>& CountryTexts() {
    static const std::vector<std::string> texts = {"clone_location", "enemy", "friendly",
                                                   "from_server"};
    return texts;
}

} // namespace

ActionCountryPropertiesDlg::ActionCountryPropertiesDlg(Action& action)
    : SingleRuleComboDlg(action, "set_country", "Country Type must be selected!") {
    Start(countryCombo, CountryTexts());
}

} // namespace lw
