#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace lw {
class Finder;
} // namespace lw

// The bar under the canvas that Edit > Find... opens: a text, what it found,
// and the way to the next and the previous match. Enter goes to the next
// match, Shift+Enter to the previous one, Escape closes the bar. What it
// found shows in the bar itself, never in a message box.
class FindBar : public QWidget {
    Q_OBJECT

public:
    FindBar(lw::Finder& finder, QWidget* parent = nullptr);

    // Shows the bar with its text selected, ready for typing.
    void Open();
    // Brings the bar's word about the matches up to date.
    void ShowStatus();

signals:
    // A step to the next or the previous match is asked for.
    void stepAsked(bool forward);
    // The bar closed; the canvas takes the keys again.
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    lw::Finder& finder_;
    QLineEdit* text_ = nullptr;
    QLabel* status_ = nullptr;
};
