#include "app/Weaver.h"
#include "document/TemplateDesc.h"
#include "operations/Acceptance.h"
#include "operations/FreeSpot.h"
#include "undo/UR_AddCommands.h"

#include <memory>
#include <string>

namespace lw {

namespace {

// What a new check of each type starts with in its dialog.
std::vector<std::string> PrefilledParams(std::int32_t checkType) {
    switch (checkType) {
    case CheckLocationType:
        return {"Airfield"};
    case CheckRange:
        return {kPrimaryLinkPhase, "closest_outof", "1000"};
    case CheckInRadius:
        return {kPrimaryLinkPhase, "1000"};
    case CheckInSector:
        return {kPrimaryLinkPhase, "45"};
    default:
        return {};
    }
}

} // namespace

Phase* Weaver::FirstSelectedPhase() const {
    return selection.members.empty() ? nullptr : As<Phase>(selection.members.front());
}

// The phase stands in the store, at the world origin, while its dialog is
// up. Its id is spent whatever the dialog says.
Phase* Weaver::AskForNewPhase() {
    Phase* phase = NewPhase();
    phase->name = "PHASE_" + std::to_string(phase->id);
    pendingPhase = phase;
    if (Dialogs().EditPhase(*phase) && IsAcceptable(*this, *phase))
        return phase;
    RemoveObject(phase);
    pendingPhase = nullptr;
    return nullptr;
}

void Weaver::AddPhase() {
    if (!IsIdle() || pendingPhase != nullptr)
        return;
    if (AskForNewPhase() != nullptr) {
        gesture_.StartPlacing(InteractionState::StatePlacePhase);
        SetCursor(CanvasCursor::Place);
    }
    Repaint();
}

// The actions of the phase's block properties stack upward above it, 33
// units apart, at its connection point; a "Script" property makes none.
void Weaver::FinishPlacingPhase(int x, int y, int viewX, int viewY, float scale) {
    Phase* phase = pendingPhase;
    if (phase == nullptr)
        return;
    const ViewTransform view{viewX, viewY, scale};
    phase->posX = view.WorldX(x);
    phase->posY = view.WorldY(y);
    std::vector<const Action*> made;
    int k = 0;
    for (const auto& [key, properties] : phase->blockProperties) {
        for (const std::string& property : properties) {
            if (property == "Script")
                continue;
            Action* action = NewAction();
            action->phaseId = phase->id;
            action->objectName = key;
            action->name = property;
            action->posX = TruncateToInt(static_cast<double>(static_cast<float>(phase->posX)) +
                                         Phase::kConnectionX);
            action->posY =
                TruncateToInt(static_cast<double>(static_cast<float>(phase->posY)) - 22.5 -
                              (static_cast<double>(static_cast<float>(k)) * 33.0 - 1.0));
            phase->actionIds.push_back(action->id);
            made.push_back(action);
            ++k;
        }
    }
    auto command = std::make_unique<UR_AddNewPhaseCmd>(this, *phase);
    RefreshGateMarks();
    for (const Action* action : made)
        command->AddAction(*action);
    undoManager.Push(std::move(command));
    Repaint();
    pendingPhase = nullptr;
    EndGesture();
}

// A case or switch waits for the click that places it once its dialog
// accepts it; otherwise it goes again.
template <typename T, typename OpenDialog>
void Weaver::AskToPlace(T* item, T*& pending, InteractionState placeState, OpenDialog openDialog) {
    pending = item;
    if (openDialog(*item) && IsAcceptable(*this, *item)) {
        gesture_.StartPlacing(placeState);
        SetCursor(CanvasCursor::Place);
    } else {
        RemoveObject(item);
        pending = nullptr;
    }
    Repaint();
}

// The selected phases that have no case yet are offered as its first members.
void Weaver::AddCase() {
    if (!IsIdle() || pendingCase != nullptr)
        return;
    Case* item = NewCase();
    item->name = "CASE" + std::to_string(item->id);
    std::vector<std::int32_t> firstMembers;
    for (const EditorObject* member : selection.members) {
        if (const Phase* phase = As<Phase>(member); phase != nullptr && phase->caseId == 0)
            firstMembers.push_back(phase->id);
    }
    AskToPlace(item, pendingCase, InteractionState::StatePlaceCase,
               [&](Case& edited) { return Dialogs().EditCase(edited, firstMembers); });
}

void Weaver::AddSwitch() {
    if (!IsIdle() || pendingSwitch != nullptr)
        return;
    Switch* item = NewSwitch();
    item->name = "switch" + std::to_string(item->id);
    std::vector<std::int32_t> firstMembers;
    for (const EditorObject* member : selection.members) {
        if (const Case* found = As<Case>(member); found != nullptr && found->switchId == 0)
            firstMembers.push_back(found->id);
    }
    AskToPlace(item, pendingSwitch, InteractionState::StatePlaceSwitch,
               [&](Switch& edited) { return Dialogs().EditSwitch(edited, firstMembers); });
}

// An unlinker needs no placing: its dialog puts it above its phase.
void Weaver::AddUnlinker() {
    if (!IsIdle())
        return;
    Unlinker* unlinker = NewUnlinker();
    const Phase* preselected = FirstSelectedPhase();
    if (Dialogs().EditUnlinker(*unlinker, preselected != nullptr ? preselected->id : 0) &&
        IsAcceptable(*this, *unlinker)) {
        MoveToFreeSpot(*this, *FindPhase(unlinker->phaseId), *unlinker);
        undoManager.Push(std::make_unique<UR_AddNewUnlinkerCmd>(this, *unlinker));
    } else {
        RemoveObject(unlinker);
    }
    Repaint();
}

// Checks stack downward under their phase, each one below those it has.
void Weaver::AddCheck(std::int32_t checkType) {
    Phase* phase = FirstSelectedPhase();
    if (phase == nullptr)
        return;
    Check* check = NewCheck();
    check->phaseId = phase->id;
    check->type = checkType;
    check->params = PrefilledParams(checkType);
    const bool accepted = checkType == CheckFree || Dialogs().EditCheck(*check);
    if (!accepted) {
        RemoveObject(check);
        Repaint();
        return;
    }
    phase->NextCheckPoint(check->posX, check->posY);
    MoveToFreeSpot(*this, *phase, *check);
    phase->AddCheckId(check->id);
    undoManager.Push(std::make_unique<UR_AddNewCheckCmd>(this, *check));
    Repaint();
}

// Rule actions stack downward right of the phase, beyond its outputs.
void Weaver::AddRuleAction() {
    Phase* phase = FirstSelectedPhase();
    if (phase == nullptr)
        return;
    std::string name;
    if (!Dialogs().InputString("Enter Phase Action Name", name) || name.empty())
        return;
    for (std::int32_t actionId : phase->actionIds) {
        const Action* action = As<Action>(FindObject(actionId));
        if (action != nullptr && action->name == name) {
            prompts.ShowMessage("Action with such name already exists in this Phase!",
                                MessageIcon::Stop);
            return;
        }
    }
    Action* action = NewAction();
    action->phaseId = phase->id;
    action->name = name;
    const auto count = static_cast<double>(phase->actionIds.size());
    action->posX = TruncateToInt(static_cast<double>(phase->posX) + 400);
    action->posY = TruncateToInt(static_cast<double>(phase->posY) + 40 * count - 150);
    MoveToFreeSpot(*this, *phase, *action);
    if (Dialogs().EditAction(*action, ActionDialog::General)) {
        phase->AddActionId(action->id);
        undoManager.Push(std::make_unique<UR_AddNewActionCmd>(this, *action));
    } else {
        RemoveObject(action);
    }
    Repaint();
}

} // namespace lw
