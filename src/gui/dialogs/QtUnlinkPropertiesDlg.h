#pragma once

#include "FormDialog.h"
#include "dialogs/UnlinkPropertiesDlg.h"

class QComboBox;
class QListWidget;
class QPushButton;

// The view of "Unlink properties (unlink non-player gates)": the phase on
// top, below it the phase's gates, ">>>" and "<<<", and the gates to unlink.
class QtUnlinkPropertiesDlg : public FormView<lw::UnlinkPropertiesDlg> {
    Q_OBJECT

public:
    QtUnlinkPropertiesDlg(lw::UnlinkPropertiesDlg& form, lw::UserPrompts& prompts,
                          QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QLayout* MakeGateLists();

    QComboBox* phaseCombo_ = nullptr;
    QListWidget* gateList_ = nullptr;
    QListWidget* unlinkList_ = nullptr;
    QPushButton* moveToUnlinkButton_ = nullptr;
    QPushButton* moveBackButton_ = nullptr;
};
