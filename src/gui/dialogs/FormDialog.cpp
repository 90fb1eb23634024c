#include "FormDialog.h"

#include <QDialogButtonBox>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

// Room for the window system's frame, which is not known before the dialog shows.
constexpr int kFrameAllowance = 48;

} // namespace

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

void FormDialog::showEvent(QShowEvent* event) {
    const QRect available = screen()->availableGeometry();
    const QSize room = available.size() - QSize(kFrameAllowance, kFrameAllowance);
    const QSize wanted = sizeHint();
    if (layout() != nullptr && (wanted.height() > room.height() || wanted.width() > room.width())) {
        // The form's layout moves into the scroll area with all its widgets.
        auto* content = new QWidget;
        content->setLayout(layout());
        auto* scroll = new QScrollArea(this);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidgetResizable(true);
        scroll->setWidget(content);
        auto* outer = new QVBoxLayout(this);
        outer->setContentsMargins(0, 0, 0, 0);
        outer->addWidget(scroll);
        // The dialog is already showing its children: the new ones need a show of their own.
        scroll->show();
        // The form's layout had already set the dialog's least size to its own.
        setMinimumSize(0, 0);
        resize(wanted.boundedTo(room));
        move(available.center() - rect().center());
    }
    QDialog::showEvent(event);
}

QDialogButtonBox* FormDialog::OkCancelButtons() {
    if (buttons_ == nullptr) {
        buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        connect(buttons_, &QDialogButtonBox::accepted, this, &FormDialog::accept);
        connect(buttons_, &QDialogButtonBox::rejected, this, &FormDialog::reject);
    }
    return buttons_;
}
