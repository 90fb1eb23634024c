#pragma once

#include "dialogs/CheckLocationTypePropertiesDlg.h"
#include "dialogs/FormDialog.h"

#include <array>

class QCheckBox;
class QComboBox;

// The view of "Location Type Check": the type, then its column of boxes
// "box0" to "box22", of which only the type's own are shown.
class QtCheckLocationTypePropertiesDlg : public FormView<lw::CheckLocationTypePropertiesDlg> {
    Q_OBJECT

public:
    QtCheckLocationTypePropertiesDlg(lw::CheckLocationTypePropertiesDlg& form,
                                     lw::UserPrompts& prompts, QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QComboBox* typeCombo_ = nullptr;
    std::array<QCheckBox*, lw::CheckLocationTypePropertiesDlg::kBoxCount> boxes_{};
};
