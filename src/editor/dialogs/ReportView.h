#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace lw {

// A list view in report style, as a dialog's logic sees it: fixed columns
// with their titles and widths in pixels, and rows of one text per column
// that the user may select.
struct ReportColumn {
    const char* title;
    int width;
};

template <std::size_t ColumnCount> struct ReportRow {
    std::array<std::string, ColumnCount> texts;
    bool selected = false;
};

} // namespace lw
