#pragma once

#include "dialogs/CheckValuePropertiesDlg.h"
#include "dialogs/FormDialog.h"

class QLineEdit;

// The view shared by "In Radius Check" and "In Sector Check": one labelled
// number edit, named after the dialog's field.
class QtCheckValuePropertiesDlg : public FormView<lw::CheckValuePropertiesDlg> {
    Q_OBJECT

protected:
    QtCheckValuePropertiesDlg(lw::CheckValuePropertiesDlg& form, lw::UserPrompts& prompts,
                              const char* title, const QString& label, const QString& fieldName,
                              QWidget* parent);

    void TakeWidgets() override;
    void ShowModel() override;

private:
    QLineEdit* value_ = nullptr;
};

// The edit is "radius".
class QtCheckInRadiusPropertiesDlg : public QtCheckValuePropertiesDlg {
    Q_OBJECT

public:
    QtCheckInRadiusPropertiesDlg(lw::CheckInRadiusPropertiesDlg& form, lw::UserPrompts& prompts,
                                 QWidget* parent = nullptr);
};

// The edit is "arc".
class QtCheckInSectorPropertiesDlg : public QtCheckValuePropertiesDlg {
    Q_OBJECT

public:
    QtCheckInSectorPropertiesDlg(lw::CheckInSectorPropertiesDlg& form, lw::UserPrompts& prompts,
                                 QWidget* parent = nullptr);
};
