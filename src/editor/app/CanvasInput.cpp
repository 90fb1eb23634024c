#include "app/CanvasInput.h"

#include "app/Weaver.h"

namespace lw {

// A plain press starts a gesture; with Shift it links the selected phases to
// the one under the pointer; Ctrl waits for the release.
void CanvasInput::LeftDown(int x, int y, unsigned flags) {
    pressX_ = x;
    pressY_ = y;
    if (flags == kLeftButton)
        weaver_.PointerDown(x, y);
    if ((flags & kShiftKey) != 0)
        weaver_.AutoLinkAt(x, y);
}

// A Ctrl click toggles on its release; a Shift release does nothing more.
void CanvasInput::LeftUp(int x, int y, unsigned flags) {
    weaver_.PointerUp(x, y);
    if (x != pressX_ || y != pressY_)
        return;
    if (flags == 0)
        weaver_.Click(x, y);
    else if (flags == kCtrlKey && weaver_.IsIdle())
        weaver_.SelectAt(true, x, y);
}

void CanvasInput::LeftDoubleClick(int x, int y) {
    weaver_.DoubleClick(x, y);
}

// The right button pans in every state, with no threshold.
void CanvasInput::Move(int x, int y, unsigned flags) {
    if ((flags & kRightButton) != 0)
        weaver_.Pan(x - lastX_, y - lastY_);
    lastX_ = x;
    lastY_ = y;
    weaver_.PointerMove(x, y);
}

void CanvasInput::RightDown(int x, int y, unsigned flags) {
    if ((flags & (kShiftKey | kCtrlKey)) != 0)
        return;
    rightPressX_ = x;
    rightPressY_ = y;
}

// A right drag pans and so opens no menu.
bool CanvasInput::RightUp(int x, int y, unsigned flags) {
    return (flags & (kShiftKey | kCtrlKey)) == 0 && x == rightPressX_ && y == rightPressY_;
}

void CanvasInput::Wheel(int screenX, int screenY, int delta, const ScreenRect& canvasOnScreen) {
    weaver_.Zoom(screenX, screenY, delta, canvasOnScreen);
}

void CanvasInput::Key(CanvasKey key) {
    if (key == CanvasKey::Escape)
        weaver_.EscapeKey();
    else
        weaver_.DeleteKey();
}

} // namespace lw
