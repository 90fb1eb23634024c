#pragma once

#include "dialogs/FormDialog.h"
#include "dialogs/GeometryAspectDlg.h"

class QComboBox;
class QLineEdit;

// The view of "Fractal Additional Parameters".
class QtFractalAdditionalDlg : public FormView<lw::CFractalAdditionalDlg> {
    Q_OBJECT

public:
    QtFractalAdditionalDlg(lw::CFractalAdditionalDlg& form, lw::UserPrompts& prompts,
                           QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QComboBox* aspectCombo_ = nullptr;
    QLineEdit* aspectValue_ = nullptr;
    QLineEdit* deviation_ = nullptr;
    QComboBox* typeCombo_ = nullptr;
};
