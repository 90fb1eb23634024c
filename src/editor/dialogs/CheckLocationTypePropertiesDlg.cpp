#include "dialogs/CheckLocationTypePropertiesDlg.h"

#include "dialogs/Refuse.h"

#include <algorithm>
#include <vector>

namespace lw {

namespace {

struct LocationType {
    const char* name;
    std::vector<const char*> kinds;
};

// In the order of the combo; the kinds fill the boxes from the top.
const std::vector<LocationType>& LocationTypes() {
    static const std::vector<LocationType> kTypes = {
        {"Airfield", {"GrassField", "WaterField"}},
        {"AirObjective",
         {"ReconFlight", "BomberFlight", "FighterPatrolFlight", "Dogfight", "DuelOpponent",
          "Balloon", "TransportFlight"}},
        {"Decoration",
         {"Dogfight",
          "Transport",
          "Train",
          "Tank",
          "Artillery",
          "AAAPosition",
          "Ship",
          "Balloon",
          "Windsock",
          "CityFire",
          "Siren",
          "Parking",
          "Spotter",
          "Bridge",
          "AtArtPosition",
          "FiringPoint",
          "NDB",
          "AirfieldDecoration",
          "StaticAirplane",
          "StaticVechicle",
          "Searchlight",
          "LandingLight",
          "LandingSign"}},
        {"GroundObjective",
         {"Transport",
          "Armoured",
          "Tank",
          "AAAPosition",
          "Artillery",
          "Building",
          "Ship",
          "Train",
          "RailwayStation",
          "SupplyDump",
          "Factory",
          "Airfield",
          "Port",
          "ReconArea",
          "TroopsConcentration",
          "Ferry",
          "FrontlineStrongpoint",
          "FrontlineEdge",
          "RailwayJunction",
          "Vehicle"}},
        {"Navigation", {"PlaneWaypoint", "FrontLine", "Shoreline", "River"}},
        {"ReferenceLocation",
         {"HWArtillery", "ATArtillery", "RL_FiringPoint", "RL_FrontLine", "Tanks"}},
        {"GroundBase", {"MainBase", "ForwardBase"}},
    };
    return kTypes;
}

// The only type that may stand without a kind.
constexpr int kAirfield = 0;

} // namespace

CheckLocationTypePropertiesDlg::CheckLocationTypePropertiesDlg(Check& check) : check_(check) {
    for (int i = 0; i < kBoxCount; ++i)
        boxes[i].caption = "Check" + std::to_string(i + 1);
    for (const LocationType& type : LocationTypes())
        typeCombo.Add(type.name);
    if (!check.params.empty())
        typeCombo.SelectByText(check.params[0]);
    ShowBoxes();
    ClearBoxes();
    TickBoxes();
}

void CheckLocationTypePropertiesDlg::ShowBoxes() {
    const int index = typeCombo.Current();
    static const std::vector<const char*> kNone;
    const auto& kinds = index < 0 ? kNone : LocationTypes()[index].kinds;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i].shown = i < kinds.size();
        if (boxes[i].shown)
            boxes[i].caption = kinds[i];
    }
}

void CheckLocationTypePropertiesDlg::ClearBoxes() {
    for (CheckBox& box : boxes)
        box.ticked = false;
}

// Captions are matched whether shown or not, so a hidden box that still has
// a stored kind as its caption is ticked too.
void CheckLocationTypePropertiesDlg::TickBoxes() {
    const auto& params = check_.params;
    for (std::size_t i = 1; i < params.size(); ++i) {
        for (CheckBox& box : boxes) {
            if (box.caption == params[i])
                box.ticked = true;
        }
    }
}

void CheckLocationTypePropertiesDlg::OnTypeChanged() {
    ShowBoxes();
    ClearBoxes();
    TickBoxes();
}

bool CheckLocationTypePropertiesDlg::AnyBoxTicked() const {
    return std::any_of(boxes.begin(), boxes.end(), [](const CheckBox& box) { return box.ticked; });
}

bool CheckLocationTypePropertiesDlg::Ok(UserPrompts& prompts) {
    const int index = typeCombo.Current();
    if (index < 0)
        return Refuse(prompts, "Select Location Type!");
    if (index != kAirfield && !AnyBoxTicked())
        return Refuse(prompts, "Select at least one check box!");
    check_.params.assign(1, typeCombo.Text());
    for (const CheckBox& box : boxes) {
        if (box.ticked)
            check_.params.push_back(box.caption);
    }
    return true;
}

bool CheckLocationTypePropertiesDlg::IsResultValid() const {
    const auto& params = check_.params;
    if (params.empty())
        return false;
    const auto& types = LocationTypes();
    if (params[0] == types[kAirfield].name)
        return true;
    const bool known = std::any_of(types.begin(), types.end(), [&](const LocationType& type) {
        return params[0] == type.name;
    });
    return known && params.size() >= 2;
}

} // namespace lw
