#pragma once

#include "FormDialog.h"
#include "dialogs/ActionSkinPropertiesDlg.h"

class QComboBox;

// The view of "Action Skin Property": one drop-down list of skins.
class QtActionSkinPropertiesDlg : public FormView<lw::ActionSkinPropertiesDlg> {
    Q_OBJECT

public:
    QtActionSkinPropertiesDlg(lw::ActionSkinPropertiesDlg& form, lw::UserPrompts& prompts,
                              QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QComboBox* skinCombo_ = nullptr;
};
