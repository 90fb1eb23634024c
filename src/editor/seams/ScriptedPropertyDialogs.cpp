#include "seams/ScriptedPropertyDialogs.h"

namespace lw {

namespace {

DialogCall Call(std::string dialog, EditorObject* object = nullptr) {
    DialogCall call;
    call.dialog = std::move(dialog);
    call.object = object;
    return call;
}

} // namespace

bool ScriptedPropertyDialogs::Answer(DialogCall call) {
    Outcome outcome{false, Edit()};
    if (!outcomes_.empty()) {
        outcome = std::move(outcomes_.front());
        outcomes_.pop_front();
    }
    if (outcome.edit)
        outcome.edit(call);
    log_.push_back(Answered{call.dialog, call.title, outcome.accept});
    return outcome.accept;
}

bool ScriptedPropertyDialogs::EditPhase(Phase& phase) {
    return Answer(Call("CPhasePropertiesDlg", &phase));
}

bool ScriptedPropertyDialogs::EditCase(Case& item, const std::vector<std::int32_t>& firstMembers) {
    DialogCall call = Call("CasePropertiesDlg", &item);
    call.firstMembers = firstMembers;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::EditSwitch(Switch& item,
                                         const std::vector<std::int32_t>& firstMembers) {
    DialogCall call = Call("SwitchPropertiesDlg", &item);
    call.firstMembers = firstMembers;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::EditUnlinker(Unlinker& unlinker, std::int32_t preselectedPhaseId) {
    DialogCall call = Call("UnlinkPropertiesDlg", &unlinker);
    call.preselectedPhaseId = preselectedPhaseId;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::EditCheck(Check& check) {
    return Answer(Call(CheckDialogName(check.type), &check));
}

bool ScriptedPropertyDialogs::EditAction(Action& action, ActionDialog dialog) {
    return Answer(Call(ActionDialogName(dialog), &action));
}

bool ScriptedPropertyDialogs::AddLink(const Phase&, const Phase&, Link& link) {
    DialogCall call = Call("AddNewLinkDlg");
    call.link = &link;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::DeleteLinks(const Phase& phase, std::vector<Link>& chosen) {
    DialogCall call = Call("DeleteLinksDlg", const_cast<Phase*>(&phase));
    call.chosenLinks = &chosen;
    return Answer(std::move(call));
}

bool ScriptedPropertyDialogs::InputString(const std::string& title, std::string& text) {
    DialogCall call = Call("InputStringDlg");
    call.title = title;
    call.text = &text;
    return Answer(std::move(call));
}

} // namespace lw
