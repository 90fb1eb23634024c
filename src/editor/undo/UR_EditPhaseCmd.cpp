#include "undo/UR_EditPhaseCmd.h"

#include "operations/ObjectStore.h"
#include "undo/CommandSteps.h"

namespace lw {

namespace {

// The name is written only when the change made it differ, so an undo does
// not overwrite a name that was changed otherwise since.
void WriteEditedFields(Phase& phase, const Phase& from, const Phase& other) {
    if (from.name != other.name)
        phase.name = from.name;
    phase.blocks = from.blocks;
    phase.generationType = from.generationType;
    phase.allocationType = from.allocationType;
    phase.primaryLinkId = from.primaryLinkId;
    phase.secondaryLinkId = from.secondaryLinkId;
    phase.blockProperties = from.blockProperties;
    phase.actionIds = from.actionIds;
    phase.geoParams = from.geoParams;
}

} // namespace

void UR_EditPhaseCmd::Complete(Phase& phase) {
    if (before.object.primaryLinkId != 0 && phase.primaryLinkId == 0)
        RemoveChecksMeasuredFromPrimaryLink(phase);
    after.emplace(phase);
}

void UR_EditPhaseCmd::RemoveChecksMeasuredFromPrimaryLink(Phase& phase) {
    std::size_t i = 0;
    while (i < phase.checkIds.size()) {
        Check* check = As<Check>(editor->FindObject(phase.checkIds[i]));
        if (check == nullptr || !IsMeasuredFromPrimaryLink(check->type)) {
            ++i;
            continue;
        }
        removedChecks.emplace_back(*check);
        phase.RemoveCheckId(check->id);
        editor->RemoveObject(check);
        // The list has changed under the walk: start it again.
        i = 0;
    }
}

void UR_EditPhaseCmd::Undo() {
    Phase* phase = editor->FindPhase(before.object.id);
    if (phase == nullptr || !after)
        return;
    WriteEditedFields(*phase, before.object, after->object);
    for (const CheckSnapshot& snapshot : removedChecks) {
        RestoreObject(*editor, snapshot);
        phase->AddCheckId(snapshot.object.id);
    }
    // The gates the edit gave the phase stay; which of them links use is
    // worked out again, so that no linked gate shows as open.
    editor->RefreshGateMarks();
}

void UR_EditPhaseCmd::Redo() {
    Phase* phase = editor->FindPhase(before.object.id);
    if (phase == nullptr || !after)
        return;
    WriteEditedFields(*phase, after->object, before.object);
    for (const CheckSnapshot& snapshot : removedChecks) {
        phase->RemoveCheckId(snapshot.object.id);
        RemoveObjectById(*editor, snapshot.object.id);
    }
    editor->RefreshGateMarks();
}

} // namespace lw
