#include "app/Weaver.h"
#include "undo/UR_AddCommands.h"
#include "undo/UR_DeleteLinksCmd.h"

#include <memory>

namespace lw {

// The link runs from the first selected phase to the second, or the other
// way, as the menu entry that asked for it says.
void Weaver::AddLink(bool isObjectLink, bool fromSecond) {
    if (selection.members.size() != 2)
        return;
    const Phase* source = As<Phase>(selection.members[fromSecond ? 1 : 0]);
    const Phase* destination = As<Phase>(selection.members[fromSecond ? 0 : 1]);
    if (source == nullptr || destination == nullptr)
        return;
    Link link;
    link.isObjectLink = isObjectLink;
    link.fromPhaseId = source->id;
    link.toPhaseId = destination->id;
    if (!Dialogs().AddLink(*source, *destination, link))
        return;
    links.push_back(link);
    undoManager.Push(std::make_unique<UR_AddNewLinkCmd>(this, link));
    RefreshGateMarks();
    Repaint();
}

void Weaver::DeleteLinksOfPhase() {
    const Phase* phase = FirstSelectedPhase();
    if (phase == nullptr)
        return;
    std::vector<Link> chosen;
    if (!Dialogs().DeleteLinks(*phase, chosen) || chosen.empty())
        return;
    undoManager.Push(std::make_unique<UR_DeleteLinksCmd>(this, chosen));
    for (const Link& link : chosen)
        RemoveLink(link);
    RefreshGateMarks();
    Repaint();
}

void Weaver::StartGeometryLink(bool primary) {
    Phase* phase = FirstSelectedPhase();
    if (phase == nullptr)
        return;
    if (primary ? !HasPrimaryLink(phase->generationType) : !HasSecondaryLink(phase->generationType))
        return;
    pendingPhase = phase;
    gesture_.StartLink(primary);
    SetCursor(CanvasCursor::Arrow);
}

// Links already there are not looked for: the gesture repeated adds them again.
void Weaver::AutoLink(const Phase& source, const Phase& destination) {
    std::vector<Link> made;
    for (const GateSlot& output : source.outputs) {
        if (!HasGate(destination.inputs, output.name))
            continue;
        Link link;
        link.isObjectLink = output.name.compare(0, 6, "OBJECT") == 0;
        link.fromPhaseId = source.id;
        link.fromGate = output.name;
        link.toPhaseId = destination.id;
        link.toGate = output.name;
        made.push_back(link);
    }
    if (made.empty())
        return;
    for (const Link& link : made) {
        links.push_back(link);
        undoManager.Push(std::make_unique<UR_AddNewLinkCmd>(this, link));
    }
    RefreshGateMarks();
    Repaint();
}

} // namespace lw
