#include "operations/SelectionExporter.h"

namespace lw {

SelectionExporter::SelectionExporter(const ObjectStore& store, TemplateDesc& desc)
    : TemplateExporter(store, desc),
      selected_(store.selection.members.begin(), store.selection.members.end()) {
    store.ForEach<Unlinker>(
        [this](const Unlinker& unlinker) { firstUnlinkers_.emplace(unlinker.phaseId, &unlinker); });
}

void SelectionExporter::ExportMembers() {
    for (const EditorObject* member : store.selection.members) {
        if (const Phase* phase = As<Phase>(member))
            ExportPhaseWithItsParts(*phase);
        else if (const Case* object = As<Case>(member))
            ExportCase(*object);
        else if (const Switch* object = As<Switch>(member))
            ExportSwitch(*object);
    }
}

void SelectionExporter::ExportPhaseWithItsParts(const Phase& phase) {
    ExportPhase(phase);
    // Its actions go whether or not they are selected themselves.
    for (std::int32_t id : phase.actionIds) {
        if (const Action* action = As<Action>(store.FindObject(id)))
            ExportAction(*action);
    }
    if (const auto unlinker = firstUnlinkers_.find(phase.id); unlinker != firstUnlinkers_.end())
        ExportUnlinker(*unlinker->second);
    for (std::int32_t id : phase.checkIds) {
        if (const Check* check = As<Check>(store.FindObject(id)))
            ExportCheck(*check);
    }
    // A link is written with its source phase, and only when its destination
    // was copied too.
    for (const Link& link : store.links) {
        if (link.fromPhaseId == phase.id)
            ExportLink(link);
    }
}

const Phase* SelectionExporter::ResolvePhase(std::int32_t id) const {
    const Phase* phase = store.FindPhase(id);
    return phase != nullptr && IsSelected(phase) ? phase : nullptr;
}

const Case* SelectionExporter::ResolveCase(std::int32_t id) const {
    const Case* object = store.FindCase(id);
    return object != nullptr && IsSelected(object) ? object : nullptr;
}

std::string SelectionExporter::LinkedPhaseName(std::int32_t id) const {
    const Phase* linked = store.FindPhase(id);
    if (linked == nullptr)
        return kNoLinkedPhase;
    return IsSelected(linked) ? linked->name : kDeletedLinkedPhase;
}

} // namespace lw
