#include "QtCasePropertiesDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

QtCasePropertiesDlg::QtCasePropertiesDlg(lw::CasePropertiesDlg& form, lw::UserPrompts& prompts,
                                         QWidget* parent)
    : FormView(lw::CasePropertiesDlg::kTitle, form, prompts, parent) {
    auto* removeButton = new QPushButton(tr("Remove Phases"), this);
    removeButton->setObjectName("removeButton");
    memberList_ = new QListWidget(this);
    memberList_->setObjectName("memberList");
    candidateCombo_ = new QComboBox(this);
    candidateCombo_->setObjectName("candidateCombo");
    auto* addButton = new QPushButton(tr("Add phase"), this);
    addButton->setObjectName("addButton");
    name_ = new QLineEdit(this);
    name_->setObjectName("name");

    auto* candidateRow = new QHBoxLayout;
    candidateRow->addWidget(candidateCombo_, 1);
    candidateRow->addWidget(addButton);
    auto* nameRow = new QFormLayout;
    nameRow->addRow(tr("Name:"), name_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(removeButton);
    layout->addWidget(memberList_);
    layout->addLayout(candidateRow);
    layout->addLayout(nameRow);
    layout->addWidget(OkCancelButtons());

    connect(removeButton, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnRemove(); }); });
    connect(addButton, &QPushButton::clicked, this, [this] { Handle([&] { form_.OnAdd(); }); });
    ShowModel();
}

void QtCasePropertiesDlg::TakeWidgets() {
    TakeSelection(memberList_, form_.memberList);
    TakeCombo(candidateCombo_, form_.candidateCombo);
    form_.name = ToStdString(name_->text());
}

void QtCasePropertiesDlg::ShowModel() {
    ShowList(memberList_, form_.memberList);
    ShowCombo(candidateCombo_, form_.candidateCombo);
    name_->setText(ToQString(form_.name));
}
