#pragma once

#include "dialogs/FormDialog.h"
#include "dialogs/GeometryAspectDlg.h"

class QComboBox;
class QLineEdit;

// The view of "Fractal Additional Parameters".
class QtFractalAdditionalDlg : public FormDialog {
    Q_OBJECT

public:
    QtFractalAdditionalDlg(lw::CFractalAdditionalDlg& form, lw::UserPrompts& prompts,
                           QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;
    bool AcceptModel() override;

private:
    lw::CFractalAdditionalDlg& form_;
    lw::UserPrompts& prompts_;
    QComboBox* aspectCombo_ = nullptr;
    QLineEdit* aspectValue_ = nullptr;
    QLineEdit* deviation_ = nullptr;
    QComboBox* typeCombo_ = nullptr;
};
