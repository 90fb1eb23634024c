#include "CChildView.h"

#include "CanvasImage.h"
#include "PlaceCursor.h"
#include "QtText.h"
#include "app/CommandTable.h"
#include "app/Weaver.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStatusTipEvent>
#include <QWheelEvent>

namespace {

// The buttons and keys held, as the gestures read them.
unsigned InputFlags(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
    unsigned flags = 0;
    if (buttons & Qt::LeftButton)
        flags |= lw::kLeftButton;
    if (buttons & Qt::RightButton)
        flags |= lw::kRightButton;
    if (buttons & Qt::MiddleButton)
        flags |= lw::kMiddleButton;
    if (modifiers & Qt::ShiftModifier)
        flags |= lw::kShiftKey;
    if (modifiers & Qt::ControlModifier)
        flags |= lw::kCtrlKey;
    return flags;
}

unsigned InputFlags(const QMouseEvent* event) {
    return InputFlags(event->buttons(), event->modifiers());
}

} // namespace

CChildView::CChildView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    // The menu opens on an exact right click alone, never on Qt's own event.
    setContextMenuPolicy(Qt::PreventContextMenu);
}

CChildView::~CChildView() = default;

void CChildView::Attach(lw::Weaver& weaver, CommandRunner runCommand, CommandQuery isEnabled) {
    weaver_ = &weaver;
    runCommand_ = std::move(runCommand);
    isEnabled_ = std::move(isEnabled);
    input_ = std::make_unique<lw::CanvasInput>(weaver);
}

void CChildView::ShowCursor(lw::CanvasCursor cursor) {
    switch (cursor) {
    case lw::CanvasCursor::Move:
        setCursor(Qt::SizeAllCursor);
        break;
    case lw::CanvasCursor::Place:
        setCursor(PlaceCursor());
        break;
    default:
        unsetCursor();
    }
}

void CChildView::mousePressEvent(QMouseEvent* event) {
    if (!input_)
        return;
    const QPoint point = event->position().toPoint();
    if (event->button() == Qt::LeftButton) {
        input_->LeftDown(point.x(), point.y(), InputFlags(event));
    } else if (event->button() == Qt::RightButton) {
        setFocus();
        input_->RightDown(point.x(), point.y(), InputFlags(event));
    }
    emit inputHandled();
}

void CChildView::mouseReleaseEvent(QMouseEvent* event) {
    if (!input_)
        return;
    const QPoint point = event->position().toPoint();
    if (event->button() == Qt::LeftButton) {
        input_->LeftUp(point.x(), point.y(), InputFlags(event));
    } else if (event->button() == Qt::RightButton) {
        setFocus();
        if (input_->RightUp(point.x(), point.y(), InputFlags(event)))
            ShowContextMenu(point);
    }
    emit inputHandled();
}

// The second press of a double click comes here instead of as a press.
void CChildView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!input_)
        return;
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    const QPoint point = event->position().toPoint();
    input_->LeftDoubleClick(point.x(), point.y());
    emit inputHandled();
}

void CChildView::mouseMoveEvent(QMouseEvent* event) {
    if (!input_)
        return;
    const QPoint point = event->position().toPoint();
    input_->Move(point.x(), point.y(), InputFlags(event));
    emit inputHandled();
}

void CChildView::wheelEvent(QWheelEvent* event) {
    if (!input_)
        return;
    const QPoint screen = event->globalPosition().toPoint();
    const QPoint topLeft = mapToGlobal(QPoint(0, 0));
    const lw::ScreenRect onScreen{topLeft.x(), topLeft.y(), topLeft.x() + width(),
                                  topLeft.y() + height()};
    input_->Wheel(screen.x(), screen.y(), event->angleDelta().y(), onScreen);
    emit inputHandled();
}

void CChildView::keyPressEvent(QKeyEvent* event) {
    if (input_ && event->key() == Qt::Key_Escape) {
        input_->Key(lw::CanvasKey::Escape);
    } else if (input_ && event->key() == Qt::Key_Delete &&
               (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        // The keypad's Delete is the same key to the user.
        input_->Key(lw::CanvasKey::Delete);
    } else {
        QWidget::keyPressEvent(event);
        return;
    }
    emit inputHandled();
}

// The menu is built for the selection as it is at the release and belongs to
// the main window, whose status bar shows its entries' texts; the entry
// chosen runs as its command, and an entry that would not run is greyed.
void CChildView::ShowContextMenu(const QPoint& point) {
    QMenu menu(window());
    menu.setSeparatorsCollapsible(false);
    for (const lw::MenuEntry& entry : weaver_->BuildContextMenu()) {
        if (entry.IsSeparator()) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(ToQString(entry.text));
        const lw::CommandId command = *entry.command;
        action->setStatusTip(ToQString(lw::StatusText(command)));
        action->setEnabled(isEnabled_(command));
        connect(action, &QAction::triggered, this, [this, command] { runCommand_(command); });
    }
    // A popup keeps status texts to itself: hand them to the window's status bar.
    connect(&menu, &QMenu::hovered, this,
            [this](QAction* action) { action->showStatusText(window()); });
    menu.exec(mapToGlobal(point));
    QStatusTipEvent cleared{QString()};
    QCoreApplication::sendEvent(window(), &cleared);
}

// A view fitted at start or by Open is fitted again to the canvas's new size.
void CChildView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (weaver_ != nullptr)
        weaver_->CanvasResized(width(), height());
    else {
        pixelWidth = width();
        pixelHeight = height();
    }
}

void CChildView::paintEvent(QPaintEvent*) {
    if (weaver_ == nullptr)
        return;
    // The whole canvas is painted into an image first and then shown at once,
    // so that a repaint never shows a scene half drawn.
    const QImage image =
        lw::PaintCanvasImage(*weaver_, *this, lw::CanvasView::font, size(), devicePixelRatioF());
    QPainter(this).drawImage(0, 0, image);
}
