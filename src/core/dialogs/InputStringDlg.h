#pragma once

#include <string>

namespace lw {

// Asks for one line of text under a title. It makes no checks.
class InputStringDlg {
public:
    static constexpr const char* kTitle = "Input String";

    // An empty title shows the default one.
    InputStringDlg(std::string title, std::string text);

    std::string text;
    std::string title;
};

} // namespace lw
