#include "dialogs/UnlinkPropertiesDlg.h"

#include "dialogs/Refuse.h"
#include "operations/Acceptance.h"
#include "operations/ObjectStore.h"

#include <string>
#include <vector>

namespace lw {

namespace {

constexpr const char* kInputPrefix = "input";
constexpr const char* kOutputPrefix = "output";
// How far above its phase a new unlinker stands.
constexpr std::int32_t kHeightAbovePhase = 150;

void MoveSelectedRows(ListField& from, ListField& to) {
    const std::vector<int> selected = from.SelectedIndexes();
    for (auto row = selected.rbegin(); row != selected.rend(); ++row) {
        to.Add(from.At(*row));
        from.Remove(*row);
    }
}

} // namespace

UnlinkPropertiesDlg::UnlinkPropertiesDlg(const ObjectStore& document, Unlinker& unlinker,
                                         std::int32_t preselectedPhaseId)
    : document_(document), unlinker_(unlinker) {
    document_.ForEach<Phase>([&](const Phase& phase) { phaseCombo.Add(phase.name); });
    phaseCombo.SetCurrent(-1);
    if (const Phase* own = document_.FindPhase(unlinker.phaseId))
        phaseCombo.SelectByText(own->name);
    // The phase of an existing unlinker is fixed.
    phaseCombo.enabled = phaseCombo.Current() < 0;
    if (preselectedPhaseId != 0) {
        if (const Phase* offered = document_.FindPhase(preselectedPhaseId))
            phaseCombo.SelectByText(offered->name);
    }
    RefillGateLists();
    UpdateGateControls();
}

void UnlinkPropertiesDlg::RefillGateLists() {
    gateList.Clear();
    unlinkList.Clear();
    const Phase* phase =
        phaseCombo.Current() >= 0 ? document_.FindPhaseByName(phaseCombo.Text()) : nullptr;
    if (phase == nullptr)
        return;
    for (const GateSlot& gate : phase->inputs) {
        ListField& list = unlinker_.HasInputGate(gate.name) ? unlinkList : gateList;
        list.Add(std::string(kInputPrefix) + ":" + gate.name);
    }
    for (const GateSlot& gate : phase->outputs) {
        ListField& list = unlinker_.HasOutputGate(gate.name) ? unlinkList : gateList;
        list.Add(std::string(kOutputPrefix) + ":" + gate.name);
    }
}

void UnlinkPropertiesDlg::UpdateGateControls() {
    const bool phaseChosen = phaseCombo.Current() >= 0;
    gateList.enabled = phaseChosen;
    unlinkList.enabled = phaseChosen;
    moveToUnlinkEnabled = phaseChosen;
    moveBackEnabled = phaseChosen;
}

void UnlinkPropertiesDlg::OnPhaseChanged() {
    RefillGateLists();
    UpdateGateControls();
}

void UnlinkPropertiesDlg::OnMoveToUnlink() {
    MoveSelectedRows(gateList, unlinkList);
}

void UnlinkPropertiesDlg::OnMoveBack() {
    MoveSelectedRows(unlinkList, gateList);
}

bool UnlinkPropertiesDlg::PhaseHasOtherUnlinker(const Phase& phase) const {
    bool found = false;
    document_.ForEach<Unlinker>([&](const Unlinker& other) {
        found = found || (other.id != unlinker_.id && other.phaseId == phase.id);
    });
    return found;
}

bool UnlinkPropertiesDlg::Ok(UserPrompts& prompts) {
    if (phaseCombo.Current() < 0)
        return Refuse(prompts, "Phase must be selected!");
    const Phase* phase = document_.FindPhaseByName(phaseCombo.Text());
    if (phase == nullptr)
        return Refuse(prompts, "Corrupted phase selected!");
    if (PhaseHasOtherUnlinker(*phase))
        return Refuse(prompts, "This phase already has an Unlinker connected!");
    if (unlinkList.Count() == 0)
        return Refuse(prompts, "At least one gate must be in unlink gates list!");
    // An unlinker that has its phase keeps its place; a new one goes above it.
    if (unlinker_.phaseId == 0) {
        unlinker_.phaseId = phase->id;
        unlinker_.posX = phase->posX;
        unlinker_.posY = phase->posY - kHeightAbovePhase;
    }
    WriteGates();
    return true;
}

// Every row was made by RefillGateLists, so each has its ":".
void UnlinkPropertiesDlg::WriteGates() {
    unlinker_.inputGates.clear();
    unlinker_.outputGates.clear();
    for (const std::string& row : unlinkList.Texts()) {
        const std::size_t colon = row.find(':');
        const std::string gate = row.substr(colon + 1);
        if (row.compare(0, colon, kInputPrefix) == 0)
            unlinker_.inputGates.push_back(gate);
        else
            unlinker_.outputGates.push_back(gate);
    }
}

bool UnlinkPropertiesDlg::IsResultValid() const {
    return IsAcceptable(document_, unlinker_);
}

} // namespace lw
