#include "QtAddNewLinkDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtAddNewLinkDlg::QtAddNewLinkDlg(lw::AddNewLinkDlg& form, lw::UserPrompts& prompts, QWidget* parent)
    : FormView(form.title, form, prompts, parent) {
    fromName_ = new QLineEdit(this);
    fromName_->setObjectName("fromName");
    fromName_->setReadOnly(true);
    fromCombo_ = new QComboBox(this);
    fromCombo_->setObjectName("fromCombo");
    toName_ = new QLineEdit(this);
    toName_->setObjectName("toName");
    toName_->setReadOnly(true);
    toCombo_ = new QComboBox(this);
    toCombo_->setObjectName("toCombo");

    auto* fields = new QFormLayout;
    fields->addRow(tr("From Phase:"), fromName_);
    fields->addRow(tr("From Connection:"), fromCombo_);
    fields->addRow(tr("To Phase:"), toName_);
    fields->addRow(tr("To Connection:"), toCombo_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(OkCancelButtons());
    ShowModel();
}

void QtAddNewLinkDlg::TakeWidgets() {
    TakeCombo(fromCombo_, form_.fromCombo);
    TakeCombo(toCombo_, form_.toCombo);
}

void QtAddNewLinkDlg::ShowModel() {
    fromName_->setText(ToQString(form_.fromName));
    ShowCombo(fromCombo_, form_.fromCombo);
    toName_->setText(ToQString(form_.toName));
    ShowCombo(toCombo_, form_.toCombo);
}
