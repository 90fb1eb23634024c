#include "dialogs/CAddBlocksDlg.h"

#include "app/Weaver.h"

namespace lw {

CAddBlocksDlg::CAddBlocksDlg(Weaver& weaver, const std::string& mainBlock)
    : mainBlock(mainBlock), weaver_(weaver) {
    // An unknown main block compares as an empty block, which leaves only
    // the blocks without gates and objects.
    const BlockInfo info = weaver_.blockPool.GetBlock(mainBlock);
    for (const auto& block : weaver_.blockPool.blocks) {
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
