#pragma once

#include "QtGeometryAspectDlg.h"

class QComboBox;
class QLineEdit;

// The view of "Fractal Additional Parameters".
class QtFractalAdditionalDlg : public QtGeometryAspectDlg {
    Q_OBJECT

public:
    QtFractalAdditionalDlg(lw::CFractalAdditionalDlg& form, lw::UserPrompts& prompts,
                           QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    lw::CFractalAdditionalDlg& fractal_;
    QLineEdit* deviation_ = nullptr;
    QComboBox* typeCombo_ = nullptr;
};
