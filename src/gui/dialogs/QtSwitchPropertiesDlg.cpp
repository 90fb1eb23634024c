#include "QtSwitchPropertiesDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

QtSwitchPropertiesDlg::QtSwitchPropertiesDlg(lw::SwitchPropertiesDlg& form,
                                             lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::SwitchPropertiesDlg::kTitle, form, prompts, parent) {
    number_ = new QLineEdit(this);
    number_->setObjectName("number");
    auto* removeButton = new QPushButton(tr("Remove Case"), this);
    removeButton->setObjectName("removeButton");
    memberList_ = new QListWidget(this);
    memberList_->setObjectName("memberList");
    candidateCombo_ = new QComboBox(this);
    candidateCombo_->setObjectName("candidateCombo");
    auto* addButton = new QPushButton(tr("Add Case"), this);
    addButton->setObjectName("addButton");
    preliminaryCombo_ = new QComboBox(this);
    preliminaryCombo_->setObjectName("preliminaryCombo");
    name_ = new QLineEdit(this);
    name_->setObjectName("name");

    auto* numberRow = new QFormLayout;
    numberRow->addRow(tr("Number:"), number_);
    auto* candidateRow = new QHBoxLayout;
    candidateRow->addWidget(candidateCombo_, 1);
    candidateRow->addWidget(addButton);
    auto* checkRow = new QFormLayout;
    checkRow->addRow(tr("Preliminary check:"), preliminaryCombo_);
    auto* nameRow = new QFormLayout;
    nameRow->addRow(tr("Name:"), name_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(numberRow);
    layout->addWidget(removeButton);
    layout->addWidget(memberList_);
    layout->addLayout(candidateRow);
    layout->addLayout(checkRow);
    layout->addWidget(MakePlaneTypeGroup());
    layout->addLayout(nameRow);
    layout->addWidget(OkCancelButtons());

    connect(removeButton, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnRemove(); }); });
    connect(addButton, &QPushButton::clicked, this, [this] { Handle([&] { form_.OnAdd(); }); });
    connect(preliminaryCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnPreliminaryChanged(); }); });
    ShowModel();
}

// The radio group "Type"; a button's id is the plane type it stands for.
QWidget* QtSwitchPropertiesDlg::MakePlaneTypeGroup() {
    auto* group = new QGroupBox(tr("Type"), this);
    group->setObjectName("planeType");
    planeType_ = new QButtonGroup(this);
    auto* row = new QHBoxLayout(group);
    const char* names[] = {"fighterRadio", "reconRadio", "bomberRadio"};
    const QString texts[] = {tr("Fighter"), tr("Recon"), tr("Bomber")};
    for (int type = 0; type < 3; ++type) {
        auto* radio = new QRadioButton(texts[type], group);
        radio->setObjectName(names[type]);
        planeType_->addButton(radio, type);
        row->addWidget(radio);
    }
    return group;
}

void QtSwitchPropertiesDlg::TakeWidgets() {
    TakeNumber(number_, form_.number);
    TakeSelection(memberList_, form_.memberList);
    TakeCombo(candidateCombo_, form_.candidateCombo);
    TakeCombo(preliminaryCombo_, form_.preliminaryCombo);
    // No button is checked only while the switch's own value is none of the
    // three types; the user cannot clear a radio group, so that value stays.
    if (planeType_->checkedId() >= 0)
        form_.planeType = planeType_->checkedId();
    form_.name = ToStdString(name_->text());
}

void QtSwitchPropertiesDlg::ShowModel() {
    ShowNumber(number_, form_.number);
    ShowList(memberList_, form_.memberList);
    ShowCombo(candidateCombo_, form_.candidateCombo);
    ShowCombo(preliminaryCombo_, form_.preliminaryCombo);
    ShowPlaneType();
    name_->setText(ToQString(form_.name));
}

void QtSwitchPropertiesDlg::ShowPlaneType() {
    QAbstractButton* chosen = planeType_->button(form_.planeType);
    if (chosen != nullptr) {
        chosen->setChecked(true);
    } else {
        // An exclusive group will not uncheck its last button.
        planeType_->setExclusive(false);
        for (QAbstractButton* radio : planeType_->buttons())
            radio->setChecked(false);
        planeType_->setExclusive(true);
    }
    for (QAbstractButton* radio : planeType_->buttons())
        radio->setEnabled(form_.planeTypeEnabled);
}
