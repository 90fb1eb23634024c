#pragma once

#include "dialogs/AddNewLinkDlg.h"
#include "dialogs/FormDialog.h"

class QComboBox;
class QLineEdit;

// The view of the dialog that picks the gates of a new link.
class QtAddNewLinkDlg : public FormView<lw::AddNewLinkDlg> {
    Q_OBJECT

public:
    QtAddNewLinkDlg(lw::AddNewLinkDlg& form, lw::UserPrompts& prompts, QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QLineEdit* fromName_ = nullptr;
    QComboBox* fromCombo_ = nullptr;
    QLineEdit* toName_ = nullptr;
    QComboBox* toCombo_ = nullptr;
};
