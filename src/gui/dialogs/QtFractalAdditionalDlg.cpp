#include "QtFractalAdditionalDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtFractalAdditionalDlg::QtFractalAdditionalDlg(lw::CFractalAdditionalDlg& form,
                                               lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::CFractalAdditionalDlg::kTitle, form, prompts, parent) {
    aspectCombo_ = new QComboBox(this);
    aspectCombo_->setObjectName("aspectCombo");
    aspectValue_ = new QLineEdit(this);
    aspectValue_->setObjectName("aspectValue");
    deviation_ = new QLineEdit(this);
    deviation_->setObjectName("deviation");
    typeCombo_ = new QComboBox(this);
    typeCombo_->setObjectName("typeCombo");

    auto* fields = new QFormLayout;
    fields->addRow(tr("Aspect:"), aspectCombo_);
    fields->addRow(tr("Aspect Value:"), aspectValue_);
    fields->addRow(tr("Deviation (%):"), deviation_);
    fields->addRow(tr("Type:"), typeCombo_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(OkCancelButtons());

    connect(aspectCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnAspectChanged(); }); });
    ShowModel();
}

void QtFractalAdditionalDlg::TakeWidgets() {
    TakeCombo(aspectCombo_, form_.aspectCombo);
    TakeNumber(aspectValue_, form_.aspectValue);
    TakeNumber(deviation_, form_.deviation);
    TakeCombo(typeCombo_, form_.typeCombo);
}

void QtFractalAdditionalDlg::ShowModel() {
    ShowCombo(aspectCombo_, form_.aspectCombo);
    ShowNumber(aspectValue_, form_.aspectValue);
    ShowNumber(deviation_, form_.deviation);
    ShowCombo(typeCombo_, form_.typeCombo);
}
