#pragma once

#include "objects/Action.h"
#include "objects/Case.h"
#include "objects/Check.h"
#include "objects/Link.h"
#include "objects/Phase.h"
#include "objects/Switch.h"
#include "objects/Unlinker.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

// Which editor an action gets: chosen by the action's name.
enum class ActionDialog { General, Skin, Country, Model };

// The modal property dialogs. Each works on the live object and answers true
// when the user pressed OK and the dialog's own check of the result passed;
// the caller then applies its own tests and keeps or removes the object.
class PropertyDialogs {
public:
    virtual ~PropertyDialogs() = default;

    virtual bool EditPhase(Phase& phase) = 0;
    // `firstMembers` are offered as members of a new case or switch.
    virtual bool EditCase(Case& item, const std::vector<std::int32_t>& firstMembers) = 0;
    virtual bool EditSwitch(Switch& item, const std::vector<std::int32_t>& firstMembers) = 0;
    // A preselected phase of 0 lets the user choose any.
    virtual bool EditUnlinker(Unlinker& unlinker, std::int32_t preselectedPhaseId) = 0;
    // The editor of the check's type; a free check has none.
    virtual bool EditCheck(Check& check) = 0;
    virtual bool EditAction(Action& action, ActionDialog dialog) = 0;
    // `link` comes with both phases and its kind and leaves with its gates.
    virtual bool AddLink(const Phase& source, const Phase& destination, Link& link) = 0;
    // Fills `chosen` with the links of the phase to delete.
    virtual bool DeleteLinks(const Phase& phase, std::vector<Link>& chosen) = 0;
    // A line of text under this title.
    virtual bool InputString(const std::string& title, std::string& text) = 0;
};

// The class name of each dialog, as logs and bug reports name it.
const char* CheckDialogName(std::int32_t checkType);
const char* ActionDialogName(ActionDialog dialog);

} // namespace lw
