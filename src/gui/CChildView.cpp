#include "CChildView.h"

#include <QPainter>

CChildView::CChildView(QWidget* parent) : QWidget(parent) {
    font.setFamily(QStringLiteral("Arial"));
    font.setPixelSize(12);
    font.setWeight(QFont::Normal);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void CChildView::paintEvent(QPaintEvent*) {
    // Qt already paints widgets through a back buffer, so drawing straight
    // onto the widget never flickers.
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
