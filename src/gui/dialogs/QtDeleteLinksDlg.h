#pragma once

#include "dialogs/DeleteLinksDlg.h"
#include "dialogs/FormDialog.h"
#include "platform/UserPrompts.h"

class QTableWidget;

// The view of "Delete Links connected to phase": a table of the links at the
// phase, one whole row each.
class QtDeleteLinksDlg : public FormView<lw::DeleteLinksDlg> {
    Q_OBJECT

public:
    QtDeleteLinksDlg(lw::DeleteLinksDlg& form, lw::UserPrompts& prompts, QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QTableWidget* linkView_ = nullptr;
};
