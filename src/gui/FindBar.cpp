#include "FindBar.h"

#include "QtText.h"
#include "app/Finder.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

FindBar::FindBar(lw::Finder& finder, QWidget* parent) : QWidget(parent), finder_(finder) {
    text_ = new QLineEdit(this);
    text_->setObjectName("findText");
    text_->setPlaceholderText(tr("Name of a phase, case, switch or block"));
    status_ = new QLabel(this);
    status_->setObjectName("findStatus");
    auto* previous = new QToolButton(this);
    previous->setText(tr("Previous"));
    auto* next = new QToolButton(this);
    next->setText(tr("Next"));
    auto* close = new QToolButton(this);
    close->setText(tr("Close"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(new QLabel(tr("Find:"), this));
    layout->addWidget(text_, 1);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(status_);
    layout->addWidget(close);

    connect(text_, &QLineEdit::textChanged, this, [this](const QString& text) {
        finder_.Search(ToStdString(text));
        ShowStatus();
    });
    connect(previous, &QToolButton::clicked, this, [this] { emit stepAsked(false); });
    connect(next, &QToolButton::clicked, this, [this] { emit stepAsked(true); });
    connect(close, &QToolButton::clicked, this, [this] {
        hide();
        emit closed();
    });
}

void FindBar::Open() {
    show();
    text_->setFocus();
    text_->selectAll();
    ShowStatus();
}

void FindBar::ShowStatus() {
    status_->setText(text_->text().isEmpty() ? QString() : ToQString(finder_.Status()));
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit stepAsked((event->modifiers() & Qt::ShiftModifier) == 0);
        break;
    case Qt::Key_Escape:
        hide();
        emit closed();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
