#include "objects/ObjectsGroup.h"

#include <algorithm>

namespace lw {

void ObjectsGroup::Recalculate() {
    if (view == nullptr)
        return;
    bounds = ScreenRect{};
    for (std::size_t i = 0; i < members.size(); ++i) {
        const ScreenRect rect = members[i]->GetScreenRect(view->viewX, view->viewY, view->scale);
        bounds = i == 0 ? rect : UnionRect(bounds, rect);
    }
    posX = static_cast<std::int32_t>((std::int64_t{bounds.left} + bounds.right) / 2);
    posY = static_cast<std::int32_t>((std::int64_t{bounds.top} + bounds.bottom) / 2);
}

bool ObjectsGroup::Contains(const EditorObject* object) const {
    if (HasSlot(object)) {
        const auto slot = static_cast<std::size_t>(object->id);
        const EditorObject* holder = slot < byId_.size() ? byId_[slot] : nullptr;
        if (holder == object)
            return true;
        if (holder == nullptr)
            return false;
    }
    return std::find(members.begin(), members.end(), object) != members.end();
}

const EditorObject*& ObjectsGroup::SlotOf(const EditorObject* object) {
    const auto slot = static_cast<std::size_t>(object->id);
    if (slot >= byId_.size())
        byId_.resize(slot + 1, nullptr);
    return byId_[slot];
}

void ObjectsGroup::Add(EditorObject* object) {
    if (Contains(object))
        return;
    members.push_back(object);
    if (HasSlot(object) && SlotOf(object) == nullptr)
        SlotOf(object) = object;
}

void ObjectsGroup::Remove(const EditorObject* object) {
    const auto found = std::find(members.begin(), members.end(), object);
    if (found == members.end())
        return;
    members.erase(found);
    if (HasSlot(object) && SlotOf(object) == object) {
        SlotOf(object) = nullptr;
        RefillSlots();
    }
}

void ObjectsGroup::RemoveAll(const std::unordered_set<const EditorObject*>& objects) {
    const std::size_t before = members.size();
    members.erase(std::remove_if(members.begin(), members.end(),
                                 [&](const EditorObject* member) {
                                     if (objects.count(member) == 0)
                                         return false;
                                     if (HasSlot(member) && SlotOf(member) == member)
                                         SlotOf(member) = nullptr;
                                     return true;
                                 }),
                  members.end());
    if (members.size() == before)
        return;
    RefillSlots();
    Recalculate();
}

void ObjectsGroup::RefillSlots() {
    for (const EditorObject* member : members) {
        if (HasSlot(member) && SlotOf(member) == nullptr)
            SlotOf(member) = member;
    }
}

void ObjectsGroup::Clear() {
    for (const EditorObject* member : members) {
        if (HasSlot(member))
            SlotOf(member) = nullptr;
    }
    members.clear();
    Recalculate();
}

} // namespace lw
