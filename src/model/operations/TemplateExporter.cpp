#include "operations/TemplateExporter.h"

#include "document/Keywords.h"

#include <utility>

namespace lw {

namespace {

std::string BlockSetName(const Phase& phase) {
    return kBlockSetPrefix + phase.name;
}

// The names of the objects the ids resolve to, in order; an id that
// resolves to nothing leaves no entry.
template <typename Resolve>
std::vector<std::string> NamesOf(const std::vector<std::int32_t>& ids, Resolve resolve) {
    std::vector<std::string> names;
    for (std::int32_t id : ids) {
        if (const auto* object = resolve(id))
            names.push_back(object->name);
    }
    return names;
}

} // namespace

const Phase* TemplateExporter::ResolvePhase(std::int32_t id) const {
    return store.FindPhase(id);
}

const Case* TemplateExporter::ResolveCase(std::int32_t id) const {
    return store.FindCase(id);
}

std::string TemplateExporter::LinkedPhaseName(std::int32_t id) const {
    const Phase* linked = ResolvePhase(id);
    return linked != nullptr ? linked->name : std::string(kNoLinkedPhase);
}

GuiHelperDesc& TemplateExporter::AddGuiHelper(const EditorObject& object,
                                              const std::string& objectName) {
    GuiHelperDesc& helper = desc.guiHelpers.emplace_back();
    helper.objectName = objectName;
    helper.x = object.posX;
    helper.y = object.posY;
    return helper;
}

void TemplateExporter::ExportPhase(const Phase& phase) {
    // Every phase gets a block set of its own, even where two hold the same
    // blocks: the unlinks of a phase name its set.
    desc.blockSets.push_back({BlockSetName(phase), phase.blocks});

    PhaseDesc record;
    record.name = phase.name;
    record.generationType = static_cast<GenerationType>(phase.generationType);
    record.blockSetName = BlockSetName(phase);
    record.geoParams = phase.geoParams;
    record.allocationType = phase.allocationType;
    record.blocksFolder = phase.blocksFolder;
    // The linked phases lead the geometry parameters.
    if (HasPrimaryLink(phase.generationType))
        record.geoParams.insert(record.geoParams.begin(), LinkedPhaseName(phase.primaryLinkId));
    if (HasSecondaryLink(phase.generationType))
        record.geoParams.insert(record.geoParams.begin() + 1,
                                LinkedPhaseName(phase.secondaryLinkId));
    desc.phases.push_back(std::move(record));

    AddGuiHelper(phase, phase.name).colorIndex = phase.GetColorIndex();
}

void TemplateExporter::ExportCase(const Case& object) {
    CaseDesc record;
    record.name = object.name;
    record.phaseNames =
        NamesOf(object.phaseIds, [this](std::int32_t id) { return ResolvePhase(id); });
    desc.cases.push_back(std::move(record));
    AddGuiHelper(object, object.name);
}

void TemplateExporter::ExportSwitch(const Switch& object) {
    SwitchDesc record;
    record.name = object.name;
    record.number = object.number;
    record.preliminaryCheck = object.preliminaryCheck;
    record.planeType = object.planeType;
    record.caseNames = NamesOf(object.caseIds, [this](std::int32_t id) { return ResolveCase(id); });
    desc.switches.push_back(std::move(record));
    AddGuiHelper(object, object.name);
}

void TemplateExporter::ExportLink(const Link& link) {
    const Phase* from = ResolvePhase(link.fromPhaseId);
    const Phase* to = ResolvePhase(link.toPhaseId);
    if (from == nullptr || to == nullptr)
        return;
    desc.links.push_back({link.isObjectLink, from->name, link.fromGate, to->name, link.toGate});
}

void TemplateExporter::ExportCheck(const Check& check) {
    const Phase* phase = ResolvePhase(check.phaseId);
    if (phase == nullptr)
        return;
    CheckDesc record;
    record.phaseName = phase->name;
    record.type = static_cast<CheckType>(check.type);
    record.params = check.params;
    // The generator measures these from the primary link's phase, whatever
    // the first parameter was set to, so the file always names it so.
    if (IsMeasuredFromPrimaryLink(check.type)) {
        if (record.params.empty())
            record.params.emplace_back(kPrimaryLinkPhase);
        else
            record.params.front() = kPrimaryLinkPhase;
    }
    desc.checks.push_back(std::move(record));

    GuiHelperDesc& helper = AddGuiHelper(check, kCheckHelperName);
    helper.ownerName = phase->name;
    helper.detail = checkTypeToKeyword(static_cast<CheckType>(check.type));
}

void TemplateExporter::ExportAction(const Action& action) {
    const Phase* phase = ResolvePhase(action.phaseId);
    if (phase == nullptr)
        return;
    const auto addRecord = [&](const std::string& ruleName) -> ActionDesc& {
        ActionDesc& record = desc.actions.emplace_back();
        record.phaseName = phase->name;
        record.objectName = action.objectName;
        record.actionName = action.name;
        record.ruleName = ruleName;
        return record;
    };
    if (action.rules.empty())
        addRecord(kNoRule);
    for (const ActionRule& rule : action.rules) {
        ActionDesc& record = addRecord(rule.ruleName);
        record.ruleParams = rule.params;
        record.ruleCondition = rule.condition;
    }

    GuiHelperDesc& helper = AddGuiHelper(action, action.name);
    helper.ownerName = phase->name;
    helper.detail = action.objectName;
}

void TemplateExporter::ExportUnlinker(const Unlinker& unlinker) {
    const Phase* phase = ResolvePhase(unlinker.phaseId);
    if (phase == nullptr)
        return;
    if (!unlinker.inputGates.empty())
        desc.unlinks.push_back({true, BlockSetName(*phase), unlinker.inputGates});
    if (!unlinker.outputGates.empty())
        desc.unlinks.push_back({false, BlockSetName(*phase), unlinker.outputGates});
    // An unlinker with no gate would come back from the file as nothing, so
    // its position is not written either.
    if (!unlinker.inputGates.empty() || !unlinker.outputGates.empty())
        AddGuiHelper(unlinker, kUnlinkPrefix + phase->name);
}

void ExportToDesc(const ObjectStore& store, TemplateDesc& desc) {
    // Nearly every object writes a gui helper: the list is sized once rather
    // than grown by copying, which for a large template costs more than it.
    desc.guiHelpers.reserve(desc.guiHelpers.size() + store.objects.size());
    TemplateExporter exporter(store, desc);
    store.ForEach<Phase>([&](const Phase& phase) { exporter.ExportPhase(phase); });
    store.ForEach<Case>([&](const Case& object) { exporter.ExportCase(object); });
    store.ForEach<Switch>([&](const Switch& object) { exporter.ExportSwitch(object); });
    for (const Link& link : store.links)
        exporter.ExportLink(link);
    store.ForEach<Check>([&](const Check& check) { exporter.ExportCheck(check); });
    store.ForEach<Action>([&](const Action& action) { exporter.ExportAction(action); });
    store.ForEach<Unlinker>([&](const Unlinker& unlinker) { exporter.ExportUnlinker(unlinker); });
}

} // namespace lw
