#pragma once

#include "canvas/InteractionState.h"

#include <string>

namespace lw {

// What the document needs of the window that shows it.
class ViewHost {
public:
    virtual ~ViewHost() = default;
    virtual void SetTitle(const std::string& title) = 0;
    virtual void Repaint() = 0;
    // Shows this cursor while the pointer is over the canvas.
    virtual void ShowCursor(CanvasCursor cursor) = 0;
    // Hands a text file the program wrote, such as a log, to the user's
    // viewer for text files. Whether that worked is not examined.
    virtual void OpenTextFile(const std::string& path) = 0;
};

} // namespace lw
