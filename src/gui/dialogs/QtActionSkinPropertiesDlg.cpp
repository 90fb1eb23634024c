#include "QtActionSkinPropertiesDlg.h"

#include "FieldBinding.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QVBoxLayout>

QtActionSkinPropertiesDlg::QtActionSkinPropertiesDlg(lw::ActionSkinPropertiesDlg& form,
                                                     lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::ActionSkinPropertiesDlg::kTitle, form, prompts, parent) {
    skinCombo_ = new QComboBox(this);
    skinCombo_->setObjectName("skinCombo");

    auto* rows = new QFormLayout;
    rows->addRow(tr("Skin Type:"), skinCombo_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addWidget(OkCancelButtons());
    ShowModel();
}

void QtActionSkinPropertiesDlg::TakeWidgets() {
    TakeCombo(skinCombo_, form_.skinCombo);
}

void QtActionSkinPropertiesDlg::ShowModel() {
    ShowCombo(skinCombo_, form_.skinCombo);
}
