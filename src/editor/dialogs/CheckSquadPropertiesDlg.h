#pragma once

#include "dialogs/CalendarDate.h"
#include "dialogs/NumberField.h"
#include "objects/Check.h"
#include "platform/UserPrompts.h"

#include <cstdint>

namespace lw {

// "Check Squad": the squad the phase is for, by number or the player's own,
// and the date it is checked on, a fixed day or the server's.
//
// OK writes `params` after its own two checks but before validating the
// squad number, so a number out of range is refused with the dialog open
// and is already in the check.
class CheckSquadPropertiesDlg {
public:
    static constexpr const char* kTitle = "Check Squad";
    static constexpr const char* kPlayerSquad = "$playersquad";
    static constexpr const char* kServerDate = "$date";

    // `read` turns a stored date into the calendar's; it is also the test of
    // a stored date in IsResultValid.
    CheckSquadPropertiesDlg(Check& check, DateReader read = ReadDayMonthYear);

    // After the user set or cleared "Use '$playersquad'".
    void OnUsePlayerSquadClicked();
    // After the user set or cleared "Get Date from Server".
    void OnUseServerDateClicked();
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    bool usePlayerSquad = true;
    bool useServerDate = true;
    // 0 to 1000000; enabled when the player's squad is not used.
    NumberField squadId;
    CalendarDate date = kDefaultCalendarDate;
    // The calendar is shown when the date is not the server's.
    bool dateShown = false;

private:
    void LoadSquad();
    void LoadDate();
    void UpdateControls();
    void WriteParams();

    Check& check_;
    DateReader read_;
    // What the squad edit last read, as the check is written from it.
    std::int32_t squadNumber_ = 0;
};

} // namespace lw
