#include "QtPropertyDialogs.h"

#include "app/Weaver.h"
#include "dialogs/AddNewLinkDlg.h"
#include "dialogs/CPhasePropertiesDlg.h"
#include "dialogs/CasePropertiesDlg.h"
#include "dialogs/DeleteLinksDlg.h"
#include "dialogs/InputStringDlg.h"
#include "dialogs/QtAddNewLinkDlg.h"
#include "dialogs/QtCasePropertiesDlg.h"
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
bool QtPropertyDialogs::EditPhase(lw::Phase& phase) {
    lw::CPhasePropertiesDlg form(weaver_, phase);
    QtPhaseSubDialogs subDialogs(runner_, prompts_, parent_);
    QtPhasePropertiesDlg view(form, subDialogs, prompts_, parent_);
    return runner_.Run(view) && form.IsResultValid();
}

bool QtPropertyDialogs::EditCase(lw::Case& item, const std::vector<std::int32_t>& firstMembers) {
    lw::CasePropertiesDlg form(weaver_, item, firstMembers);
    return Run<QtCasePropertiesDlg>(form) && form.IsResultValid();
}

bool QtPropertyDialogs::EditSwitch(lw::Switch& item,
                                   const std::vector<std::int32_t>& firstMembers) {
    lw::SwitchPropertiesDlg form(weaver_, item, firstMembers);
    return Run<QtSwitchPropertiesDlg>(form) && form.IsResultValid();
}

bool QtPropertyDialogs::EditUnlinker(lw::Unlinker& unlinker, std::int32_t preselectedPhaseId) {
    lw::UnlinkPropertiesDlg form(weaver_, unlinker, preselectedPhaseId);
    return Run<QtUnlinkPropertiesDlg>(form) && form.IsResultValid();
}

bool QtPropertyDialogs::EditCheck(lw::Check&) {
    return false;
}

bool QtPropertyDialogs::EditAction(lw::Action&, lw::ActionDialog) {
    return false;
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
