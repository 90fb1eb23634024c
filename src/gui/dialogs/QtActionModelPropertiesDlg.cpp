#include "QtActionModelPropertiesDlg.h"

#include "FieldBinding.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QVBoxLayout>

QtActionModelPropertiesDlg::QtActionModelPropertiesDlg(lw::ActionModelPropertiesDlg& form,
                                                       lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::ActionModelPropertiesDlg::kTitle, form, prompts, parent) {
    typeCombo_ = new QComboBox(this);
    typeCombo_->setObjectName("typeCombo");
    makeItCombo_ = new QComboBox(this);
    makeItCombo_->setObjectName("makeItCombo");

    auto* rows = new QFormLayout;
    rows->addRow(tr("Type:"), typeCombo_);
    rows->addRow(tr("Make it:"), makeItCombo_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addWidget(OkCancelButtons());

    connect(typeCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnTypeChanged(); }); });
    ShowModel();
}

void QtActionModelPropertiesDlg::TakeWidgets() {
    TakeCombo(typeCombo_, form_.typeCombo);
    TakeCombo(makeItCombo_, form_.makeItCombo);
}

void QtActionModelPropertiesDlg::ShowModel() {
    ShowCombo(typeCombo_, form_.typeCombo);
    ShowCombo(makeItCombo_, form_.makeItCombo);
}
