#include "dialogs/CasePropertiesDlg.h"

#include "app/Weaver.h"
#include "dialogs/MemberListEvents.h"

#include <algorithm>

namespace lw {

namespace {

bool Contains(const std::vector<std::int32_t>& ids, std::int32_t id) {
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

} // namespace

CasePropertiesDlg::CasePropertiesDlg(Weaver& weaver, Case& caseObject,
                                     const std::vector<std::int32_t>& firstMembers)
    : weaver_(weaver), caseObject_(caseObject) {
    name = caseObject.name;
    const std::vector<std::int32_t>& source =
        firstMembers.empty() ? caseObject.phaseIds : firstMembers;
    FillMembers(source);
    FillCandidates(source);
    candidateCombo.SetCurrent(-1);
}

void CasePropertiesDlg::FillMembers(const std::vector<std::int32_t>& source) {
    for (std::int32_t id : source) {
        if (const Phase* phase = weaver_.FindPhase(id))
            memberList.Add(phase->name);
    }
}

void CasePropertiesDlg::FillCandidates(const std::vector<std::int32_t>& source) {
    weaver_.ForEach<Phase>([&](const Phase& phase) {
        if (phase.caseId == 0 && !Contains(source, phase.id))
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
        const Phase* phase = weaver_.FindPhaseByName(memberList.At(row));
        if (phase != nullptr && phase->caseId != 0 && phase->caseId != caseObject_.id)
            return &memberList.At(row);
    }
    return nullptr;
}

bool CasePropertiesDlg::Ok(UserPrompts& prompts) {
    if (name.empty()) {
        prompts.ShowMessage("Name must not be empty!", MessageIcon::Stop);
        return false;
    }
    if (weaver_.CaseNameTaken(caseObject_.id, name)) {
        prompts.ShowMessage("Case name is used by other case!", MessageIcon::Stop);
        return false;
    }
    if (memberList.Count() == 0) {
        prompts.ShowMessage("Case must have at least one phase!", MessageIcon::Stop);
        return false;
    }
    if (const std::string* held = MemberOfOtherCase()) {
        prompts.ShowMessage("Phase \"" + *held + "\" already has connected case!",
                            MessageIcon::Stop);
        return false;
    }
    WriteMembers();
    return true;
}

// A row may name no phase at all, since the combo takes typed text; such a
// row is dropped here without a word.
void CasePropertiesDlg::WriteMembers() {
    for (std::int32_t id : caseObject_.phaseIds) {
        if (Phase* phase = weaver_.FindPhase(id))
            phase->caseId = 0;
    }
    caseObject_.phaseIds.clear();
    for (const std::string& row : memberList.Texts()) {
        if (Phase* phase = weaver_.FindPhaseByName(row)) {
            caseObject_.phaseIds.push_back(phase->id);
            phase->caseId = caseObject_.id;
        }
    }
}

bool CasePropertiesDlg::IsResultValid() const {
    return !caseObject_.phaseIds.empty() && !caseObject_.name.empty() &&
           !weaver_.CaseNameTaken(caseObject_.id, caseObject_.name);
}

} // namespace lw
