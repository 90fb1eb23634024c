#include "QtPhaseSubDialogs.h"

#include "QtAddBlocksDlg.h"
#include "QtAzimuthAdditionalDlg.h"
#include "QtFractalAdditionalDlg.h"
#include "QtLineAdditionalDlg.h"

template <typename View, typename Form> bool QtPhaseSubDialogs::RunView(Form& form) {
    View view(form, prompts_, parent_);
    return runner_.Run(view);
}

bool QtPhaseSubDialogs::Run(lw::CAddBlocksDlg& dialog) {
    return RunView<QtAddBlocksDlg>(dialog);
}

bool QtPhaseSubDialogs::Run(lw::AzimuthAdditionalDlg& dialog) {
    return RunView<QtAzimuthAdditionalDlg>(dialog);
}

bool QtPhaseSubDialogs::Run(lw::CFractalAdditionalDlg& dialog) {
    return RunView<QtFractalAdditionalDlg>(dialog);
}

bool QtPhaseSubDialogs::Run(lw::LineAdditionalDlg& dialog) {
    return RunView<QtLineAdditionalDlg>(dialog);
}
