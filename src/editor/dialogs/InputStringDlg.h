#pragma once

#include "platform/UserPrompts.h"

#include <string>

namespace lw {

// Asks for one line of text under a title. It makes no checks.
class InputStringDlg {
public:
    static constexpr const char* kTitle = "Input String";

    // An empty title shows the default one.
    InputStringDlg(std::string title, std::string text);

    // Any text will do, an empty one too.
    bool Ok(UserPrompts&) { return true; }

    std::string text;
    std::string title;
};

} // namespace lw
