#pragma once

#include <QDialog>

// Runs a property dialog modally. The editor shows it and waits; tests put a
// runner of their own here that fills the dialog in and presses its buttons.
class DialogRunner {
public:
    virtual ~DialogRunner() = default;
    // True when the dialog ended with OK.
    virtual bool Run(QDialog& dialog) { return dialog.exec() == QDialog::Accepted; }
};
