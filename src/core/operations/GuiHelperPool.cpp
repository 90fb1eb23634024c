#include "operations/GuiHelperPool.h"

#include "operations/EraseMarked.h"

namespace lw {

namespace {

// StripSetPrefix as a view into the name itself.
std::string_view StrippedView(const std::string& name) {
    return std::string_view(name).substr(name.size() < 8 ? 0 : 7);
}

template <typename Index, typename KeyOf>
void IndexRecords(const std::vector<GuiHelperDesc>& helpers, Index& index, KeyOf keyOf) {
    for (std::size_t i = 0; i < helpers.size(); ++i)
        index[keyOf(helpers[i])].records.push_back(i);
}

template <typename Index, typename Key> auto* QueueOf(Index& index, const Key& key) {
    const auto found = index.find(key);
    return found == index.end() ? nullptr : &found->second;
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

const GuiHelperDesc* GuiHelperPool::Front(Queue& queue) {
    while (queue.next < queue.records.size() && taken_[queue.records[queue.next]])
        ++queue.next;
    return queue.next < queue.records.size() ? &helpers_[queue.records[queue.next]] : nullptr;
}

const GuiHelperDesc* GuiHelperPool::Take(Queue* queue) {
    if (queue == nullptr)
        return nullptr;
    const GuiHelperDesc* front = Front(*queue);
    if (front != nullptr)
        taken_[queue->records[queue->next++]] = true;
    return front;
}

const GuiHelperDesc* GuiHelperPool::TakeByName(const std::string& objectName) {
    EnsureTaken();
    if (!indexedByName_) {
        IndexRecords(helpers_, byName_,
                     [](const GuiHelperDesc& h) { return std::string_view(h.objectName); });
        indexedByName_ = true;
    }
    return Take(QueueOf(byName_, std::string_view(objectName)));
}

const GuiHelperDesc* GuiHelperPool::TakeByOwner(const std::string& objectName,
                                                const std::string& ownerName,
                                                const std::string& detail) {
    EnsureTaken();
    if (!indexedByOwner_) {
        IndexRecords(helpers_, byOwner_, [](const GuiHelperDesc& h) {
            return NameTriple{h.objectName, h.ownerName, h.detail};
        });
        indexedByOwner_ = true;
    }
    return Take(QueueOf(byOwner_, NameTriple{objectName, ownerName, detail}));
}

const GuiHelperDesc* GuiHelperPool::FindByStrippedName(const std::string& strippedName) {
    EnsureTaken();
    if (!indexedByStrippedName_) {
        IndexRecords(helpers_, byStrippedName_,
                     [](const GuiHelperDesc& h) { return StrippedView(h.objectName); });
        indexedByStrippedName_ = true;
    }
    Queue* queue = QueueOf(byStrippedName_, std::string_view(strippedName));
    return queue == nullptr ? nullptr : Front(*queue);
}

} // namespace lw
