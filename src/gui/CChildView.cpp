#include "CChildView.h"

#include "CMainFrame.h"
#include "CanvasImage.h"

#include <QPainter>

CChildView::CChildView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void CChildView::paintEvent(QPaintEvent*) {
    // The document lives in the main window; a canvas outside one shows nothing.
    auto* frame = qobject_cast<CMainFrame*>(window());
    if (frame == nullptr)
        return;
    // The whole canvas is painted into an image first and then shown at once,
    // so that a repaint never shows a scene half drawn.
    const QImage image = lw::PaintCanvasImage(frame->weaver(), *this, viewFont, size());
    QPainter(this).drawImage(0, 0, image);
}
