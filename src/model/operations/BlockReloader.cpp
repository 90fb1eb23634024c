#include "operations/BlockReloader.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace lw {

namespace {

bool HasProperty(const Phase& phase, const Action& action) {
    const auto found = phase.blockProperties.find(action.objectName);
    return found != phase.blockProperties.end() &&
           std::find(found->second.begin(), found->second.end(), action.name) !=
               found->second.end();
}

} // namespace

BlockReloader::BlockReloader(ObjectStore& store, BlocksContainer& blockPool,
                             std::vector<std::string>& log)
    : store_(store), blockPool_(blockPool), log_(log) {}

void BlockReloader::Run(const std::vector<std::string>& blockFolders) {
    log_.push_back("# Loomwright Reload Blocks \"on the fly\" log file");
    log_.push_back("");
    blockPool_.Load(blockFolders);
    log_.push_back("OK: default blocks reloaded");
    log_.push_back("");

    log_.push_back("Reloading all phases blocks if they are not in default blocks pool.");
    ReloadBlockReferences();
    log_.push_back("Finished reloading phases blocks which are not in default blocks pool.");
    log_.push_back("");

    log_.push_back("Update phases inputs and outputs.");
    UpdateGates();
    log_.push_back("Finished updating phases inputs and outputs.");
    log_.push_back("");

    log_.push_back("Update phases actions.");
    AddMissingActions();
    RemoveStaleActions();
    log_.push_back("Finished updating phases actions.");
    log_.push_back("");

    log_.push_back("Update links.");
    RemoveBrokenLinks();
    log_.push_back("Finished updating links.");
    log_.push_back("");

    store_.RefreshGateMarks();
}

std::vector<Phase*> BlockReloader::Phases() const {
    std::vector<Phase*> phases;
    store_.ForEach<Phase>([&](Phase& phase) { phases.push_back(&phase); });
    return phases;
}

// ---------------------------------------------------------------- block references

void BlockReloader::ReloadBlockReferences() {
    for (Phase* phase : Phases()) {
        DropUnreadableBlocks(*phase);
        ReportIncompatibleBlocks(*phase);
    }
}

void BlockReloader::DropUnreadableBlocks(Phase& phase) {
    auto entry = phase.blocks.begin();
    while (entry != phase.blocks.end()) {
        if (StillReadable(entry->second)) {
            ++entry;
            continue;
        }
        log_.push_back("ERROR: can't load block \"" + entry->first + "\" from group file \"" +
                       entry->second + "\" PHASE: " + phase.name);
        phase.blocks.erase(entry);
        // The entries already passed are looked at again; they pass again.
        entry = phase.blocks.begin();
    }
}

// A block outside the pool, one a template named by a path of its own, stays
// as long as its file still opens. It is read only to prove that, and the
// pool does not learn it: the gates then come out empty.
bool BlockReloader::StillReadable(const std::string& reference) {
    if (blockPool_.Contains(reference))
        return true;
    BlockInfo dropped;
    return blockPool_.ReadBlockFile(dropped, reference, true);
}

// The additional blocks must be able to stand in for the first one. One that
// cannot is only reported: the user decides what to do with it.
void BlockReloader::ReportIncompatibleBlocks(const Phase& phase) {
    if (phase.blocks.size() < 2)
        return;
    const BlockInfo first = blockPool_.GetBlock(phase.blocks.begin()->second);
    for (auto entry = std::next(phase.blocks.begin()); entry != phase.blocks.end(); ++entry) {
        if (!IsCompatibleWith(blockPool_.GetBlock(entry->second), first))
            log_.push_back("ERROR: PHASE: " + phase.name + " BLOCK: " + entry->first +
                           " is not compatible with the first block of the phase");
    }
}

// ---------------------------------------------------------------- gates

// As when a template is read, the gates come from the block of the first key
// in byte order, which is not necessarily "main".
void BlockReloader::UpdateGates() {
    for (Phase* phase : Phases()) {
        if (phase->blocks.empty()) {
            phase->TakeGatesFrom(BlockInfo{});
            log_.push_back("ERROR: PHASE: " + phase->name + " has no blocks!");
            continue;
        }
        phase->TakeGatesFrom(blockPool_.GetBlock(phase->blocks.begin()->second));
    }
}

// ---------------------------------------------------------------- actions

// Each property of the block gets an action if it has none. The index runs
// over all properties of the phase, so a new action stands where the
// property's place in the block puts it, to the right of the phase.
void BlockReloader::AddMissingActions() {
    for (Phase* phase : Phases()) {
        int index = 0;
        for (const auto& [objectName, properties] : phase->blockProperties) {
            for (const std::string& property : properties) {
                if (!store_.HasPhaseAction(*phase, property, objectName))
                    AddAction(*phase, objectName, property, index);
                ++index;
            }
        }
    }
}

void BlockReloader::AddAction(Phase& phase, const std::string& objectName,
                              const std::string& property, int index) {
    Action* action = store_.NewAction();
    action->phaseId = phase.id;
    action->objectName = objectName;
    action->name = property;
    action->posX = ClampedSum(phase.posX, 400);
    action->posY = ClampedSum(phase.posY, std::int64_t{40} * index - 150);
    phase.AddActionId(action->id);
    log_.push_back("ADDED: Action " + property + ":" + objectName + " to PHASE: " + phase.name);
}

// An action made from a block property goes when the block no longer has the
// property; one made by hand (no object name) is the user's and stays.
void BlockReloader::RemoveStaleActions() {
    // Removing one at a time, the walk stepped on after a removal too, so the
    // object that moved into the freed place was not looked at in this run (a
    // second reload catches it). The walk below skips that same object and
    // removes them all at the end, at no shift of the store per removal.
    std::vector<EditorObject*> stale;
    bool skipNext = false;
    for (const auto& object : store_.objects) {
        if (std::exchange(skipNext, false))
            continue;
        Action* action = As<Action>(object.get());
        if (action == nullptr || action->objectName.empty())
            continue;
        Phase* phase = store_.FindPhase(action->phaseId);
        if (phase == nullptr || HasProperty(*phase, *action))
            continue;
        log_.push_back("REMOVED: Action: " + action->name + ":" + action->objectName +
                       " from PHASE: " + phase->name);
        phase->RemoveActionId(action->id);
        stale.push_back(action);
        skipNext = true;
    }
    store_.RemoveObjects(stale);
}

// ---------------------------------------------------------------- links

// Each link is judged by the phases alone, which this does not change, so
// one pass in list order finds and logs the broken ones in order.
void BlockReloader::RemoveBrokenLinks() {
    std::vector<Link>& links = store_.links;
    links.erase(std::remove_if(links.begin(), links.end(),
                               [this](const Link& link) {
                                   const std::string fault = LinkFault(link);
                                   if (!fault.empty())
                                       log_.push_back("REMOVED: Link: " + fault);
                                   return !fault.empty();
                               }),
                links.end());
}

std::string BlockReloader::LinkFault(const Link& link) const {
    const Phase* from = store_.FindPhase(link.fromPhaseId);
    if (from == nullptr)
        return "Wrong FROM_PHASE";
    const Phase* to = store_.FindPhase(link.toPhaseId);
    if (to == nullptr)
        return "Wrong TO_PHASE";
    const std::string ends = "From Phase: " + from->name + " To Phase: " + to->name;
    if (!HasGate(from->outputs, link.fromGate))
        return ends + " because FROM phase doesn't have connection: " + link.fromGate;
    if (!HasGate(to->inputs, link.toGate))
        return ends + " because TO phase doesn't have connection: " + link.toGate;
    return std::string();
}

} // namespace lw
