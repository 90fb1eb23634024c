#pragma once

#include "catalog/BlocksContainer.h"
#include "objects/Link.h"
#include "objects/Phase.h"
#include "operations/ObjectStore.h"

#include <string>
#include <vector>

namespace lw {

// Brings an open document into line with block files that changed under it:
// rereads the block pool, then repairs what hangs on blocks in four passes
// (block references, gates, actions, links) and refreshes the gate marks.
// Every change is one line of the log, section lines included; the user sees
// nothing but what the pool's folder scan reports. No pass can be undone.
class BlockReloader {
public:
    BlockReloader(ObjectStore& store, BlocksContainer& blockPool, std::vector<std::string>& log);

    void Run(const std::vector<std::string>& blockFolders);

private:
    void ReloadBlockReferences();
    void DropUnreadableBlocks(Phase& phase);
    bool StillReadable(const std::string& reference);
    void ReportIncompatibleBlocks(const Phase& phase);
    void UpdateGates();
    void AddMissingActions();
    void AddAction(Phase& phase, const std::string& objectName, const std::string& property,
                   int index);
    void RemoveStaleActions();
    void RemoveBrokenLinks();
    // Why the link must go, as its log line ends; empty for a sound link.
    std::string LinkFault(const Link& link) const;
    // The phases in store order, taken before a pass adds objects.
    std::vector<Phase*> Phases() const;

    ObjectStore& store_;
    BlocksContainer& blockPool_;
    std::vector<std::string>& log_;
};

} // namespace lw
