#pragma once

#include "app/CanvasInput.h"
#include "canvas/CanvasView.h"
#include "canvas/InteractionState.h"

#include <QWidget>
#include <memory>

namespace lw {
class EditorCommands;
class Weaver;
} // namespace lw

// The canvas window. It keeps the view's offset (in world units), scale and
// text font, paints the document of the Weaver it shows on a white ground
// inside a one-pixel black frame, and hands every pointer, wheel and key
// event to Weaver's gestures.
class CChildView : public QWidget, public lw::CanvasView {
    Q_OBJECT

public:
    explicit CChildView(QWidget* parent = nullptr);
    ~CChildView() override;

    // The document to show and to hand the input to, and the commands its
    // context menu runs; without them the canvas stays as it is.
    void Attach(lw::Weaver& weaver, lw::EditorCommands& commands);
    void ShowCursor(lw::CanvasCursor cursor);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowContextMenu(const QPoint& point);

    lw::Weaver* weaver_ = nullptr;
    lw::EditorCommands* commands_ = nullptr;
    std::unique_ptr<lw::CanvasInput> input_;
};
