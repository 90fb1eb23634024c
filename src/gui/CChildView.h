#pragma once

#include "canvas/CanvasFont.h"
#include "canvas/InteractionState.h"
#include "objects/ViewTransform.h"

namespace lw {
class Weaver;
}

#include <QWidget>

// The canvas window. It keeps the view's offset (in world units), scale and
// text font, and paints the document of the Weaver it shows on a white
// ground inside a one-pixel black frame.
class CChildView : public QWidget, public lw::ViewTransform {
    Q_OBJECT

public:
    explicit CChildView(QWidget* parent = nullptr);

    // The document to show and to hand the pointer to; without one the
    // canvas stays as it is.
    void SetWeaver(lw::Weaver* shown) { weaver_ = shown; }
    void ShowCursor(lw::CanvasCursor cursor);

    // 12 pixels until the first zoom replaces it.
    lw::CanvasFont viewFont = lw::CanvasFontAt(1.0f, false);

protected:
    void paintEvent(QPaintEvent* event) override;
    // Until the whole gesture machine is here, the pointer only tracks its
    // position and places a pasted or imported template with a click.
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    lw::Weaver* weaver_ = nullptr;
};
