#include "QtUnlinkPropertiesDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

QtUnlinkPropertiesDlg::QtUnlinkPropertiesDlg(lw::UnlinkPropertiesDlg& form,
                                             lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::UnlinkPropertiesDlg::kTitle, form, prompts, parent) {
    phaseCombo_ = new QComboBox(this);
    phaseCombo_->setObjectName("phaseCombo");
    auto* phaseRow = new QFormLayout;
    phaseRow->addRow(tr("Phase:"), phaseCombo_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(phaseRow);
    layout->addLayout(MakeGateLists());
    layout->addWidget(OkCancelButtons());

    connect(phaseCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnPhaseChanged(); }); });
    connect(moveToUnlinkButton_, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnMoveToUnlink(); }); });
    connect(moveBackButton_, &QPushButton::clicked, this,
            [this] { Handle([&] { form_.OnMoveBack(); }); });
    connect(gateList_, &QListWidget::itemDoubleClicked, this,
            [this] { Handle([&] { form_.OnMoveToUnlink(); }); });
    connect(unlinkList_, &QListWidget::itemDoubleClicked, this,
            [this] { Handle([&] { form_.OnMoveBack(); }); });
    ShowModel();
}

// "Phase Gates:" on the left, "Gates to unlink:" on the right, the two
// buttons between them.
QLayout* QtUnlinkPropertiesDlg::MakeGateLists() {
    gateList_ = new QListWidget(this);
    gateList_->setObjectName("gateList");
    unlinkList_ = new QListWidget(this);
    unlinkList_->setObjectName("unlinkList");
    moveToUnlinkButton_ = new QPushButton(tr(">>>"), this);
    moveToUnlinkButton_->setObjectName("moveToUnlinkButton");
    moveBackButton_ = new QPushButton(tr("<<<"), this);
    moveBackButton_->setObjectName("moveBackButton");

    auto* left = new QVBoxLayout;
    left->addWidget(new QLabel(tr("Phase Gates:"), this));
    left->addWidget(gateList_);
    auto* middle = new QVBoxLayout;
    middle->addStretch();
    middle->addWidget(moveToUnlinkButton_);
    middle->addWidget(moveBackButton_);
    middle->addStretch();
    auto* right = new QVBoxLayout;
    right->addWidget(new QLabel(tr("Gates to unlink:"), this));
    right->addWidget(unlinkList_);
    auto* row = new QHBoxLayout;
    row->addLayout(left, 1);
    row->addLayout(middle);
    row->addLayout(right, 1);
    return row;
}

void QtUnlinkPropertiesDlg::TakeWidgets() {
    TakeCombo(phaseCombo_, form_.phaseCombo);
    TakeSelection(gateList_, form_.gateList);
    TakeSelection(unlinkList_, form_.unlinkList);
}

void QtUnlinkPropertiesDlg::ShowModel() {
    ShowCombo(phaseCombo_, form_.phaseCombo);
    ShowList(gateList_, form_.gateList);
    ShowList(unlinkList_, form_.unlinkList);
    moveToUnlinkButton_->setEnabled(form_.moveToUnlinkEnabled);
    moveBackButton_->setEnabled(form_.moveBackEnabled);
}
