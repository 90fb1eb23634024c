#pragma once

#include "objects/ScreenRect.h"

#include <climits>

namespace lw {

class Weaver;

// The buttons and keys held during a pointer event. A press reports its own
// button among them; a release no longer does.
enum InputFlag : unsigned {
    kLeftButton = 1u << 0,
    kRightButton = 1u << 1,
    kShiftKey = 1u << 2,
    kCtrlKey = 1u << 3,
    kMiddleButton = 1u << 4,
};

enum class CanvasKey { Escape, Delete };

// The canvas's raw input, as a window delivers it, turned into Weaver's
// gestures. Points are window points of the canvas unless told otherwise.
// A click counts only when press and release fall on exactly one point.
class CanvasInput {
public:
    explicit CanvasInput(Weaver& weaver) : weaver_(weaver) {}

    void LeftDown(int x, int y, unsigned flags);
    void LeftUp(int x, int y, unsigned flags);
    // The second press of a double click, which comes instead of a LeftDown.
    void LeftDoubleClick(int x, int y);
    void Move(int x, int y, unsigned flags);
    void RightDown(int x, int y, unsigned flags);
    // True when the context menu is to open at the point.
    bool RightUp(int x, int y, unsigned flags);
    // One turn of the wheel, at a point in screen coordinates; the canvas
    // covers `canvasOnScreen` there.
    void Wheel(int screenX, int screenY, int delta, const ScreenRect& canvasOnScreen);
    void Key(CanvasKey key);

private:
    Weaver& weaver_;
    int pressX_ = INT_MIN;
    int pressY_ = INT_MIN;
    int rightPressX_ = INT_MIN;
    int rightPressY_ = INT_MIN;
    int lastX_ = 0;
    int lastY_ = 0;
};

} // namespace lw
