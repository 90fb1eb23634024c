#pragma once

#include "FormDialog.h"
#include "dialogs/CasePropertiesDlg.h"

class QComboBox;
class QLineEdit;
class QListWidget;

// The view of "Case Properties": the members under "Remove Phases", the
// candidates beside "Add phase", then the name.
class QtCasePropertiesDlg : public FormView<lw::CasePropertiesDlg> {
    Q_OBJECT

public:
    QtCasePropertiesDlg(lw::CasePropertiesDlg& form, lw::UserPrompts& prompts,
                        QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QListWidget* memberList_ = nullptr;
    QComboBox* candidateCombo_ = nullptr;
    QLineEdit* name_ = nullptr;
};
