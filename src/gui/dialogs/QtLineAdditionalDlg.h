#pragma once

#include "dialogs/FormDialog.h"
#include "dialogs/GeometryAspectDlg.h"

class QComboBox;
class QLineEdit;

// The view of "Line Additional Parameters".
class QtLineAdditionalDlg : public FormDialog {
    Q_OBJECT

public:
    QtLineAdditionalDlg(lw::LineAdditionalDlg& form, lw::UserPrompts& prompts,
                        QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;
    bool AcceptModel() override;

private:
    lw::LineAdditionalDlg& form_;
    lw::UserPrompts& prompts_;
    QComboBox* aspectCombo_ = nullptr;
    QLineEdit* aspectValue_ = nullptr;
    QLineEdit* offset_ = nullptr;
    QLineEdit* deflection_ = nullptr;
};
