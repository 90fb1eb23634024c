#pragma once

#include "canvas/CanvasFont.h"
#include "objects/ViewTransform.h"

#include <QWidget>

// The canvas window. It keeps the view's offset (in world units), scale and
// text font, and paints the template of the main window's Weaver on a white
// ground inside a one-pixel black frame.
class CChildView : public QWidget, public lw::ViewTransform {
    Q_OBJECT

public:
    explicit CChildView(QWidget* parent = nullptr);

    // 12 pixels until the first zoom replaces it.
    lw::CanvasFont viewFont = lw::CanvasFontAt(1.0f, false);

protected:
    void paintEvent(QPaintEvent* event) override;
};
