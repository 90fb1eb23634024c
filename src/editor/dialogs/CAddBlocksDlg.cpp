#include "dialogs/CAddBlocksDlg.h"

#include "catalog/BlocksContainer.h"

namespace lw {

CAddBlocksDlg::CAddBlocksDlg(const BlocksContainer& blockPool, const std::string& mainBlock)
    : mainBlock(mainBlock), blockPool_(blockPool) {
    // An unknown main block compares as an empty block, which leaves only
    // the blocks without gates and objects.
    const BlockInfo info = blockPool_.GetBlock(mainBlock);
    for (const auto& block : blockPool_.blocks) {
        if (IsCompatibleWith(info, block.second))
            blockList.Add(block.first);
    }
}

bool CAddBlocksDlg::Ok(UserPrompts& /*prompts*/) {
    const std::vector<std::string> selected = blockList.SelectedTexts();
    chosen.insert(chosen.end(), selected.begin(), selected.end());
    return true;
}

} // namespace lw
