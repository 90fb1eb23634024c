#pragma once

#include "document/TemplateDesc.h"
#include "operations/NameTriple.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lw {

// The gui helper records of a description as the builders use them up: each
// search finds the first record in file order that fits and is still there,
// and a taken record is gone for every later search, however it is made. The
// searches are indexed, so that taking the records of a large template costs
// no walk over the list each time. When the pool ends, the taken records are
// erased from the list.
class GuiHelperPool {
public:
    explicit GuiHelperPool(std::vector<GuiHelperDesc>& helpers) : helpers_(helpers) {}
    ~GuiHelperPool();
    GuiHelperPool(const GuiHelperPool&) = delete;
    GuiHelperPool& operator=(const GuiHelperPool&) = delete;

    // Takes the first record of that object name, or gives null.
    const GuiHelperDesc* TakeByName(const std::string& objectName);
    // Takes the first record of that object name, owner and detail.
    const GuiHelperDesc* TakeByOwner(const std::string& objectName, const std::string& ownerName,
                                     const std::string& detail);
    // The first record whose name without its first seven characters is
    // `strippedName`; it stays in the pool.
    const GuiHelperDesc* FindByStrippedName(const std::string& strippedName);

private:
    // Record indexes in file order, and how far the taken ones at the front reach.
    struct Queue {
        std::vector<std::size_t> records;
        std::size_t next = 0;
    };

    // The first record of the queue not taken yet, or null.
    const GuiHelperDesc* Front(Queue& queue);
    const GuiHelperDesc* Take(Queue* queue);
    void EnsureTaken();

    std::vector<GuiHelperDesc>& helpers_;
    std::vector<bool> taken_;
    bool indexedByName_ = false;
    bool indexedByOwner_ = false;
    bool indexedByStrippedName_ = false;
    // Keyed by views of the records' own texts, which stay put until the
    // pool ends.
    std::unordered_map<std::string_view, Queue> byName_;
    std::unordered_map<NameTriple, Queue, NameTripleHash> byOwner_;
    std::unordered_map<std::string_view, Queue> byStrippedName_;
};

} // namespace lw
