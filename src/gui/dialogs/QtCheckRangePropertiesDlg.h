#pragma once

#include "dialogs/CheckRangePropertiesDlg.h"
#include "dialogs/FormDialog.h"

class QCheckBox;
class QLineEdit;

// The view of "Range Check": the two boxes and the range, which is disabled
// while the parameter gives it.
class QtCheckRangePropertiesDlg : public FormView<lw::CheckRangePropertiesDlg> {
    Q_OBJECT

public:
    QtCheckRangePropertiesDlg(lw::CheckRangePropertiesDlg& form, lw::UserPrompts& prompts,
                              QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QCheckBox* closest_ = nullptr;
    QCheckBox* useParameter_ = nullptr;
    QLineEdit* range_ = nullptr;
};
