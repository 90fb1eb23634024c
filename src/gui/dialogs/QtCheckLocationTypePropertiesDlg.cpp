#include "QtCheckLocationTypePropertiesDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QVBoxLayout>

QtCheckLocationTypePropertiesDlg::QtCheckLocationTypePropertiesDlg(
    lw::CheckLocationTypePropertiesDlg& form, lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::CheckLocationTypePropertiesDlg::kTitle, form, prompts, parent) {
    typeCombo_ = new QComboBox(this);
    typeCombo_->setObjectName("typeCombo");
    auto* typeRow = new QFormLayout;
    typeRow->addRow(tr("Location Type:"), typeCombo_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(typeRow);
    // The boxes run down columns of eight, in their order from the top, so
    // that the 23 of "Decoration" fit on a small screen.
    constexpr int kRowsPerColumn = 8;
    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i] = new QCheckBox(this);
        boxes_[i]->setObjectName(QString("box%1").arg(i));
        const int index = static_cast<int>(i);
        grid->addWidget(boxes_[i], index % kRowsPerColumn, index / kRowsPerColumn);
    }
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addWidget(OkCancelButtons());

    connect(typeCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnTypeChanged(); }); });
    ShowModel();
}

// Hidden boxes are read too: their ticks are written as well.
void QtCheckLocationTypePropertiesDlg::TakeWidgets() {
    TakeCombo(typeCombo_, form_.typeCombo);
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        form_.boxes[i].ticked = boxes_[i]->isChecked();
}

void QtCheckLocationTypePropertiesDlg::ShowModel() {
    ShowCombo(typeCombo_, form_.typeCombo);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const auto& box = form_.boxes[i];
        boxes_[i]->setText(ToQString(box.caption));
        boxes_[i]->setChecked(box.ticked);
        boxes_[i]->setVisible(box.shown);
    }
}
