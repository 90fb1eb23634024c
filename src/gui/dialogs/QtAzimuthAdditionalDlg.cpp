#include "QtAzimuthAdditionalDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtAzimuthAdditionalDlg::QtAzimuthAdditionalDlg(lw::AzimuthAdditionalDlg& form,
                                               lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::AzimuthAdditionalDlg::kTitle, form, prompts, parent) {
    fromServer_ = new QCheckBox(tr("Get Parameters from Server"), this);
    fromServer_->setObjectName("fromServer");
    aspectCombo_ = new QComboBox(this);
    aspectCombo_->setObjectName("aspectCombo");
    aspectValue_ = new QLineEdit(this);
    aspectValue_->setObjectName("aspectValue");
    range_ = new QLineEdit(this);
    range_->setObjectName("range");
    azimuth_ = new QLineEdit(this);
    azimuth_->setObjectName("azimuth");

    auto* fields = new QFormLayout;
    fields->addRow(tr("Aspect type:"), aspectCombo_);
    fields->addRow(tr("Aspect value:"), aspectValue_);
    fields->addRow(tr("Range (m):"), range_);
    fields->addRow(tr("Azimuth"), azimuth_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fromServer_);
    layout->addLayout(fields);
    layout->addWidget(OkCancelButtons());

    connect(fromServer_, &QCheckBox::clicked, this,
            [this] { Handle([&] { form_.OnFromServerClicked(); }); });
    connect(aspectCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnAspectChanged(); }); });
    ShowModel();
}

void QtAzimuthAdditionalDlg::TakeWidgets() {
    form_.fromServer = fromServer_->isChecked();
    TakeCombo(aspectCombo_, form_.aspectCombo);
    TakeNumber(aspectValue_, form_.aspectValue);
    TakeNumber(range_, form_.range);
    TakeNumber(azimuth_, form_.azimuth);
}

void QtAzimuthAdditionalDlg::ShowModel() {
    fromServer_->setChecked(form_.fromServer);
    ShowCombo(aspectCombo_, form_.aspectCombo);
    ShowNumber(aspectValue_, form_.aspectValue);
    ShowNumber(range_, form_.range);
    ShowNumber(azimuth_, form_.azimuth);
}
