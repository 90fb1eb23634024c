#include "CChildView.h"

#include "CanvasImage.h"
#include "app/Weaver.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

CChildView::CChildView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void CChildView::ShowCursor(lw::CanvasCursor cursor) {
    switch (cursor) {
    case lw::CanvasCursor::Move:
        setCursor(Qt::SizeAllCursor);
        break;
    case lw::CanvasCursor::Place:
        setCursor(Qt::CrossCursor);
        break;
    default:
        unsetCursor();
    }
}

void CChildView::mouseMoveEvent(QMouseEvent* event) {
    if (weaver_ == nullptr)
        return;
    weaver_->pointerX = event->position().toPoint().x();
    weaver_->pointerY = event->position().toPoint().y();
}

void CChildView::mouseReleaseEvent(QMouseEvent* event) {
    if (weaver_ == nullptr || event->button() != Qt::LeftButton ||
        weaver_->interactionState != lw::StatePlaceTemplate)
        return;
    const QPoint point = event->position().toPoint();
    weaver_->PlaceTemplate(weaver_->pendingImportPath, point.x(), point.y(), viewX, viewY, scale);
}

void CChildView::keyPressEvent(QKeyEvent* event) {
    if (weaver_ == nullptr || event->key() != Qt::Key_Escape ||
        weaver_->interactionState != lw::StatePlaceTemplate)
        return;
    weaver_->interactionState = lw::StateIdle;
    weaver_->SetCursor(lw::CanvasCursor::Arrow);
    weaver_->Repaint();
}

void CChildView::paintEvent(QPaintEvent*) {
    if (weaver_ == nullptr)
        return;
    // The whole canvas is painted into an image first and then shown at once,
    // so that a repaint never shows a scene half drawn.
    const QImage image = lw::PaintCanvasImage(*weaver_, *this, viewFont, size());
    QPainter(this).drawImage(0, 0, image);
}
