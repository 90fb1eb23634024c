#pragma once

#include "FormDialog.h"
#include "dialogs/ActionCountryPropertiesDlg.h"

class QComboBox;

// The view of "Country Action Properties": one drop-down list of sides.
class QtActionCountryPropertiesDlg : public FormView<lw::ActionCountryPropertiesDlg> {
    Q_OBJECT

public:
    QtActionCountryPropertiesDlg(lw::ActionCountryPropertiesDlg& form, lw::UserPrompts& prompts,
                                 QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QComboBox* countryCombo_ = nullptr;
};
