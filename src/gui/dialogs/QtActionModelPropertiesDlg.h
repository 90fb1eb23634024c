#pragma once

#include "FormDialog.h"
#include "dialogs/ActionModelPropertiesDlg.h"

class QComboBox;

// The view of "Action Model/Script properties": the type, then what to make
// of it; choosing a type refills the second list.
class QtActionModelPropertiesDlg : public FormView<lw::ActionModelPropertiesDlg> {
    Q_OBJECT

public:
    QtActionModelPropertiesDlg(lw::ActionModelPropertiesDlg& form, lw::UserPrompts& prompts,
                               QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QComboBox* typeCombo_ = nullptr;
    QComboBox* makeItCombo_ = nullptr;
};
