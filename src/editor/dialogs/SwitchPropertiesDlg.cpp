#include "dialogs/SwitchPropertiesDlg.h"

#include "dialogs/MemberListEvents.h"
#include "dialogs/Refuse.h"
#include "objects/IdList.h"
#include "operations/Acceptance.h"
#include "operations/ObjectStore.h"

namespace lw {

SwitchPropertiesDlg::SwitchPropertiesDlg(const ObjectStore& document, Switch& switchObject,
                                         const std::vector<std::int32_t>& firstMembers)
    : document_(document), switchObject_(switchObject) {
    name = switchObject.name;
    number.digitsOnly = true;
    number.ShowInt(switchObject.number);
    const std::vector<std::int32_t>& source =
        firstMembers.empty() ? switchObject.caseIds : firstMembers;
    FillMembers(source);
    FillCandidates(source);
    candidateCombo.SetCurrent(-1);
    for (const char* text : kPreliminaryChecks)
        preliminaryCombo.Add(text);
    preliminaryCombo.SetCurrent(switchObject.preliminaryCheck);
    planeType = switchObject.planeType;
    OnPreliminaryChanged();
}

void SwitchPropertiesDlg::FillMembers(const std::vector<std::int32_t>& source) {
    for (std::int32_t id : source) {
        if (const Case* found = document_.FindCase(id))
            memberList.Add(found->name);
    }
}

void SwitchPropertiesDlg::FillCandidates(const std::vector<std::int32_t>& source) {
    document_.ForEach<Case>([&](const Case& candidate) {
        if (candidate.switchId == 0 && !ContainsId(source, candidate.id))
            candidateCombo.Add(candidate.name);
    });
}

void SwitchPropertiesDlg::OnAdd() {
    AddCandidateToMembers(candidateCombo, memberList);
}

void SwitchPropertiesDlg::OnRemove() {
    ReturnSelectedMembers(memberList, candidateCombo);
}

// No selection counts as a check other than "no".
void SwitchPropertiesDlg::OnPreliminaryChanged() {
    planeTypeEnabled = preliminaryCombo.Current() != 0;
}

const std::string* SwitchPropertiesDlg::MemberOfOtherSwitch() const {
    for (int row = 0; row < memberList.Count(); ++row) {
        const Case* found = document_.FindCaseByName(memberList.At(row));
        if (found != nullptr && found->switchId != 0 && found->switchId != switchObject_.id)
            return &memberList.At(row);
    }
    return nullptr;
}

bool SwitchPropertiesDlg::CheckFields(std::int32_t value, UserPrompts& prompts) const {
    if (name.empty())
        return Refuse(prompts, "Name must not be empty!");
    if (document_.SwitchNameTaken(switchObject_.id, name))
        return Refuse(prompts, "Switch name is used by other switch!");
    if (memberList.Count() == 0)
        return Refuse(prompts, "Switch must have at least one case!");
    if (value > memberList.Count())
        return Refuse(prompts, "Switch number can't be large than total case number in the list");
    if (value < 0)
        return Refuse(prompts, "Switch number can't be negative");
    if (preliminaryCombo.Current() < 0)
        return Refuse(prompts, "Select Preliminary check type!");
    if (const std::string* held = MemberOfOtherSwitch())
        return Refuse(prompts, "Case \"" + *held + "\" already has connected switch!");
    if (preliminaryCombo.Current() != 0 && (planeType < 0 || planeType > 2))
        return Refuse(prompts, "Select Plane type!");
    return true;
}

bool SwitchPropertiesDlg::Ok(UserPrompts& prompts) {
    std::int32_t value = 0;
    if (!ReadInt(number, value, prompts) || !CheckFields(value, prompts))
        return false;
    switchObject_.name = name;
    switchObject_.number = value;
    switchObject_.planeType = planeType;
    switchObject_.preliminaryCheck = preliminaryCombo.Current();
    WriteMembers();
    return true;
}

void SwitchPropertiesDlg::WriteMembers() {
    for (std::int32_t id : switchObject_.caseIds) {
        if (Case* found = document_.FindCase(id))
            found->switchId = 0;
    }
    switchObject_.caseIds.clear();
    for (const std::string& row : memberList.Texts()) {
        if (Case* found = document_.FindCaseByName(row)) {
            switchObject_.caseIds.push_back(found->id);
            found->switchId = switchObject_.id;
        }
    }
}

bool SwitchPropertiesDlg::IsResultValid() const {
    return IsAcceptable(document_, switchObject_);
}

} // namespace lw
