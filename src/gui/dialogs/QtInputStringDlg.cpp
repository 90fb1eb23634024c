#include "QtInputStringDlg.h"

#include "QtText.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QVBoxLayout>

// The dialog makes no checks, so it has no use for the prompts.
QtInputStringDlg::QtInputStringDlg(lw::InputStringDlg& form, lw::UserPrompts&, QWidget* parent)
    : FormDialog(ToQString(form.title), parent), form_(form) {
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

bool QtInputStringDlg::AcceptModel() {
    return true;
}
