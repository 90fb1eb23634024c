#include "dialogs/ActionSkinPropertiesDlg.h"

namespace lw {
namespace {

// The skins the server resolves: the player's and fixed sides' skins, those
// of the squadrons of a career, their aces, and those of the player's flight
// by plane number.
const std::vector<std::string>& SkinTexts() {
    static const std::vector<std::string> texts = {
        "$player_skin",
        "$friendly_skin_1",
        "$friendly_skin_2",
        "$friendly_skin_3",
        "$enemy_skin_1",
        "$enemy_skin_2",
        "$enemy_skin_3",
        "$by_player_squadron_skin",
        "$by_enemy_fighter_squadron_skin_1",
        "$by_enemy_fighter_squadron_skin_2",
        "$by_enemy_fighter_squadron_skin_3",
        "$by_enemy_recon_squadron_skin_1",
        "$by_enemy_recon_squadron_skin_2",
        "$by_enemy_transport_squadron_skin_1",
        "$by_enemy_transport_squadron_skin_2",
        "$by_enemy_bomber_squadron_skin_1",
        "$by_enemy_bomber_squadron_skin_2",
        "$by_friendly_fighter_squadron_skin_1",
        "$by_friendly_fighter_squadron_skin_2",
        "$by_friendly_fighter_squadron_skin_3",
        "$by_friendly_recon_squadron_skin_1",
        "$by_friendly_recon_squadron_skin_2",
        "$by_friendly_transport_squadron_skin_1",
        "$by_friendly_transport_squadron_skin_2",
        "$by_friendly_bomber_squadron_skin_1",
        "$by_friendly_bomber_squadron_skin_2",
        "$by_enemy_fighter_squadron_ace_skin_1",
        "$by_enemy_fighter_squadron_ace_skin_2",
        "$by_enemy_fighter_squadron_ace_skin_3",
        "$by_friendly_fighter_squadron_ace_skin_1",
        "$by_friendly_fighter_squadron_ace_skin_2",
        "$by_friendly_fighter_squadron_ace_skin_3",
        "$plane_0_skin",
        "$plane_1_skin",
        "$plane_2_skin",
        "$plane_3_skin",
        "$plane_4_skin",
        "$plane_5_skin",
    };
    return texts;
}

} // namespace

ActionSkinPropertiesDlg::ActionSkinPropertiesDlg(Action& action)
    : SingleRuleComboDlg(action, "set_skin", "Skin Type must be selected!") {
    Start(skinCombo, SkinTexts());
}

} // namespace lw
