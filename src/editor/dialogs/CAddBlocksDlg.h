#pragma once

#include "dialogs/ListField.h"
#include "platform/UserPrompts.h"

#include <string>
#include <vector>

namespace lw {

class BlocksContainer;

// "Add Blocks": offers every block of the pool that could stand in for the
// phase's main block, so that the phase can carry further sets of the same
// shape. The main block itself is one of them.
class CAddBlocksDlg {
public:
    static constexpr const char* kTitle = "Add Blocks";

    CAddBlocksDlg(const BlocksContainer& blockPool, const std::string& mainBlock);

    // Takes the selected references; no selection is a valid, empty choice.
    // There is nothing to refuse, so the prompts go unused.
    bool Ok(UserPrompts& prompts);

    ListField blockList{true, ListField::Selection::Multiple};
    std::string mainBlock;
    // The references chosen on OK, in the list's order.
    std::vector<std::string> chosen;

private:
    const BlocksContainer& blockPool_;
};

} // namespace lw
