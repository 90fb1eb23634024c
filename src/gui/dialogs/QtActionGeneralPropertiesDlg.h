#pragma once

#include "FormDialog.h"
#include "dialogs/ActionGeneralPropertiesDlg.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QTableWidget;

// The view of "Action General Rules properties": the rule with its comment,
// preview, parameter and condition, then the action's rules and what the
// chosen rule imports.
class QtActionGeneralPropertiesDlg : public FormView<lw::ActionGeneralPropertiesDlg> {
    Q_OBJECT

public:
    QtActionGeneralPropertiesDlg(lw::ActionGeneralPropertiesDlg& form, lw::UserPrompts& prompts,
                                 QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QLineEdit* ReadOnlyEdit(const char* objectName);

    QComboBox* ruleCombo_ = nullptr;
    QLineEdit* comment_ = nullptr;
    QLineEdit* format_ = nullptr;
    QLineEdit* parameter_ = nullptr;
    QLineEdit* condition_ = nullptr;
    QTableWidget* ruleList_ = nullptr;
    QPlainTextEdit* imported_ = nullptr;
};
