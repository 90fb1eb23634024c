#include "QtCheckValuePropertiesDlg.h"

#include "FieldBinding.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtCheckValuePropertiesDlg::QtCheckValuePropertiesDlg(lw::CheckValuePropertiesDlg& form,
                                                     lw::UserPrompts& prompts, const char* title,
                                                     const QString& label, const QString& fieldName,
                                                     QWidget* parent)
    : FormView(title, form, prompts, parent) {
    value_ = new QLineEdit(this);
    value_->setObjectName(fieldName);
    auto* valueRow = new QFormLayout;
    valueRow->addRow(label, value_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(valueRow);
    layout->addWidget(OkCancelButtons());
    ShowModel();
}

void QtCheckValuePropertiesDlg::TakeWidgets() {
    TakeNumber(value_, form_.Value());
}

void QtCheckValuePropertiesDlg::ShowModel() {
    ShowNumber(value_, form_.Value());
}

QtCheckInRadiusPropertiesDlg::QtCheckInRadiusPropertiesDlg(lw::CheckInRadiusPropertiesDlg& form,
                                                           lw::UserPrompts& prompts,
                                                           QWidget* parent)
    : QtCheckValuePropertiesDlg(form, prompts, lw::CheckInRadiusPropertiesDlg::kTitle,
                                tr("Radius in meters:"), "radius", parent) {}

QtCheckInSectorPropertiesDlg::QtCheckInSectorPropertiesDlg(lw::CheckInSectorPropertiesDlg& form,
                                                           lw::UserPrompts& prompts,
                                                           QWidget* parent)
    : QtCheckValuePropertiesDlg(form, prompts, lw::CheckInSectorPropertiesDlg::kTitle,
                                tr("Arc in degrees:"), "arc", parent) {}
