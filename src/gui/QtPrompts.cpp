#include "QtPrompts.h"

#include "QtText.h"
#include "app/AppInfo.h"

#include <QMessageBox>

namespace {

QMessageBox::Icon ToQtIcon(lw::MessageIcon icon) {
    switch (icon) {
    case lw::MessageIcon::Stop:
        return QMessageBox::Critical;
    case lw::MessageIcon::Question:
        return QMessageBox::Question;
    case lw::MessageIcon::Warning:
        return QMessageBox::Warning;
    case lw::MessageIcon::Information:
        return QMessageBox::Information;
    case lw::MessageIcon::None:
        return QMessageBox::NoIcon;
    }
    return QMessageBox::NoIcon;
}

} // namespace

void QtPrompts::ShowMessage(const std::string& text, lw::MessageIcon icon,
                            lw::MessageButtons buttons) {
    const QMessageBox::StandardButtons shown = buttons == lw::MessageButtons::OkCancel
                                                   ? QMessageBox::Ok | QMessageBox::Cancel
                                                   : QMessageBox::Ok;
    QMessageBox box(ToQtIcon(icon), lw::kApplicationName, ToQString(text), shown, parent_);
    box.exec();
}

lw::Answer QtPrompts::Ask(const std::string& question, lw::MessageIcon icon,
                          lw::QuestionButtons buttons) {
    const bool cancels = buttons == lw::QuestionButtons::YesNoCancel;
    QMessageBox box(ToQtIcon(icon), lw::kApplicationName, ToQString(question),
                    QMessageBox::Yes | QMessageBox::No |
                        (cancels ? QMessageBox::Cancel : QMessageBox::NoButton),
                    parent_);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(cancels ? QMessageBox::Cancel : QMessageBox::No);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return lw::Answer::Yes;
    case QMessageBox::No:
        return lw::Answer::No;
    default:
        return lw::Answer::Cancel;
    }
}
