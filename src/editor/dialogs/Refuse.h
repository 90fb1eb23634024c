#pragma once

#include "platform/UserPrompts.h"

#include <string>

namespace lw {

// A form's OK refuses with its message under the stop icon, and its dialog
// stays open with nothing written.
inline bool Refuse(UserPrompts& prompts, const std::string& message) {
    prompts.ShowMessage(message, MessageIcon::Stop);
    return false;
}

} // namespace lw
