#include "dialogs/InputStringDlg.h"

#include <utility>

namespace lw {

InputStringDlg::InputStringDlg(std::string title, std::string text)
    : text(std::move(text)), title(title.empty() ? kTitle : std::move(title)) {}

} // namespace lw
