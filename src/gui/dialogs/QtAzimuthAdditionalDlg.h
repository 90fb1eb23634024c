#pragma once

#include "dialogs/AzimuthAdditionalDlg.h"
#include "dialogs/FormDialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

// The view of "Azimuth Additional Parameters".
class QtAzimuthAdditionalDlg : public FormView<lw::AzimuthAdditionalDlg> {
    Q_OBJECT

public:
    QtAzimuthAdditionalDlg(lw::AzimuthAdditionalDlg& form, lw::UserPrompts& prompts,
                           QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QCheckBox* fromServer_ = nullptr;
    QComboBox* aspectCombo_ = nullptr;
    QLineEdit* aspectValue_ = nullptr;
    QLineEdit* range_ = nullptr;
    QLineEdit* azimuth_ = nullptr;
};
