#include "platform/ScriptedPropertyDialogs.h"

namespace lw {

bool ScriptedPropertyDialogs::Answer(DialogCall call) {
    Outcome outcome{false, Edit()};
    if (!outcomes_.empty()) {
        outcome = std::move(outcomes_.front());
        outcomes_.pop_front();
    }
    if (outcome.edit)
        outcome.edit(call);
    log_.push_back(Answered{call.dialog, outcome.accept});
    return outcome.accept;
}

bool ScriptedPropertyDialogs::EditPhase(Phase& phase) {
    return Answer(DialogCall{"CPhasePropertiesDlg", &phase});
}

bool ScriptedPropertyDialogs::EditCase(Case& item, const std::vector<std::int32_t>& firstMembers) {
    DialogCall call{"CasePropertiesDlg", &item};
    call.firstMembers = firstMembers;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::EditSwitch(Switch& item,
                                         const std::vector<std::int32_t>& firstMembers) {
    DialogCall call{"SwitchPropertiesDlg", &item};
    call.firstMembers = firstMembers;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::EditUnlinker(Unlinker& unlinker, std::int32_t preselectedPhaseId) {
    DialogCall call{"UnlinkPropertiesDlg", &unlinker};
    call.preselectedPhaseId = preselectedPhaseId;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::EditCheck(Check& check) {
    return Answer(DialogCall{CheckDialogName(check.type), &check});
}

bool ScriptedPropertyDialogs::EditAction(Action& action, ActionDialog dialog) {
    return Answer(DialogCall{ActionDialogName(dialog), &action});
}

bool ScriptedPropertyDialogs::AddLink(const Phase&, const Phase&, Link& link) {
    DialogCall call{"AddNewLinkDlg"};
    call.link = &link;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::DeleteLinks(const Phase& phase, std::vector<Link>& chosen) {
    DialogCall call{"DeleteLinksDlg", const_cast<Phase*>(&phase)};
    call.chosenLinks = &chosen;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::InputString(const std::string&, std::string& text) {
    DialogCall call{"InputStringDlg"};
    call.text = &text;
    return Answer(std::move(call));
}

} // namespace lw
