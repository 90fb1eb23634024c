#include "dialogs/MemberListEvents.h"

#include <string>
#include <vector>

namespace lw {

void AddCandidateToMembers(ComboField& candidateCombo, ListField& memberList) {
    const std::string text = candidateCombo.Text();
    if (text.empty())
        return;
    memberList.Add(text);
    for (int i = candidateCombo.Count() - 1; i >= 0; --i) {
        if (candidateCombo.At(i) == text)
            candidateCombo.Remove(i);
    }
    candidateCombo.SetCurrent(-1);
}

void ReturnSelectedMembers(ListField& memberList, ComboField& candidateCombo) {
    const std::vector<int> selected = memberList.SelectedIndexes();
    for (auto row = selected.rbegin(); row != selected.rend(); ++row) {
        candidateCombo.Add(memberList.At(*row));
        memberList.Remove(*row);
    }
}

} // namespace lw
