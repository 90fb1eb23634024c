#include "QtInputStringDlg.h"

#include "QtText.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QVBoxLayout>

QtInputStringDlg::QtInputStringDlg(lw::InputStringDlg& form, lw::UserPrompts& prompts,
                                   QWidget* parent)
    : FormView(form.title, form, prompts, parent) {
    text_ = new QLineEdit(this);
    text_->setObjectName("text");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text_);
    layout->addWidget(OkCancelButtons());
    ShowModel();
    text_->setFocus();
}

void QtInputStringDlg::TakeWidgets() {
    form_.text = ToStdString(text_->text());
}

void QtInputStringDlg::ShowModel() {
    text_->setText(ToQString(form_.text));
}
