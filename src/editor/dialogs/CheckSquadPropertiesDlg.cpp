#include "dialogs/CheckSquadPropertiesDlg.h"

#include "dialogs/Refuse.h"
#include "text/Text.h"

#include <string>
#include <utility>

namespace lw {

namespace {

constexpr std::int32_t kMaxSquadId = 1000000;

} // namespace

CheckSquadPropertiesDlg::CheckSquadPropertiesDlg(Check& check, DateReader read)
    : check_(check), read_(std::move(read)) {
    squadId.digitsOnly = true;
    LoadSquad();
    LoadDate();
    squadId.ShowInt(squadNumber_);
    UpdateControls();
}

void CheckSquadPropertiesDlg::LoadSquad() {
    const auto& params = check_.params;
    if (params.empty() || params[0] == kPlayerSquad)
        return;
    usePlayerSquad = false;
    squadNumber_ = AtoiText(params[0]);
}

// A stored date the reader cannot make out leaves the calendar on its
// default day, which OK then writes.
void CheckSquadPropertiesDlg::LoadDate() {
    const auto& params = check_.params;
    if (params.size() < 2 || params[1] == kServerDate)
        return;
    useServerDate = false;
    CalendarDate stored;
    if (read_(params[1], stored))
        date = stored;
}

void CheckSquadPropertiesDlg::UpdateControls() {
    squadId.enabled = !usePlayerSquad;
    dateShown = !useServerDate;
}

void CheckSquadPropertiesDlg::OnUsePlayerSquadClicked() {
    UpdateControls();
}

void CheckSquadPropertiesDlg::OnUseServerDateClicked() {
    UpdateControls();
}

bool CheckSquadPropertiesDlg::Ok(UserPrompts& prompts) {
    TakeIntUnchecked(squadId, squadNumber_);
    if (!usePlayerSquad && squadNumber_ < 1)
        return Refuse(prompts, "Squad ID must be set (can't be zero)!");
    if (!useServerDate && date.status != CalendarDate::Status::Valid)
        return Refuse(prompts, "Invalid Date!");
    WriteParams();
    std::int32_t checked = 0;
    return ReadInt(squadId, checked, prompts, 0, kMaxSquadId);
}

void CheckSquadPropertiesDlg::WriteParams() {
    check_.params.resize(2);
    check_.params[0] = usePlayerSquad ? kPlayerSquad : std::to_string(squadNumber_);
    check_.params[1] = useServerDate ? kServerDate : FormatDate(date);
}

// A squad number of 1 passes OK but not this test, so a new check with it is
// dropped by the editor.
bool CheckSquadPropertiesDlg::IsResultValid() const {
    const auto& params = check_.params;
    if (params.size() != 2)
        return false;
    const bool squadOk = params[0] == kPlayerSquad || AtoiText(params[0]) > 1;
    CalendarDate parsed;
    const bool dateOk = params[1] == kServerDate || read_(params[1], parsed);
    return squadOk && dateOk;
}

} // namespace lw
