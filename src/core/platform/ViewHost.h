#pragma once

#include <string>

namespace lw {

// What the document needs of the window that shows it.
class ViewHost {
public:
    virtual ~ViewHost() = default;
    virtual void SetTitle(const std::string& title) = 0;
    virtual void Repaint() = 0;
};

} // namespace lw
