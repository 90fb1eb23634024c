#include "dialogs/ActionModelPropertiesDlg.h"

#include "catalog/ModelList.h"
#include "dialogs/Refuse.h"
#include "dialogs/SingleRuleComboDlg.h"

#include <algorithm>

namespace lw {
namespace {

const char* const kServerDecides = "server decides";
const char* const kRandomFriendly = "random friendly";
const char* const kRandomEnemy = "random enemy";

// Types that stand for a model the server fixes for the mission.
bool IsFixedByServer(const std::string& type) {
    static const std::vector<std::string> types = {
        "player model",  "friendly model 1", "friendly model 2", "friendly model 3",
        "enemy model 1", "enemy model 2",    "enemy model 3"};
    return std::find(types.begin(), types.end(), type) != types.end();
}

// Types that stand for a model the server draws once per mission.
bool IsUniqueRandom(const std::string& type) {
    static const std::vector<std::string> types = {"unique random plane", "unique random fighter",
                                                   "unique random recon", "unique random bomber"};
    return std::find(types.begin(), types.end(), type) != types.end();
}

// The models of the squadrons of a career and of the player's flight.
const std::vector<std::string>& CareerTexts() {
    static const std::vector<std::string> texts = {
        "$by_player_squadron",
        "$by_enemy_fighter_squadron_1",
        "$by_enemy_fighter_squadron_2",
        "$by_enemy_fighter_squadron_3",
        "$by_enemy_recon_squadron_1",
        "$by_enemy_recon_squadron_2",
        "$by_enemy_transport_squadron_1",
        "$by_enemy_transport_squadron_2",
        "$by_enemy_bomber_squadron_1",
        "$by_enemy_bomber_squadron_2",
        "$by_friendly_fighter_squadron_1",
        "$by_friendly_fighter_squadron_2",
        "$by_friendly_fighter_squadron_3",
        "$by_friendly_recon_squadron_1",
        "$by_friendly_recon_squadron_2",
        "$by_friendly_transport_squadron_1",
        "$by_friendly_transport_squadron_2",
        "$by_friendly_bomber_squadron_1",
        "$by_friendly_bomber_squadron_2",
        "$plane_0_model",
        "$plane_1_model",
        "$plane_2_model",
        "$plane_3_model",
        "$plane_4_model",
        "$plane_5_model",
    };
    return texts;
}

} // namespace

ActionModelPropertiesDlg::ActionModelPropertiesDlg(const ModelList& models, Action& action)
    : models_(models), action_(action) {
    for (const auto& entry : models_.types)
        typeCombo.Add(entry.first);
    if (const std::string* stored = StoredParam(action_, 0))
        typeCombo.SelectByText(*stored);
    RefreshMakeIt();
}

void ActionModelPropertiesDlg::OnTypeChanged() {
    RefreshMakeIt();
}

// The choice is lost with the old list; only the stored one comes back, when
// the new list has it.
void ActionModelPropertiesDlg::RefreshMakeIt() {
    makeItCombo.Clear();
    for (const std::string& text : MakeItTexts(typeCombo.Text()))
        makeItCombo.Add(text);
    if (!action_.rules.empty() && action_.rules.front().params.size() == 2)
        makeItCombo.SelectByText(action_.rules.front().params[1]);
}

// A model is named by its coalition, its type and its own name; any ordinary
// type, and a type the list lacks, may also leave the choice to the server.
std::vector<std::string> ActionModelPropertiesDlg::MakeItTexts(const std::string& type) const {
    if (IsFixedByServer(type))
        return {kServerDecides};
    if (IsUniqueRandom(type))
        return {kRandomFriendly, kRandomEnemy};
    if (type == "by career squadrons")
        return CareerTexts();
    std::vector<std::string> texts;
    const auto found = models_.types.find(type);
    if (found != models_.types.end()) {
        for (const ModelRecord& model : found->second.models)
            texts.push_back(model.coalition + ":" + type + ":" + model.name);
    }
    texts.insert(texts.end(), {kServerDecides, kRandomFriendly, kRandomEnemy});
    return texts;
}

bool ActionModelPropertiesDlg::Ok(UserPrompts& prompts) {
    if (typeCombo.Current() < 0)
        return Refuse(prompts, "Type must be selected!");
    if (makeItCombo.Current() < 0)
        return Refuse(prompts, "Make it must be selected!");
    ActionRule& rule = MakeSingleRule(action_, "set_model", 2);
    rule.params[0] = typeCombo.Text();
    rule.params[1] = makeItCombo.Text();
    return true;
}

} // namespace lw
