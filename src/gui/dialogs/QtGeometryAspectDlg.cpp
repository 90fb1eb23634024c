#include "QtGeometryAspectDlg.h"

#include "FieldBinding.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

QtGeometryAspectDlg::QtGeometryAspectDlg(const std::string& title, lw::GeometryAspectDlg& form,
                                         lw::UserPrompts& prompts, QWidget* parent)
    : FormView(title, form, prompts, parent), fields_(new QFormLayout) {
    aspectCombo_ = new QComboBox(this);
    aspectCombo_->setObjectName("aspectCombo");
    fields_->addRow(tr("Aspect:"), aspectCombo_);
    aspectValue_ = AddNumberRow(tr("Aspect Value:"), "aspectValue");
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields_);
    layout->addWidget(OkCancelButtons());

    connect(aspectCombo_, &QComboBox::currentIndexChanged, this,
            [this] { Handle([&] { form_.OnAspectChanged(); }); });
}

QLineEdit* QtGeometryAspectDlg::AddNumberRow(const QString& label, const char* name) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(name);
    fields_->addRow(label, edit);
    return edit;
}

void QtGeometryAspectDlg::TakeWidgets() {
    TakeCombo(aspectCombo_, form_.aspectCombo);
    TakeNumber(aspectValue_, form_.aspectValue);
}

void QtGeometryAspectDlg::ShowModel() {
    ShowCombo(aspectCombo_, form_.aspectCombo);
    ShowNumber(aspectValue_, form_.aspectValue);
}
