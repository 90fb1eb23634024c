#include "QtPropertyDialogs.h"

#include "app/Weaver.h"
#include "dialogs/ActionCountryPropertiesDlg.h"
#include "dialogs/ActionGeneralPropertiesDlg.h"
#include "dialogs/ActionModelPropertiesDlg.h"
#include "dialogs/ActionSkinPropertiesDlg.h"
#include "dialogs/AddNewLinkDlg.h"
#include "dialogs/CPhasePropertiesDlg.h"
#include "dialogs/CasePropertiesDlg.h"
#include "dialogs/CheckCoalitionPropertiesDlg.h"
#include "dialogs/CheckLocationTypePropertiesDlg.h"
#include "dialogs/CheckRangePropertiesDlg.h"
#include "dialogs/CheckSquadPropertiesDlg.h"
#include "dialogs/CheckValuePropertiesDlg.h"
#include "dialogs/DeleteLinksDlg.h"
#include "dialogs/InputStringDlg.h"
#include "dialogs/QtActionCountryPropertiesDlg.h"
#include "dialogs/QtActionGeneralPropertiesDlg.h"
#include "dialogs/QtActionModelPropertiesDlg.h"
#include "dialogs/QtActionSkinPropertiesDlg.h"
#include "dialogs/QtAddNewLinkDlg.h"
#include "dialogs/QtCasePropertiesDlg.h"
#include "dialogs/QtCheckCoalitionPropertiesDlg.h"
#include "dialogs/QtCheckLocationTypePropertiesDlg.h"
#include "dialogs/QtCheckRangePropertiesDlg.h"
#include "dialogs/QtCheckSquadPropertiesDlg.h"
#include "dialogs/QtCheckValuePropertiesDlg.h"
#include "dialogs/QtDateReader.h"
#include "dialogs/QtDeleteLinksDlg.h"
#include "dialogs/QtInputStringDlg.h"
#include "dialogs/QtPhasePropertiesDlg.h"
#include "dialogs/QtPhaseSubDialogs.h"
#include "dialogs/QtSwitchPropertiesDlg.h"
#include "dialogs/QtUnlinkPropertiesDlg.h"
#include "dialogs/SwitchPropertiesDlg.h"
#include "dialogs/UnlinkPropertiesDlg.h"

template <typename View, typename Form> bool QtPropertyDialogs::Run(Form& form) {
    View view(form, prompts_, parent_);
    return runner_.Run(view);
}

// The callers test the result themselves as well; the dialogs' own test
// comes first, as a dialog that ended with an unusable result counts as
// cancelled.
template <typename View, typename Form> bool QtPropertyDialogs::RunChecked(Form& form) {
    return Run<View>(form) && form.IsResultValid();
}

template <typename View, typename Form> bool QtPropertyDialogs::EditCheckWith(lw::Check& check) {
    Form form(check);
    return RunChecked<View>(form);
}

bool QtPropertyDialogs::EditPhase(lw::Phase& phase) {
    lw::CPhasePropertiesDlg form(weaver_, weaver_.blockPool, weaver_.blockFolders, phase);
    QtPhaseSubDialogs subDialogs(runner_, prompts_, parent_);
    QtPhasePropertiesDlg view(form, subDialogs, prompts_, parent_);
    return runner_.Run(view) && form.IsResultValid();
}

bool QtPropertyDialogs::EditCase(lw::Case& item, const std::vector<std::int32_t>& firstMembers) {
    lw::CasePropertiesDlg form(weaver_, item, firstMembers);
    return RunChecked<QtCasePropertiesDlg>(form);
}

bool QtPropertyDialogs::EditSwitch(lw::Switch& item,
                                   const std::vector<std::int32_t>& firstMembers) {
    lw::SwitchPropertiesDlg form(weaver_, item, firstMembers);
    return RunChecked<QtSwitchPropertiesDlg>(form);
}

bool QtPropertyDialogs::EditUnlinker(lw::Unlinker& unlinker, std::int32_t preselectedPhaseId) {
    lw::UnlinkPropertiesDlg form(weaver_, unlinker, preselectedPhaseId);
    return RunChecked<QtUnlinkPropertiesDlg>(form);
}

// The squad editor also reads a stored date in the user's own short form.
bool QtPropertyDialogs::EditCheck(lw::Check& check) {
    switch (check.type) {
    case lw::CheckSquad: {
        lw::CheckSquadPropertiesDlg form(check, QtDateReader());
        return RunChecked<QtCheckSquadPropertiesDlg>(form);
    }
    case lw::CheckLocationType:
        return EditCheckWith<QtCheckLocationTypePropertiesDlg, lw::CheckLocationTypePropertiesDlg>(
            check);
    case lw::CheckCoalition:
        return EditCheckWith<QtCheckCoalitionPropertiesDlg, lw::CheckCoalitionPropertiesDlg>(check);
    case lw::CheckRange:
        return EditCheckWith<QtCheckRangePropertiesDlg, lw::CheckRangePropertiesDlg>(check);
    case lw::CheckInRadius:
        return EditCheckWith<QtCheckInRadiusPropertiesDlg, lw::CheckInRadiusPropertiesDlg>(check);
    case lw::CheckInSector:
        return EditCheckWith<QtCheckInSectorPropertiesDlg, lw::CheckInSectorPropertiesDlg>(check);
    default:
        return false;
    }
}

// The skin, country and model editors have no test of their own: the
// caller judges the rule they wrote.
bool QtPropertyDialogs::EditAction(lw::Action& action, lw::ActionDialog dialog) {
    switch (dialog) {
    case lw::ActionDialog::Skin: {
        lw::ActionSkinPropertiesDlg form(action);
        return Run<QtActionSkinPropertiesDlg>(form);
    }
    case lw::ActionDialog::Country: {
        lw::ActionCountryPropertiesDlg form(action);
        return Run<QtActionCountryPropertiesDlg>(form);
    }
    case lw::ActionDialog::Model: {
        lw::ActionModelPropertiesDlg form(weaver_.modelList, action);
        return Run<QtActionModelPropertiesDlg>(form);
    }
    case lw::ActionDialog::General:
        break;
    }
    lw::ActionGeneralPropertiesDlg form(weaver_.ruleCatalogue, action);
    return RunChecked<QtActionGeneralPropertiesDlg>(form);
}

bool QtPropertyDialogs::AddLink(const lw::Phase& source, const lw::Phase& destination,
                                lw::Link& link) {
    lw::AddNewLinkDlg form(weaver_, source, destination, link.isObjectLink);
    if (!Run<QtAddNewLinkDlg>(form))
        return false;
    link = form.link;
    return true;
}

bool QtPropertyDialogs::DeleteLinks(const lw::Phase& phase, std::vector<lw::Link>& chosen) {
    lw::DeleteLinksDlg form(weaver_, phase);
    if (!Run<QtDeleteLinksDlg>(form))
        return false;
    chosen = form.toDelete;
    return true;
}

bool QtPropertyDialogs::InputString(const std::string& title, std::string& text) {
    lw::InputStringDlg form(title, text);
    if (!Run<QtInputStringDlg>(form))
        return false;
    text = form.text;
    return true;
}
