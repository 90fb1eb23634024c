#include "QtCheckRangePropertiesDlg.h"

#include "FieldBinding.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtCheckRangePropertiesDlg::QtCheckRangePropertiesDlg(lw::CheckRangePropertiesDlg& form,
                                                     lw::UserPrompts& prompts, QWidget* parent)
    : FormView(lw::CheckRangePropertiesDlg::kTitle, form, prompts, parent) {
    closest_ = new QCheckBox(tr("Closest, but not closer than"), this);
    closest_->setObjectName("closest");
    useParameter_ = new QCheckBox(tr("Use Parameter ($checkrange)"), this);
    useParameter_->setObjectName("useParameter");
    range_ = new QLineEdit(this);
    range_->setObjectName("range");

    auto* rangeRow = new QFormLayout;
    rangeRow->addRow(tr("Range in meters:"), range_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(closest_);
    layout->addWidget(useParameter_);
    layout->addLayout(rangeRow);
    layout->addWidget(OkCancelButtons());

    connect(useParameter_, &QCheckBox::clicked, this,
            [this] { Handle([&] { form_.OnUseParameterClicked(); }); });
    ShowModel();
}

void QtCheckRangePropertiesDlg::TakeWidgets() {
    form_.closest = closest_->isChecked();
    form_.useParameter = useParameter_->isChecked();
    TakeNumber(range_, form_.range);
}

void QtCheckRangePropertiesDlg::ShowModel() {
    closest_->setChecked(form_.closest);
    useParameter_->setChecked(form_.useParameter);
    ShowNumber(range_, form_.range);
}
