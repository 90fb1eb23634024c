#pragma once

#include "dialogs/FormDialog.h"
#include "dialogs/InputStringDlg.h"
#include "platform/UserPrompts.h"

class QLineEdit;

// The view of the dialog that asks for one line of text.
class QtInputStringDlg : public FormView<lw::InputStringDlg> {
    Q_OBJECT

public:
    QtInputStringDlg(lw::InputStringDlg& form, lw::UserPrompts& prompts, QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QLineEdit* text_ = nullptr;
};
