#pragma once

#include "objects/Check.h"
#include "platform/UserPrompts.h"

namespace lw {

// "Coalition Check": which sides the phase may belong to, stored as one word
// of the letters "f", "e" and "n", or no text at all for none.
class CheckCoalitionPropertiesDlg {
public:
    static constexpr const char* kTitle = "Coalition Check";

    CheckCoalitionPropertiesDlg(Check& check);

    // Writes the word; no box ticked is accepted and leaves `params` empty.
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    bool friendly = false;
    bool enemy = false;
    bool neutral = false;

private:
    Check& check_;
};

} // namespace lw
