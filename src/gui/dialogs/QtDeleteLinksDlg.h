#pragma once

#include "dialogs/DeleteLinksDlg.h"
#include "dialogs/FormDialog.h"
#include "platform/UserPrompts.h"

class QTableWidget;

// The view of "Delete Links connected to phase": a table of the links at the
// phase, one whole row each.
class QtDeleteLinksDlg : public FormDialog {
    Q_OBJECT

public:
    QtDeleteLinksDlg(lw::DeleteLinksDlg& form, lw::UserPrompts& prompts, QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;
    bool AcceptModel() override;

private:
    void MakeColumns();

    lw::DeleteLinksDlg& form_;
    QTableWidget* linkView_ = nullptr;
};
