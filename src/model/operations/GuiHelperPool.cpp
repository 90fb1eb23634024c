#include "operations/GuiHelperPool.h"

#include "operations/EraseMarked.h"

namespace lw {

namespace {

// StripSetPrefix as a view into the name itself.
std::string_view StrippedView(const std::string& name) {
    return std::string_view(name).substr(name.size() < 8 ? 0 : 7);
}

} // namespace

GuiHelperPool::~GuiHelperPool() {
    // Nothing was taken if nothing was ever looked for.
    if (!taken_.empty())
        EraseMarked(helpers_, taken_);
}

void GuiHelperPool::EnsureTaken() {
    if (taken_.size() != helpers_.size())
        taken_.assign(helpers_.size(), false);
}

template <typename Key, typename Hash, typename KeyOf>
void GuiHelperPool::Build(Chains<Key, Hash>& chains, KeyOf keyOf) {
    EnsureTaken();
    if (chains.built)
        return;
    chains.built = true;
    chains.first.reserve(helpers_.size());
    chains.next.assign(helpers_.size(), kNone);
    // From the last record back, so that each key ends up at its first one.
    for (std::size_t i = helpers_.size(); i-- > 0;) {
        const auto [slot, added] = chains.first.try_emplace(keyOf(helpers_[i]), i);
        if (!added) {
            chains.next[i] = slot->second;
            slot->second = i;
        }
    }
}

template <typename Key, typename Hash>
std::size_t GuiHelperPool::Front(Chains<Key, Hash>& chains, const Key& key) {
    const auto found = chains.first.find(key);
    if (found == chains.first.end())
        return kNone;
    std::size_t& record = found->second;
    while (record != kNone && taken_[record])
        record = chains.next[record];
    return record;
}

const GuiHelperDesc* GuiHelperPool::Take(std::size_t record) {
    if (record == kNone)
        return nullptr;
    taken_[record] = true;
    return &helpers_[record];
}

const GuiHelperDesc* GuiHelperPool::TakeByName(const std::string& objectName) {
    Build(byName_, [](const GuiHelperDesc& h) { return std::string_view(h.objectName); });
    return Take(Front(byName_, std::string_view(objectName)));
}

const GuiHelperDesc* GuiHelperPool::TakeByOwner(const std::string& objectName,
                                                const std::string& ownerName,
                                                const std::string& detail) {
    Build(byOwner_, [](const GuiHelperDesc& h) {
        return NameTriple{h.objectName, h.ownerName, h.detail};
    });
    return Take(Front(byOwner_, NameTriple{objectName, ownerName, detail}));
}

const GuiHelperDesc* GuiHelperPool::FindByStrippedName(const std::string& strippedName) {
    Build(byStrippedName_, [](const GuiHelperDesc& h) { return StrippedView(h.objectName); });
    const std::size_t record = Front(byStrippedName_, std::string_view(strippedName));
    return record == kNone ? nullptr : &helpers_[record];
}

} // namespace lw
