#include "operations/TemplateBuilder.h"

#include "document/Keywords.h"

#include <algorithm>

namespace lw {

namespace {

using GuiHelpers = std::vector<GuiHelperDesc>;

// Moves the object to the first gui helper record that fits and erases the
// record, so that the next object of the same look takes the next record.
// Without a fitting record the object keeps the position it was made with.
template <typename Fits> void TakePosition(GuiHelpers& helpers, EditorObject& object, Fits fits) {
    const auto found = std::find_if(helpers.begin(), helpers.end(), fits);
    if (found == helpers.end())
        return;
    object.posX = found->x;
    object.posY = found->y;
    helpers.erase(found);
}

void AppendTo(ObjectList* list, EditorObject* object) {
    if (list != nullptr)
        list->push_back(object);
}

bool HasGate(const std::vector<GateSlot>& gates, const std::string& name) {
    return std::any_of(gates.begin(), gates.end(),
                       [&](const GateSlot& gate) { return gate.name == name; });
}

// The colours a gui helper may give a phase; anything else is the default.
std::int32_t UsableColour(std::int32_t colorIndex) {
    return colorIndex >= 1 && colorIndex <= 6 ? colorIndex : 0;
}

} // namespace

TemplateBuilder::TemplateBuilder(ObjectStore& store, BlocksContainer& blockPool,
                                 UserPrompts& prompts)
    : store_(store), blockPool_(blockPool), prompts_(prompts) {}

void TemplateBuilder::Build(TemplateDesc& desc, ObjectList* list, std::vector<Link>* madeLinks) {
    BuildPhases(desc, list);
    BuildLinks(desc, list, madeLinks);
    BuildCasesAndSwitches(desc, list);
    BuildChecks(desc, list);
    BuildActions(desc, list);
    BuildUnlinkers(desc, list);
}

ObjectList TemplateBuilder::SearchScope(const ObjectList* list) const {
    if (list != nullptr)
        return *list;
    ObjectList scope;
    scope.reserve(store_.objects.size());
    for (const auto& object : store_.objects)
        scope.push_back(object.get());
    return scope;
}

void TemplateBuilder::ShowStop(const std::string& text) {
    prompts_.ShowMessage(text, MessageIcon::Stop);
}

// ---------------------------------------------------------------- phases

void TemplateBuilder::BuildPhases(TemplateDesc& desc, ObjectList* list) {
    // A phase without a gui helper takes the colour of the phase before it.
    std::int32_t colorIndex = 0;
    for (const PhaseDesc& phaseDesc : desc.phases) {
        Phase* phase = store_.NewPhase();
        phase->name = phaseDesc.name;
        phase->generationType = phaseDesc.generationType;
        // The geometry links still stand at the front; they are resolved
        // once every phase exists.
        phase->geoParams = phaseDesc.geoParams;
        phase->allocationType = phaseDesc.allocationType;
        phase->blocksFolder = phaseDesc.blocksFolder;
        PlacePhase(desc, *phase, colorIndex);
        TakeBlocks(desc, *phase, phaseDesc.blockSetName);
        if (phase->blocks.empty()) {
            // The id stays used, so the phases after it keep their numbers.
            ShowStop("Phase without blocks: ignoring");
            store_.RemoveObject(phase);
            continue;
        }
        AppendTo(list, phase);
        TakeGatesFromFirstBlock(*phase);
    }
    for (EditorObject* object : SearchScope(list)) {
        if (Phase* phase = As<Phase>(object))
            ResolveGeometryLinks(*phase, list);
    }
}

void TemplateBuilder::PlacePhase(TemplateDesc& desc, Phase& phase, std::int32_t& colorIndex) {
    GuiHelpers& helpers = desc.guiHelpers;
    const auto found =
        std::find_if(helpers.begin(), helpers.end(),
                     [&](const GuiHelperDesc& helper) { return helper.objectName == phase.name; });
    if (found != helpers.end()) {
        phase.posX = found->x;
        phase.posY = found->y;
        colorIndex = UsableColour(found->colorIndex);
        helpers.erase(found);
    }
    phase.colorIndex = colorIndex;
}

// A block set belongs to the first phase that names it: it is erased once
// used, and a later phase of the same set finds nothing.
void TemplateBuilder::TakeBlocks(TemplateDesc& desc, Phase& phase,
                                 const std::string& blockSetName) {
    std::vector<BlockSetDesc>& sets = desc.blockSets;
    const auto set = std::find_if(sets.begin(), sets.end(), [&](const BlockSetDesc& candidate) {
        return candidate.name == blockSetName;
    });
    if (set == sets.end())
        return;
    for (const auto& [key, reference] : set->blocks) {
        if (EnsureBlockInPool(reference))
            phase.blocks[key] = reference;
    }
    sets.erase(set);
}

// A block the pool does not know is read from its file on demand and kept;
// a file that cannot be read has been reported by the pool.
bool TemplateBuilder::EnsureBlockInPool(const std::string& reference) {
    if (blockPool_.Contains(reference))
        return true;
    BlockInfo info;
    if (!blockPool_.ReadBlockFile(info, reference, false))
        return false;
    blockPool_.Put(reference, info);
    return true;
}

// The gates come from the block of the first key in byte order, which is
// not necessarily "main".
void TemplateBuilder::TakeGatesFromFirstBlock(Phase& phase) {
    const BlockInfo block = blockPool_.GetBlock(phase.blocks.begin()->second);
    for (const std::string& name : block.inputs)
        phase.inputs.push_back(GateSlot{name, true});
    for (const std::string& name : block.outputs)
        phase.outputs.push_back(GateSlot{name, true});
    phase.blockProperties = block.dynamics;
}

// Turns the phase names at the front of geoParams into the link ids, leaving
// the numeric parameters. A name that no phase bears (such as "EMPTY") is
// dropped all the same and leaves the link 0.
void TemplateBuilder::ResolveGeometryLinks(Phase& phase, const ObjectList* list) {
    if (!HasPrimaryLink(phase.generationType) || phase.geoParams.empty())
        return;
    if (const Phase* linked = TakeGeometryLink(phase, list))
        phase.primaryLinkId = linked->id;
    if (!HasSecondaryLink(phase.generationType) || phase.geoParams.empty())
        return;
    if (const Phase* linked = TakeGeometryLink(phase, list))
        phase.secondaryLinkId = linked->id;
}

const Phase* TemplateBuilder::TakeGeometryLink(Phase& phase, const ObjectList* list) {
    const Phase* linked = store_.FindPhaseByName(phase.geoParams.front(), list);
    phase.geoParams.erase(phase.geoParams.begin());
    return linked;
}

// ---------------------------------------------------------------- links

void TemplateBuilder::BuildLinks(TemplateDesc& desc, ObjectList* list,
                                 std::vector<Link>* madeLinks) {
    for (const LinkDesc& linkDesc : desc.links) {
        if (!AddLink(linkDesc, list, madeLinks))
            ShowStop("Error adding link!");
    }
}

bool TemplateBuilder::AddLink(const LinkDesc& linkDesc, const ObjectList* list,
                              std::vector<Link>* madeLinks) {
    Phase* from = nullptr;
    Phase* to = nullptr;
    for (EditorObject* object : SearchScope(list)) {
        Phase* phase = As<Phase>(object);
        if (phase == nullptr)
            continue;
        // The phase taken as the source is not also tried as the
        // destination, so a link from a phase to itself is never found.
        if (from == nullptr && phase->name == linkDesc.fromPhase)
            from = phase;
        else if (to == nullptr && phase->name == linkDesc.toPhase)
            to = phase;
        if (from != nullptr && to != nullptr)
            break;
    }
    if (from == nullptr) {
        ShowStop("Can't find From phase for link");
        return false;
    }
    if (to == nullptr) {
        ShowStop("Can't find To phase for link");
        return false;
    }
    if (!HasGate(from->outputs, linkDesc.fromGate) || !HasGate(to->inputs, linkDesc.toGate)) {
        ShowStop("Wrong link (can't find corresponding connections in phases)");
        return false;
    }
    from->MarkGateUsed(linkDesc.fromGate, false);
    to->MarkGateUsed(linkDesc.toGate, true);
    const Link link{linkDesc.isObjectLink, from->id, linkDesc.fromGate, to->id, linkDesc.toGate};
    store_.links.push_back(link);
    if (madeLinks != nullptr)
        madeLinks->push_back(link);
    return true;
}

// ---------------------------------------------------------------- cases and switches

void TemplateBuilder::BuildCasesAndSwitches(TemplateDesc& desc, ObjectList* list) {
    for (const CaseDesc& caseDesc : desc.cases) {
        Case* object = store_.NewCase();
        object->name = caseDesc.name;
        for (const std::string& phaseName : caseDesc.phaseNames) {
            Phase* phase = store_.FindPhaseByName(phaseName, list);
            if (phase == nullptr)
                continue;
            if (std::find(object->phaseIds.begin(), object->phaseIds.end(), phase->id) ==
                object->phaseIds.end())
                object->phaseIds.push_back(phase->id);
            // A phase named by several cases belongs to the last of them.
            phase->caseId = object->id;
        }
        PlaceByName(desc, *object, object->name);
        AppendTo(list, object);
    }
    for (const SwitchDesc& switchDesc : desc.switches) {
        Switch* object = store_.NewSwitch();
        object->name = switchDesc.name;
        object->number = switchDesc.number;
        object->preliminaryCheck = switchDesc.preliminaryCheck;
        object->planeType = switchDesc.planeType;
        for (const std::string& caseName : switchDesc.caseNames) {
            Case* member = store_.FindCaseByName(caseName, list);
            if (member == nullptr)
                continue;
            // Unlike a case's phases, a switch keeps a case named twice.
            object->caseIds.push_back(member->id);
            member->switchId = object->id;
        }
        PlaceByName(desc, *object, object->name);
        AppendTo(list, object);
    }
}

// ---------------------------------------------------------------- checks and actions

// A check or action whose phase is unknown stays in the store as it was made,
// without phase or position, and is not collected.
void TemplateBuilder::BuildChecks(TemplateDesc& desc, ObjectList* list) {
    for (const CheckDesc& checkDesc : desc.checks) {
        Check* check = store_.NewCheck();
        Phase* phase = store_.FindPhaseByName(checkDesc.phaseName, list);
        if (phase == nullptr)
            continue;
        check->phaseId = phase->id;
        check->type = checkDesc.type;
        check->params = checkDesc.params;
        phase->AddCheckId(check->id);
        PlaceCheck(desc, *check, checkDesc);
        AppendTo(list, check);
    }
}

// Each record is one rule; the records of one action are merged into the
// action that the first of them made.
void TemplateBuilder::BuildActions(TemplateDesc& desc, ObjectList* list) {
    for (const ActionDesc& actionDesc : desc.actions) {
        const ActionRule rule{actionDesc.ruleName, actionDesc.ruleParams, actionDesc.ruleCondition};
        if (Action* existing = store_.FindActionOf(actionDesc.phaseName, actionDesc.objectName,
                                                   actionDesc.actionName, list)) {
            existing->rules.push_back(rule);
            continue;
        }
        Action* action = store_.NewAction();
        Phase* phase = store_.FindPhaseByName(actionDesc.phaseName, list);
        if (phase == nullptr)
            continue;
        action->phaseId = phase->id;
        action->objectName = actionDesc.objectName;
        action->name = actionDesc.actionName;
        // "empty" is how an action without rules comes back from the file.
        if (actionDesc.ruleName != "empty")
            action->rules.push_back(rule);
        phase->AddActionId(action->id);
        PlaceAction(desc, *action, actionDesc);
        AppendTo(list, action);
    }
}

// ---------------------------------------------------------------- unlinkers

// The input and output records of a phase make one unlinker; the second
// record only sets its gates.
void TemplateBuilder::BuildUnlinkers(TemplateDesc& desc, ObjectList* list) {
    for (const UnlinkDesc& unlinkDesc : desc.unlinks) {
        const std::string phaseName = StripSetPrefix(unlinkDesc.blockSetName);
        const Phase* phase = store_.FindPhaseByName(phaseName, list);
        if (phase == nullptr)
            continue;
        Unlinker* unlinker = FindUnlinkerOf(phase->id, list);
        const bool isNew = unlinker == nullptr;
        if (isNew) {
            unlinker = store_.NewUnlinker();
            unlinker->phaseId = phase->id;
        }
        (unlinkDesc.isInput ? unlinker->inputGates : unlinker->outputGates) = unlinkDesc.gates;
        if (isNew) {
            PlaceUnlinker(desc, *unlinker, phaseName);
            AppendTo(list, unlinker);
        }
    }
}

Unlinker* TemplateBuilder::FindUnlinkerOf(std::int32_t phaseId, const ObjectList* list) const {
    for (EditorObject* object : SearchScope(list)) {
        Unlinker* unlinker = As<Unlinker>(object);
        if (unlinker != nullptr && unlinker->phaseId == phaseId)
            return unlinker;
    }
    return nullptr;
}

// ---------------------------------------------------------------- positions

void TemplateBuilder::PlaceByName(TemplateDesc& desc, EditorObject& object,
                                  const std::string& name) {
    TakePosition(desc.guiHelpers, object,
                 [&](const GuiHelperDesc& helper) { return helper.objectName == name; });
}

void TemplateBuilder::PlaceCheck(TemplateDesc& desc, Check& check, const CheckDesc& checkDesc) {
    const std::string typeKeyword = checkTypeToKeyword(checkDesc.type);
    TakePosition(desc.guiHelpers, check, [&](const GuiHelperDesc& helper) {
        return helper.objectName == "check" && helper.ownerName == checkDesc.phaseName &&
               helper.detail == typeKeyword;
    });
}

void TemplateBuilder::PlaceAction(TemplateDesc& desc, Action& action,
                                  const ActionDesc& actionDesc) {
    TakePosition(desc.guiHelpers, action, [&](const GuiHelperDesc& helper) {
        return helper.objectName == actionDesc.actionName &&
               helper.ownerName == actionDesc.phaseName && helper.detail == actionDesc.objectName;
    });
}

// The unlinker's record is named after the phase's block set, whatever its
// prefix; it is not erased.
void TemplateBuilder::PlaceUnlinker(const TemplateDesc& desc, Unlinker& unlinker,
                                    const std::string& phaseName) {
    const GuiHelpers& helpers = desc.guiHelpers;
    const auto found =
        std::find_if(helpers.begin(), helpers.end(), [&](const GuiHelperDesc& helper) {
            return StripSetPrefix(helper.objectName) == phaseName;
        });
    if (found == helpers.end())
        return;
    unlinker.posX = found->x;
    unlinker.posY = found->y;
}

} // namespace lw
