#pragma once

#include "dialogs/ComboField.h"
#include "dialogs/ListField.h"
#include "objects/Case.h"
#include "platform/UserPrompts.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lw {

class ObjectStore;

// "Case Properties": which phases a case holds. The members are kept by name
// until OK, which then rewires both sides of the relation, the case's
// `phaseIds` and each phase's `caseId`. The name is checked but never
// stored, so a case keeps the name it was given when it was made.
class CasePropertiesDlg {
public:
    static constexpr const char* kTitle = "Case Properties";

    // `firstMembers` are the phases a new case starts with; empty when an
    // existing case is edited.
    CasePropertiesDlg(const ObjectStore& document, Case& caseObject,
                      const std::vector<std::int32_t>& firstMembers);

    // "Add phase": the combo's text, chosen or typed, becomes a member.
    void OnAdd();
    // "Remove Phases": the selected members go back among the candidates.
    void OnRemove();
    bool Ok(UserPrompts& prompts);
    bool IsResultValid() const;

    // The members in the order they were added.
    ListField memberList{false, ListField::Selection::Multiple};
    // Phases of no case; the user may also type any name.
    ComboField candidateCombo{true, true};
    std::string name;

private:
    void FillMembers(const std::vector<std::int32_t>& source);
    void FillCandidates(const std::vector<std::int32_t>& source);
    // The first member that names a phase of another case; null for none.
    const std::string* MemberOfOtherCase() const;
    void WriteMembers();

    const ObjectStore& document_;
    Case& caseObject_;
};

} // namespace lw
