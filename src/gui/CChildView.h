#pragma once

#include "canvas/CanvasFont.h"
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

    // The document to show; without one the canvas stays as it is.
    void SetWeaver(const lw::Weaver* shown) { weaver_ = shown; }

    // 12 pixels until the first zoom replaces it.
    lw::CanvasFont viewFont = lw::CanvasFontAt(1.0f, false);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const lw::Weaver* weaver_ = nullptr;
};
