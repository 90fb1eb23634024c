#pragma once

#include "FormDialog.h"
#include "dialogs/SwitchPropertiesDlg.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QListWidget;
class QRadioButton;

// The view of "Switch properties": the number, the member cases with
// "Remove Case", the candidates beside "Add Case", the preliminary check,
// the plane type and the name.
class QtSwitchPropertiesDlg : public FormView<lw::SwitchPropertiesDlg> {
    Q_OBJECT

public:
    QtSwitchPropertiesDlg(lw::SwitchPropertiesDlg& form, lw::UserPrompts& prompts,
                          QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QWidget* MakePlaneTypeGroup();
    void ShowPlaneType();

    QLineEdit* number_ = nullptr;
    QListWidget* memberList_ = nullptr;
    QComboBox* candidateCombo_ = nullptr;
    QComboBox* preliminaryCombo_ = nullptr;
    QButtonGroup* planeType_ = nullptr;
    QLineEdit* name_ = nullptr;
};
