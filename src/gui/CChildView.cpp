#include "CChildView.h"

#include "CanvasImage.h"

#include <QPainter>

CChildView::CChildView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void CChildView::paintEvent(QPaintEvent*) {
    if (weaver_ == nullptr)
        return;
    // The whole canvas is painted into an image first and then shown at once,
    // so that a repaint never shows a scene half drawn.
    const QImage image = lw::PaintCanvasImage(*weaver_, *this, viewFont, size());
    QPainter(this).drawImage(0, 0, image);
}
