#include "CAboutDlg.h"

#include "app/AppInfo.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

CAboutDlg::CAboutDlg(QWidget* parent) : QDialog(parent) {
    setWindowTitle(tr("About Loomwright"));
    auto* icon = new QLabel(this);
    icon->setObjectName("icon");
    icon->setPixmap(QApplication::windowIcon().pixmap(32, 32));
    auto* version = new QLabel(
        QStringLiteral("%1 Version %2")
            .arg(QLatin1String(lw::kApplicationName), QLatin1String(lw::kApplicationVersion)),
        this);
    version->setObjectName("version");

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* row = new QHBoxLayout;
    row->addWidget(icon);
    row->addSpacing(12);
    row->addWidget(version, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
