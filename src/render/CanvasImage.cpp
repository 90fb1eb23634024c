#include "CanvasImage.h"

#include "QPainterSurface.h"
#include "canvas/CanvasPaint.h"

namespace lw {

QImage PaintCanvasImage(const Weaver& weaver, const ViewTransform& view, const CanvasFont& font,
                        QSize size, qreal devicePixelRatio, const SceneOverlay& overlay) {
    QImage image(size * devicePixelRatio, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&image);
    QPainterSurface surface(painter);
    PaintCanvas(surface, weaver, size.width(), size.height(), view, font);
    if (overlay) {
        surface.SelectFont(font);
        overlay(surface, view);
        surface.Finish();
    }
    painter.end();
    return image;
}

} // namespace lw
