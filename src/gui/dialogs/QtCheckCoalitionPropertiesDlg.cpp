#include "QtCheckCoalitionPropertiesDlg.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QVBoxLayout>

QtCheckCoalitionPropertiesDlg::QtCheckCoalitionPropertiesDlg(lw::CheckCoalitionPropertiesDlg& form,
                                                             lw::UserPrompts& prompts,
                                                             QWidget* parent)
    : FormView(lw::CheckCoalitionPropertiesDlg::kTitle, form, prompts, parent) {
    friendly_ = new QCheckBox(tr("Friendly"), this);
    friendly_->setObjectName("friendly");
    enemy_ = new QCheckBox(tr("Enemy"), this);
    enemy_->setObjectName("enemy");
    neutral_ = new QCheckBox(tr("Neutral"), this);
    neutral_->setObjectName("neutral");

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(friendly_);
    layout->addWidget(enemy_);
    layout->addWidget(neutral_);
    layout->addWidget(OkCancelButtons());
    ShowModel();
}

void QtCheckCoalitionPropertiesDlg::TakeWidgets() {
    form_.friendly = friendly_->isChecked();
    form_.enemy = enemy_->isChecked();
    form_.neutral = neutral_->isChecked();
}

void QtCheckCoalitionPropertiesDlg::ShowModel() {
    friendly_->setChecked(form_.friendly);
    enemy_->setChecked(form_.enemy);
    neutral_->setChecked(form_.neutral);
}
