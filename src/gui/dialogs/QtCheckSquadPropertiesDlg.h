#pragma once

#include "dialogs/CheckSquadPropertiesDlg.h"
#include "dialogs/FormDialog.h"

class QCalendarWidget;
class QCheckBox;
class QLineEdit;

// The view of "Check Squad": the two boxes, the squad number and the month
// calendar, which is hidden while the server gives the date.
class QtCheckSquadPropertiesDlg : public FormView<lw::CheckSquadPropertiesDlg> {
    Q_OBJECT

public:
    QtCheckSquadPropertiesDlg(lw::CheckSquadPropertiesDlg& form, lw::UserPrompts& prompts,
                              QWidget* parent = nullptr);

protected:
    void TakeWidgets() override;
    void ShowModel() override;

private:
    QCheckBox* usePlayerSquad_ = nullptr;
    QCheckBox* useServerDate_ = nullptr;
    QLineEdit* squadId_ = nullptr;
    QCalendarWidget* date_ = nullptr;
};
