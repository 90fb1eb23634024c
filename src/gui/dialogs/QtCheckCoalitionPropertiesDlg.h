#pragma once

#include "dialogs/CheckCoalitionPropertiesDlg.h"
#include "dialogs/FormDialog.h"

class QCheckBox;

// The view of "Coalition Check": one box per side.
class QtCheckCoalitionPropertiesDlg : public FormView<lw::CheckCoalitionPropertiesDlg> {
    Q_OBJECT

public:
    QtCheckCoalitionPropertiesDlg(lw::CheckCoalitionPropertiesDlg& form, lw::UserPrompts& prompts,
                                  QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QCheckBox* friendly_ = nullptr;
    QCheckBox* enemy_ = nullptr;
    QCheckBox* neutral_ = nullptr;
};
