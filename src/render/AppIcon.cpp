#include "AppIcon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace lw {

namespace {

// The picture is laid out on a grid of 64 by 64 units and scaled to the size.
constexpr qreal kUnits = 64.0;

// Below this size the warp threads would be thinner than a pixel and only
// muddy the boxes.
constexpr int kSmallestWarp = 32;

const QColor kInk(14, 26, 43);
const QColor kLinkColour(232, 241, 255);

void PaintTile(QPainter& p) {
    QLinearGradient ground(0, 2, 0, 62);
    ground.setColorAt(0.0, QColor(43, 93, 138));
    ground.setColorAt(1.0, QColor(25, 52, 84));
    p.setPen(Qt::NoPen);
    p.setBrush(ground);
    p.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
}

void PaintWarp(QPainter& p) {
    p.setPen(QPen(QColor(255, 255, 255, 60), 1.5));
    for (int x = 12; x <= 52; x += 8)
        p.drawLine(QPointF(x, 6), QPointF(x, 58));
}

// The links run from box to box across the warp, the way the weft does.
void PaintLinks(QPainter& p) {
    QPainterPath weft;
    weft.moveTo(18, 18);
    weft.cubicTo(18, 26, 46, 20, 46, 30);
    weft.cubicTo(46, 40, 18, 34, 18, 46);
    p.setPen(QPen(kLinkColour, 3.5, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(weft);
}

void PaintPhase(QPainter& p, const QRectF& box, const QColor& fill) {
    p.setPen(QPen(kInk, 2.5));
    p.setBrush(fill);
    p.drawRoundedRect(box, 4, 4);
}

} // namespace

QImage PaintAppIcon(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / kUnits, size / kUnits);
    PaintTile(p);
    if (size >= kSmallestWarp)
        PaintWarp(p);
    PaintLinks(p);
    PaintPhase(p, QRectF(7, 7, 24, 13), QColor(246, 211, 101));
    PaintPhase(p, QRectF(33, 25, 24, 13), QColor(143, 209, 158));
    PaintPhase(p, QRectF(7, 44, 24, 13), QColor(242, 139, 130));
    return image;
}

} // namespace lw
