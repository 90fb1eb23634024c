#include "QtActionCountryPropertiesDlg.h"

#include "FieldBinding.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QVBoxLayout>

QtActionCountryPropertiesDlg::QtActionCountryPropertiesDlg(lw::ActionCountryPropertiesDlg& form,
                                                           lw::UserPrompts& prompts,
                                                           QWidget* parent)
    : FormView(lw::ActionCountryPropertiesDlg::kTitle, form, prompts, parent) {
    countryCombo_ = new QComboBox(this);
    countryCombo_->setObjectName("countryCombo");

    auto* rows = new QFormLayout;
    rows->addRow(tr("Select country type:"), countryCombo_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addWidget(OkCancelButtons());
    ShowModel();
}

void QtActionCountryPropertiesDlg::TakeWidgets() {
    TakeCombo(countryCombo_, form_.countryCombo);
}

void QtActionCountryPropertiesDlg::ShowModel() {
    ShowCombo(countryCombo_, form_.countryCombo);
}
