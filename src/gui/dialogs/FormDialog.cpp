#include "FormDialog.h"

#include <QDialogButtonBox>

FormDialog::FormDialog(const QString& title, QWidget* parent) : QDialog(parent) {
    setWindowTitle(title);
    setModal(true);
}

void FormDialog::accept() {
    TakeWidgets();
    const bool accepted = AcceptModel();
    ShowModel();
    if (accepted)
        QDialog::accept();
}

QDialogButtonBox* FormDialog::OkCancelButtons() {
    if (buttons_ == nullptr) {
        buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        connect(buttons_, &QDialogButtonBox::accepted, this, &FormDialog::accept);
        connect(buttons_, &QDialogButtonBox::rejected, this, &FormDialog::reject);
    }
    return buttons_;
}
