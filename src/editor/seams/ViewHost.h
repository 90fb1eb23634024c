#pragma once

#include "canvas/InteractionState.h"
#include "objects/ScreenRect.h"

#include <functional>
#include <string>

namespace lw {

// What the document needs of the window that shows it.
class ViewHost {
public:
    virtual ~ViewHost() = default;
    virtual void SetTitle(const std::string& title) = 0;
    virtual void Repaint() = 0;
    // Repaints only this part of the canvas, without erasing it first.
    virtual void RepaintArea(const ScreenRect& area) = 0;
    // Keeps every pointer event for the canvas while a gesture lasts, even
    // outside it. Toolkits that do this between press and release by
    // themselves need nothing here.
    virtual void CapturePointer(bool /*capture*/) {}
    // Shows this cursor while the pointer is over the canvas.
    virtual void ShowCursor(CanvasCursor cursor) = 0;
    // Runs the work once the window has handled what is waiting, on the next
    // turn of its event loop; several works asked for before then all run
    // there. Without a loop, at once.
    virtual void RunWhenIdle(std::function<void()> work) { work(); }
    // Shows a short word in the status bar, such as why a command did nothing.
    virtual void ShowStatusText(const std::string& /*text*/) {}
    // Hands a text file the program wrote, such as a log, to the user's
    // viewer for text files; false when no program could take it.
    virtual bool OpenTextFile(const std::string& path) = 0;
};

} // namespace lw
