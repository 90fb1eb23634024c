#include "QtFractalAdditionalDlg.h"

#include "FieldBinding.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

QtFractalAdditionalDlg::QtFractalAdditionalDlg(lw::CFractalAdditionalDlg& form,
                                               lw::UserPrompts& prompts, QWidget* parent)
    : QtGeometryAspectDlg(lw::CFractalAdditionalDlg::kTitle, form, prompts, parent),
      fractal_(form) {
    deviation_ = AddNumberRow(tr("Deviation (%):"), "deviation");
    typeCombo_ = new QComboBox(this);
    typeCombo_->setObjectName("typeCombo");
    Fields()->addRow(tr("Type:"), typeCombo_);
    ShowModel();
}

void QtFractalAdditionalDlg::TakeWidgets() {
    QtGeometryAspectDlg::TakeWidgets();
    TakeNumber(deviation_, fractal_.deviation);
    TakeCombo(typeCombo_, fractal_.typeCombo);
}

void QtFractalAdditionalDlg::ShowModel() {
    QtGeometryAspectDlg::ShowModel();
    ShowNumber(deviation_, fractal_.deviation);
    ShowCombo(typeCombo_, fractal_.typeCombo);
}
