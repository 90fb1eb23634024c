#include "QtLineAdditionalDlg.h"

#include "FieldBinding.h"
#include "QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtLineAdditionalDlg::QtLineAdditionalDlg(lw::LineAdditionalDlg& form, lw::UserPrompts& prompts,
                                         QWidget* parent)
    : FormView(lw::LineAdditionalDlg::kTitle, form, prompts, parent) {
    aspectCombo_ = new QComboBox(this);
    aspectCombo_->setObjectName("aspectCombo");
    aspectValue_ = new QLineEdit(this);
    aspectValue_->setObjectName("aspectValue");
    offset_ = new QLineEdit(this);
    offset_->setObjectName("offset");
    deflection_ = new QLineEdit(this);
    deflection_->setObjectName("deflection");

    auto* fields = new QFormLayout;
    fields->addRow(tr("Aspect:"), aspectCombo_);
    fields->addRow(tr("Aspect Value:"), aspectValue_);
    // The label's spelling is the one the users know.
    fields->addRow(tr("Offest (m):"), offset_);
    fields->addRow(tr("Deflection:"), deflection_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(OkCancelButtons());

    connect(aspectCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnAspectChanged(); }); });
    ShowModel();
}

void QtLineAdditionalDlg::TakeWidgets() {
    TakeCombo(aspectCombo_, form_.aspectCombo);
    TakeNumber(aspectValue_, form_.aspectValue);
    TakeNumber(offset_, form_.offset);
    TakeNumber(deflection_, form_.deflection);
}

void QtLineAdditionalDlg::ShowModel() {
    ShowCombo(aspectCombo_, form_.aspectCombo);
    ShowNumber(aspectValue_, form_.aspectValue);
    ShowNumber(offset_, form_.offset);
    ShowNumber(deflection_, form_.deflection);
}
