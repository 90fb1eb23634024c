#pragma once

#include "dialogs/FormDialog.h"
#include "dialogs/GeometryAspectDlg.h"

class QComboBox;
class QLineEdit;

// The view of "Line Additional Parameters".
class QtLineAdditionalDlg : public FormView<lw::LineAdditionalDlg> {
    Q_OBJECT

public:
    QtLineAdditionalDlg(lw::LineAdditionalDlg& form, lw::UserPrompts& prompts,
                        QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QComboBox* aspectCombo_ = nullptr;
    QLineEdit* aspectValue_ = nullptr;
    QLineEdit* offset_ = nullptr;
    QLineEdit* deflection_ = nullptr;
};
