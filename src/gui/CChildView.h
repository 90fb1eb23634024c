#pragma once

#include "app/CanvasInput.h"
#include "app/CommandId.h"
#include "canvas/CanvasView.h"
#include "canvas/InteractionState.h"

#include <QWidget>
#include <functional>
#include <memory>

namespace lw {
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

    using CommandRunner = std::function<void(lw::CommandId)>;
    using CommandQuery = std::function<bool(lw::CommandId)>;

    // The document to show and to hand the input to, what runs the commands
    // of its context menu and whether each may run now; without them the
    // canvas stays as it is.
    void Attach(lw::Weaver& weaver, CommandRunner runCommand, CommandQuery isEnabled);
    void ShowCursor(lw::CanvasCursor cursor);

signals:
    // An event of the pointer, the wheel or the keys has reached the
    // document, which may have changed what the commands may do.
    void inputHandled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowContextMenu(const QPoint& point);

    lw::Weaver* weaver_ = nullptr;
    CommandRunner runCommand_;
    CommandQuery isEnabled_;
    std::unique_ptr<lw::CanvasInput> input_;
};
