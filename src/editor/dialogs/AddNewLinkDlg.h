#pragma once

#include "dialogs/ComboField.h"
#include "objects/Link.h"
#include "objects/Phase.h"
#include "platform/UserPrompts.h"

#include <string>

namespace lw {

class ObjectStore;

// Picks the output gate of one phase and the input gate of another for a new
// link of a given kind. The document is only read; the caller takes `link`.
class AddNewLinkDlg {
public:
    AddNewLinkDlg(const ObjectStore& document, const Phase& from, const Phase& to,
                  bool isObjectLink);

    // Fills `link` when both gates are chosen and no such link exists yet.
    bool Ok(UserPrompts& prompts);

    // "Add new Object Link" or "Add new Target Link".
    std::string title;
    Link link;
    bool isObjectLink;
    std::string fromName;
    // The source's output gates.
    ComboField fromCombo{true};
    std::string toName;
    // The destination's input gates.
    ComboField toCombo{true};

private:
    bool LinkExists(const Link& candidate) const;

    const Phase& fromPhase_;
    const Phase& toPhase_;
    const ObjectStore& document_;
};

} // namespace lw
