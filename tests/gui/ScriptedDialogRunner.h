#pragma once

#include "dialogs/DialogRunner.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStringList>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace lw::test {

// Fills each dialog in as a user would, from a queue of fillers in the order
// the dialogs open; a dialog with no filler left is cancelled.
class ScriptedDialogRunner : public DialogRunner {
public:
    using Fill = std::function<void(QDialog&)>;

    void Queue(Fill fill) { fills_.push_back(std::move(fill)); }
    bool AllUsed() const { return fills_.empty(); }

    bool Run(QDialog& dialog) override {
        titles.append(dialog.windowTitle());
        dialog.show();
        if (!dialog.screen()->availableGeometry().contains(dialog.geometry()))
            offScreen.append(dialog.windowTitle());
        if (fills_.empty()) {
            dialog.reject();
            return false;
        }
        const Fill fill = std::move(fills_.front());
        fills_.pop_front();
        fill(dialog);
        return dialog.result() == QDialog::Accepted && !dialog.isVisible();
    }

    // The titles of the dialogs opened, in order.
    QStringList titles;
    // The titles of those that reached past the screen.
    QStringList offScreen;

private:
    std::deque<Fill> fills_;
};

template <typename Widget> Widget* Find(QDialog& dialog, const char* name) {
    auto* widget = dialog.findChild<Widget*>(QString::fromLatin1(name));
    if (widget == nullptr)
        qFatal("no widget %s in %s", name, qPrintable(dialog.windowTitle()));
    return widget;
}

inline void Choose(QDialog& dialog, const char* combo, const QString& text) {
    auto* box = Find<QComboBox>(dialog, combo);
    const int index = box->findText(text);
    if (index < 0)
        qFatal("no %s in %s", qPrintable(text), combo);
    box->setCurrentIndex(index);
}

inline void Type(QDialog& dialog, const char* edit, const QString& text) {
    Find<QLineEdit>(dialog, edit)->setText(text);
}

inline void Press(QDialog& dialog, const char* button) {
    Find<QAbstractButton>(dialog, button)->click();
}

inline void PressOk(QDialog& dialog) {
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

// A filler that presses these buttons or boxes in order, then OK.
inline ScriptedDialogRunner::Fill PressThenOk(std::vector<const char*> buttons) {
    return [buttons = std::move(buttons)](QDialog& dialog) {
        for (const char* button : buttons)
            Press(dialog, button);
        PressOk(dialog);
    };
}

// Whether the saved text holds the part; tells what it missed when not.
inline bool Contains(const std::string& text, const std::string& part) {
    if (text.find(part) != std::string::npos)
        return true;
    qWarning("missing \"%s\" in:\n%s", part.c_str(), text.c_str());
    return false;
}

} // namespace lw::test
