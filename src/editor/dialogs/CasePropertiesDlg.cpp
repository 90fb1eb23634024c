#include "dialogs/CasePropertiesDlg.h"

#include "dialogs/MemberListEvents.h"
#include "dialogs/Refuse.h"
#include "objects/IdList.h"
#include "operations/Acceptance.h"
#include "operations/ObjectStore.h"

namespace lw {

CasePropertiesDlg::CasePropertiesDlg(const ObjectStore& document, Case& caseObject,
                                     const std::vector<std::int32_t>& firstMembers)
    : document_(document), caseObject_(caseObject) {
    name = caseObject.name;
    const std::vector<std::int32_t>& source =
        firstMembers.empty() ? caseObject.phaseIds : firstMembers;
    FillMembers(source);
    FillCandidates(source);
    candidateCombo.SetCurrent(-1);
}

void CasePropertiesDlg::FillMembers(const std::vector<std::int32_t>& source) {
    for (std::int32_t id : source) {
        if (const Phase* phase = document_.FindPhase(id))
            memberList.Add(phase->name);
    }
}

void CasePropertiesDlg::FillCandidates(const std::vector<std::int32_t>& source) {
    document_.ForEach<Phase>([&](const Phase& phase) {
        if (phase.caseId == 0 && !ContainsId(source, phase.id))
            candidateCombo.Add(phase.name);
    });
}

void CasePropertiesDlg::OnAdd() {
    AddCandidateToMembers(candidateCombo, memberList);
}

void CasePropertiesDlg::OnRemove() {
    ReturnSelectedMembers(memberList, candidateCombo);
}

const std::string* CasePropertiesDlg::MemberOfOtherCase() const {
    for (int row = 0; row < memberList.Count(); ++row) {
        const Phase* phase = document_.FindPhaseByName(memberList.At(row));
        if (phase != nullptr && phase->caseId != 0 && phase->caseId != caseObject_.id)
            return &memberList.At(row);
    }
    return nullptr;
}

bool CasePropertiesDlg::Ok(UserPrompts& prompts) {
    if (name.empty())
        return Refuse(prompts, "Name must not be empty!");
    if (document_.CaseNameTaken(caseObject_.id, name))
        return Refuse(prompts, "Case name is used by other case!");
    if (memberList.Count() == 0)
        return Refuse(prompts, "Case must have at least one phase!");
    if (const std::string* held = MemberOfOtherCase())
        return Refuse(prompts, "Phase \"" + *held + "\" already has connected case!");
    // The name typed is kept, as the switch dialog keeps its own.
    caseObject_.name = name;
    WriteMembers();
    return true;
}

// A row may name no phase at all, since the combo takes typed text; such a
// row is dropped here without a word.
void CasePropertiesDlg::WriteMembers() {
    for (std::int32_t id : caseObject_.phaseIds) {
        if (Phase* phase = document_.FindPhase(id))
            phase->caseId = 0;
    }
    caseObject_.phaseIds.clear();
    for (const std::string& row : memberList.Texts()) {
        if (Phase* phase = document_.FindPhaseByName(row)) {
            caseObject_.phaseIds.push_back(phase->id);
            phase->caseId = caseObject_.id;
        }
    }
}

bool CasePropertiesDlg::IsResultValid() const {
    return IsAcceptable(document_, caseObject_);
}

} // namespace lw
