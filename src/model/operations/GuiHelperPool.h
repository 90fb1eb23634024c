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
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    // The records of each key in file order, as a chain: `first` gives the
    // first record of a key not known to be taken, `next` the record of the
    // same key after each one. Two allocations for the whole index rather
    // than one for every key.
    template <typename Key, typename Hash = std::hash<Key>> struct Chains {
        std::unordered_map<Key, std::size_t, Hash> first;
        std::vector<std::size_t> next;
        bool built = false;
    };

    template <typename Key, typename Hash, typename KeyOf>
    void Build(Chains<Key, Hash>& chains, KeyOf keyOf);
    // The first record of the key not taken yet, or kNone.
    template <typename Key, typename Hash>
    std::size_t Front(Chains<Key, Hash>& chains, const Key& key);
    const GuiHelperDesc* Take(std::size_t record);
    void EnsureTaken();

    std::vector<GuiHelperDesc>& helpers_;
    std::vector<bool> taken_;
    // Keyed by views of the records' own texts, which stay put until the
    // pool ends.
    Chains<std::string_view> byName_;
    Chains<NameTriple, NameTripleHash> byOwner_;
    Chains<std::string_view> byStrippedName_;
};

} // namespace lw
