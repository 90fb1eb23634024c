#include "app/Weaver.h"
#include "document/TemplateDesc.h"

#include <algorithm>
#include <array>

namespace lw {

namespace {

struct CheckEntry {
    std::int32_t type;
    const char* text;
    CommandId command;
};

constexpr std::array<CheckEntry, kCheckTypeCount> kCheckEntries{{
    {CheckSquad, "Add Squad Check", CommandId::AddSquadCheck},
    {CheckLocationType, "Add Location Type Check", CommandId::AddLocationCheck},
    {CheckCoalition, "Add Coalition Check", CommandId::AddCoalitionCheck},
    {CheckRange, "Add Range Check", CommandId::AddRangeCheck},
    {CheckInRadius, "Add In Radius Check", CommandId::AddInRadiusCheck},
    {CheckInSector, "Add In Sector Check", CommandId::AddInSectorCheck},
    {CheckFree, "Add Free Check", CommandId::AddFreeCheck},
}};

MenuEntry Separator() {
    return MenuEntry{};
}

} // namespace

ContextMenu Weaver::BuildContextMenu() const {
    ContextMenu menu{
        {"Add Phase", CommandId::AddPhase},
        {"Add Unlinker", CommandId::AddUnlinker},
        {"Add Case", CommandId::AddCase},
        {"Add Switch", CommandId::AddSwitch},
        Separator(),
    };
    const std::vector<EditorObject*>& members = selection.members;
    if (members.size() == 1 && As<Phase>(members[0]) != nullptr) {
        const Phase& phase = *As<Phase>(members[0]);
        menu.push_back({"Add Rule...", CommandId::AddRule});
        for (const CheckEntry& entry : kCheckEntries) {
            const bool present = std::any_of(
                phase.checkIds.begin(), phase.checkIds.end(), [&](std::int32_t checkId) {
                    const Check* check = As<Check>(FindObject(checkId));
                    return check != nullptr && check->type == entry.type;
                });
            // These checks measure from the primary link's phase.
            if (present || (IsMeasuredFromPrimaryLink(entry.type) && phase.primaryLinkId == 0))
                continue;
            menu.push_back({entry.text, entry.command});
        }
        menu.push_back(Separator());
        if (HasPrimaryLink(phase.generationType))
            menu.push_back({"Add Primary Link\tShift+T", CommandId::AddPrimaryLink});
        if (HasSecondaryLink(phase.generationType))
            menu.push_back({"Add Secondary Link\tCtrl+T", CommandId::AddSecondaryLink});
        menu.push_back(Separator());
        menu.push_back({"Delete Links...", CommandId::DeleteLinks});
    } else if (members.size() == 2 && As<Phase>(members[0]) != nullptr &&
               As<Phase>(members[1]) != nullptr) {
        const std::string& a = As<Phase>(members[0])->name;
        const std::string& b = As<Phase>(members[1])->name;
        menu.push_back({"Add Target Link from " + a + " to " + b, CommandId::AddTargetLink01});
        menu.push_back({"Add Object Link from " + a + " to " + b, CommandId::AddObjectLink01});
        menu.push_back({"Add Target Link from " + b + " to " + a, CommandId::AddTargetLink10});
        menu.push_back({"Add Object Link from " + b + " to " + a, CommandId::AddObjectLink10});
    }
    return menu;
}

} // namespace lw
