#include "operations/TemplateBuilder.h"

#include "diagnostics/Diagnostic.h"
#include "document/Keywords.h"
#include "operations/BlockSetPool.h"
#include "operations/GeneratedNames.h"
#include "operations/GuiHelperPool.h"

#include <algorithm>

namespace lw {

namespace {

// Gives the object the position of its gui helper record; without one it
// keeps the position it was made with.
void MoveTo(EditorObject& object, const GuiHelperDesc* record) {
    if (record == nullptr)
        return;
    object.posX = record->x;
    object.posY = record->y;
}

void AppendTo(ObjectList* list, EditorObject* object) {
    if (list != nullptr)
        list->push_back(object);
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
    // One pool for all steps indexes the records once; a record taken by one
    // step is gone for the later ones, as if erased at once.
    GuiHelperPool helpers(desc.guiHelpers);
    BuildPhases(desc, list, helpers);
    BuildLinks(desc, list, madeLinks);
    BuildCasesAndSwitches(desc, list, helpers);
    BuildChecks(desc, list, helpers);
    BuildActions(desc, list, helpers);
    BuildUnlinkers(desc, list, helpers);
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

void TemplateBuilder::Report(std::vector<int> RecordSourceLines::*list, std::size_t index,
                             const char* code, const std::string& message,
                             const std::string& object) {
    if (report_ == nullptr)
        return;
    const std::vector<int>& lines = report_->lines->*list;
    const int line = index < lines.size() ? lines[index] : 0;
    report_->diagnostics.push_back(
        Diagnostic{report_->file, line, Severity::Error, code, message, object, 0});
}

// ---------------------------------------------------------------- phases

void TemplateBuilder::BuildPhases(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers) {
    // A phase without a gui helper takes the colour of the phase before it.
    std::int32_t colorIndex = 0;
    BlockSetPool blockSets(desc.blockSets);
    for (std::size_t i = 0; i < desc.phases.size(); ++i) {
        const PhaseDesc& phaseDesc = desc.phases[i];
        Phase* phase = store_.NewPhase();
        phase->name = phaseDesc.name;
        phase->generationType = phaseDesc.generationType;
        // The geometry links still stand at the front; they are resolved
        // once every phase exists.
        phase->geoParams = phaseDesc.geoParams;
        phase->allocationType = phaseDesc.allocationType;
        phase->blocksFolder = phaseDesc.blocksFolder;
        PlacePhase(helpers, *phase, colorIndex);
        TakeBlocks(blockSets, *phase, phaseDesc.blockSetName, i);
        if (phase->blocks.empty()) {
            // The id stays used, so the phases after it keep their numbers.
            ShowStop("Phase without blocks: ignoring");
            Report(&RecordSourceLines::phases, i, "phase-without-blocks",
                   "The phase " + Quoted(phaseDesc.name) + " has no block that could be read " +
                       "from its block set " + Quoted(phaseDesc.blockSetName) +
                       "; the phase is dropped, and everything that names it with it.",
                   phaseDesc.name);
            store_.RemoveObject(phase);
            continue;
        }
        AppendTo(list, phase);
        TakeGatesFromFirstBlock(*phase);
    }
    const ObjectList scope = SearchScope(list);
    const NameIndex<Phase> phases(scope);
    for (EditorObject* object : scope) {
        if (Phase* phase = As<Phase>(object))
            ResolveGeometryLinks(*phase, phases);
    }
    if (report_ != nullptr)
        ReportUnknownGeometryLinks(desc, phases);
}

// A geometry link to a phase that no phase bears is left unset; the marks
// that stand for "no link" are no names.
void TemplateBuilder::ReportUnknownGeometryLinks(const TemplateDesc& desc,
                                                 const NameIndex<Phase>& phases) {
    for (std::size_t i = 0; i < desc.phases.size(); ++i) {
        const PhaseDesc& phaseDesc = desc.phases[i];
        const GenerationType type = phaseDesc.generationType;
        // A phase that was dropped has been reported for that.
        if (phases.First(phaseDesc.name) == nullptr)
            continue;
        const std::size_t linked = !HasPrimaryLink(type) ? 0 : HasSecondaryLink(type) ? 2 : 1;
        for (std::size_t j = 0; j < linked && j < phaseDesc.geoParams.size(); ++j) {
            const std::string& name = phaseDesc.geoParams[j];
            if (name == "EMPTY" || name == "DELETED" || phases.First(name) != nullptr)
                continue;
            Report(&RecordSourceLines::phases, i, "unknown-reference",
                   "The phase " + Quoted(phaseDesc.name) + " is placed against the phase " +
                       Quoted(name) + ", which does not exist; that geometry link is left unset.",
                   phaseDesc.name);
        }
    }
}

void TemplateBuilder::PlacePhase(GuiHelperPool& helpers, Phase& phase, std::int32_t& colorIndex) {
    if (const GuiHelperDesc* record = helpers.TakeByName(phase.name)) {
        MoveTo(phase, record);
        colorIndex = UsableColour(record->colorIndex);
    }
    phase.colorIndex = colorIndex;
}

// A block set belongs to the first phase that names it: a later phase of the
// same set finds nothing.
void TemplateBuilder::TakeBlocks(BlockSetPool& blockSets, Phase& phase,
                                 const std::string& blockSetName, std::size_t index) {
    const BlockSetDesc* set = blockSets.Take(blockSetName);
    if (set == nullptr)
        return;
    for (const auto& [key, reference] : set->blocks) {
        if (EnsureBlockInPool(reference))
            phase.blocks[key] = reference;
        else
            Report(&RecordSourceLines::phases, index, "missing-block-file",
                   "The block file " + Quoted(reference) + " of the phase " + Quoted(phase.name) +
                       " is missing or cannot be read; the phase loses its block " + Quoted(key) +
                       ".",
                   phase.name);
    }
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
    phase.TakeGatesFrom(blockPool_.GetBlock(phase.blocks.begin()->second));
}

// Turns the phase names at the front of geoParams into the link ids, leaving
// the numeric parameters. A name that no phase bears (such as "EMPTY") is
// dropped all the same and leaves the link 0.
void TemplateBuilder::ResolveGeometryLinks(Phase& phase, const NameIndex<Phase>& phases) {
    if (!HasPrimaryLink(phase.generationType) || phase.geoParams.empty())
        return;
    if (const Phase* linked = TakeGeometryLink(phase, phases))
        phase.primaryLinkId = linked->id;
    if (!HasSecondaryLink(phase.generationType) || phase.geoParams.empty())
        return;
    if (const Phase* linked = TakeGeometryLink(phase, phases))
        phase.secondaryLinkId = linked->id;
}

const Phase* TemplateBuilder::TakeGeometryLink(Phase& phase, const NameIndex<Phase>& phases) {
    const Phase* linked = phases.First(phase.geoParams.front());
    phase.geoParams.erase(phase.geoParams.begin());
    return linked;
}

// ---------------------------------------------------------------- links

void TemplateBuilder::BuildLinks(TemplateDesc& desc, ObjectList* list,
                                 std::vector<Link>* madeLinks) {
    const NameIndex<Phase> phases(SearchScope(list));
    for (std::size_t i = 0; i < desc.links.size(); ++i) {
        if (!AddLink(desc.links[i], phases, madeLinks, i))
            ShowStop("Error adding link!");
    }
}

bool TemplateBuilder::AddLink(const LinkDesc& linkDesc, const NameIndex<Phase>& phases,
                              std::vector<Link>* madeLinks, std::size_t index) {
    const auto lost = [&](const char* code, const std::string& why) {
        Report(&RecordSourceLines::links, index, code,
               "The link from " + Quoted(linkDesc.fromPhase + "(" + linkDesc.fromGate + ")") +
                   " to " + Quoted(linkDesc.toPhase + "(" + linkDesc.toGate + ")") +
                   " is dropped: " + why + ".",
               linkDesc.fromPhase);
    };
    // The first phase of the source's name is the source, and it is not also
    // tried as the destination: a link between namesakes goes to the second
    // of them, and a link from a phase to itself is never found.
    Phase* from = phases.First(linkDesc.fromPhase);
    Phase* to = linkDesc.toPhase == linkDesc.fromPhase ? phases.Second(linkDesc.toPhase)
                                                       : phases.First(linkDesc.toPhase);
    if (from == nullptr) {
        ShowStop("Can't find From phase for link");
        lost("unknown-reference", "its source phase does not exist");
        return false;
    }
    if (to == nullptr) {
        ShowStop("Can't find To phase for link");
        lost("unknown-reference", linkDesc.toPhase == linkDesc.fromPhase
                                      ? "a link cannot lead from a phase to itself"
                                      : "its destination phase does not exist");
        return false;
    }
    if (!HasGate(from->outputs, linkDesc.fromGate) || !HasGate(to->inputs, linkDesc.toGate)) {
        ShowStop("Wrong link (can't find corresponding connections in phases)");
        lost("unknown-gate", !HasGate(from->outputs, linkDesc.fromGate)
                                 ? "its source phase has no output gate of that name"
                                 : "its destination phase has no input gate of that name");
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

void TemplateBuilder::BuildCasesAndSwitches(TemplateDesc& desc, ObjectList* list,
                                            GuiHelperPool& helpers) {
    const NameIndex<Phase> phases(SearchScope(list));
    for (std::size_t i = 0; i < desc.cases.size(); ++i) {
        const CaseDesc& caseDesc = desc.cases[i];
        Case* object = store_.NewCase();
        object->name = caseDesc.name;
        for (const std::string& phaseName : caseDesc.phaseNames) {
            Phase* phase = phases.First(phaseName);
            if (phase == nullptr) {
                Report(&RecordSourceLines::cases, i, "unknown-reference",
                       "The case " + Quoted(caseDesc.name) + " names the phase " +
                           Quoted(phaseName) + ", which does not exist; the case goes without it.",
                       caseDesc.name);
                continue;
            }
            if (std::find(object->phaseIds.begin(), object->phaseIds.end(), phase->id) ==
                object->phaseIds.end())
                object->phaseIds.push_back(phase->id);
            // A phase named by several cases belongs to the last of them.
            phase->caseId = object->id;
        }
        MoveTo(*object, helpers.TakeByName(object->name));
        AppendTo(list, object);
    }
    const NameIndex<Case> cases(SearchScope(list));
    for (std::size_t i = 0; i < desc.switches.size(); ++i) {
        const SwitchDesc& switchDesc = desc.switches[i];
        Switch* object = store_.NewSwitch();
        object->name = switchDesc.name;
        object->number = switchDesc.number;
        object->preliminaryCheck = switchDesc.preliminaryCheck;
        object->planeType = switchDesc.planeType;
        for (const std::string& caseName : switchDesc.caseNames) {
            Case* member = cases.First(caseName);
            if (member == nullptr) {
                Report(&RecordSourceLines::switches, i, "unknown-reference",
                       "The switch " + Quoted(switchDesc.name) + " names the case " +
                           Quoted(caseName) + ", which does not exist; the switch goes without it.",
                       switchDesc.name);
                continue;
            }
            // Unlike a case's phases, a switch keeps a case named twice.
            object->caseIds.push_back(member->id);
            member->switchId = object->id;
        }
        MoveTo(*object, helpers.TakeByName(object->name));
        AppendTo(list, object);
    }
}

// ---------------------------------------------------------------- checks and actions

// A check or action whose phase is unknown stays in the store as it was made,
// without phase or position, and is not collected.
void TemplateBuilder::BuildChecks(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers) {
    const NameIndex<Phase> phases(SearchScope(list));
    for (std::size_t i = 0; i < desc.checks.size(); ++i) {
        const CheckDesc& checkDesc = desc.checks[i];
        Check* check = store_.NewCheck();
        Phase* phase = phases.First(checkDesc.phaseName);
        if (phase == nullptr) {
            Report(&RecordSourceLines::checks, i, "unknown-reference",
                   "The " + checkTypeToKeyword(checkDesc.type) + " check names the phase " +
                       Quoted(checkDesc.phaseName) +
                       ", which does not exist; the check is not saved.",
                   checkDesc.phaseName);
            continue;
        }
        check->phaseId = phase->id;
        check->type = checkDesc.type;
        check->params = checkDesc.params;
        phase->AddCheckId(check->id);
        MoveTo(*check, helpers.TakeByOwner(kCheckHelperName, checkDesc.phaseName,
                                           checkTypeToKeyword(checkDesc.type)));
        AppendTo(list, check);
    }
}

// Each record is one rule; the records of one action are merged into the
// action that the first of them made.
void TemplateBuilder::BuildActions(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers) {
    const ObjectList scope = SearchScope(list);
    const NameIndex<Phase> phases(scope);
    // Actions by their phase's name, object name and name, the first in
    // scope order; the actions made below join the end of the scope.
    ActionIndex actions;
    for (EditorObject* object : scope) {
        if (Action* action = As<Action>(object))
            IndexAction(actions, *action);
    }
    for (std::size_t i = 0; i < desc.actions.size(); ++i) {
        const ActionDesc& actionDesc = desc.actions[i];
        const ActionRule rule{actionDesc.ruleName, actionDesc.ruleParams, actionDesc.ruleCondition};
        const auto existing =
            actions.find({actionDesc.phaseName, actionDesc.objectName, actionDesc.actionName});
        if (existing != actions.end()) {
            existing->second->rules.push_back(rule);
            continue;
        }
        Action* action = store_.NewAction();
        Phase* phase = phases.First(actionDesc.phaseName);
        if (phase == nullptr) {
            Report(&RecordSourceLines::actions, i, "unknown-reference",
                   "The action " + Quoted(actionDesc.actionName) + " names the phase " +
                       Quoted(actionDesc.phaseName) +
                       ", which does not exist; the action is not saved.",
                   actionDesc.phaseName);
            continue;
        }
        action->phaseId = phase->id;
        action->objectName = actionDesc.objectName;
        action->name = actionDesc.actionName;
        // "empty" is how an action without rules comes back from the file.
        if (actionDesc.ruleName != "empty")
            action->rules.push_back(rule);
        phase->AddActionId(action->id);
        MoveTo(*action, helpers.TakeByOwner(actionDesc.actionName, actionDesc.phaseName,
                                            actionDesc.objectName));
        AppendTo(list, action);
        IndexAction(actions, *action);
    }
}

void TemplateBuilder::IndexAction(ActionIndex& actions, Action& action) const {
    // An action whose phase is gone is found by no name.
    if (const Phase* phase = store_.FindPhase(action.phaseId))
        actions.emplace(NameTriple{phase->name, action.objectName, action.name}, &action);
}

// ---------------------------------------------------------------- unlinkers

// The input and output records of a phase make one unlinker; the second
// record only sets its gates.
void TemplateBuilder::BuildUnlinkers(TemplateDesc& desc, ObjectList* list, GuiHelperPool& helpers) {
    const ObjectList scope = SearchScope(list);
    const NameIndex<Phase> phases(scope);
    // The first unlinker of each phase in scope order.
    std::map<std::int32_t, Unlinker*> unlinkers;
    // An unlinker's record is named after its phase behind any seven
    // characters, and it is not used up.
    for (EditorObject* object : scope) {
        if (Unlinker* unlinker = As<Unlinker>(object))
            unlinkers.emplace(unlinker->phaseId, unlinker);
    }
    for (std::size_t i = 0; i < desc.unlinks.size(); ++i) {
        const UnlinkDesc& unlinkDesc = desc.unlinks[i];
        const std::string phaseName = StripSetPrefix(unlinkDesc.blockSetName);
        const Phase* phase = phases.First(phaseName);
        if (phase == nullptr) {
            Report(&RecordSourceLines::unlinks, i, "unknown-reference",
                   "The unlink line names the phase " + Quoted(phaseName) +
                       ", which does not exist; the line is dropped.",
                   phaseName);
            continue;
        }
        Unlinker*& unlinker = unlinkers[phase->id];
        const bool isNew = unlinker == nullptr;
        if (isNew) {
            unlinker = store_.NewUnlinker();
            unlinker->phaseId = phase->id;
        }
        (unlinkDesc.isInput ? unlinker->inputGates : unlinker->outputGates) = unlinkDesc.gates;
        if (isNew) {
            MoveTo(*unlinker, helpers.FindByStrippedName(phaseName));
            AppendTo(list, unlinker);
        }
    }
}

} // namespace lw
