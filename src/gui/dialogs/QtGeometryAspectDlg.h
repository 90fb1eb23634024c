#pragma once

#include "dialogs/FormDialog.h"
#include "dialogs/GeometryAspectDlg.h"

#include <string>

class QComboBox;
class QFormLayout;
class QLineEdit;

// What the fractal and line parameter views share: "Aspect:" and "Aspect
// Value:" on top, then the rows each adds for its own two fields.
class QtGeometryAspectDlg : public FormView<lw::GeometryAspectDlg> {
    Q_OBJECT

public:
    QtGeometryAspectDlg(const std::string& title, lw::GeometryAspectDlg& form,
                        lw::UserPrompts& prompts, QWidget* parent);

protected:
    // Adds a number edit named after its field below the ones there are.
    QLineEdit* AddNumberRow(const QString& label, const char* name);
    QFormLayout* Fields() { return fields_; }

    void TakeWidgets() override;
    void ShowModel() override;

private:
    QFormLayout* fields_ = nullptr;
    QComboBox* aspectCombo_ = nullptr;
    QLineEdit* aspectValue_ = nullptr;
};
