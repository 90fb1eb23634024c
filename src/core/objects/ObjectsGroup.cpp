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
    return memberSet_.count(object) != 0;
}

void ObjectsGroup::Add(EditorObject* object) {
    if (memberSet_.insert(object).second)
        members.push_back(object);
}

void ObjectsGroup::Remove(const EditorObject* object) {
    if (memberSet_.erase(object) != 0)
        members.erase(std::find(members.begin(), members.end(), object));
}

void ObjectsGroup::RemoveAll(const std::unordered_set<const EditorObject*>& objects) {
    const std::size_t before = members.size();
    members.erase(std::remove_if(members.begin(), members.end(),
                                 [&](const EditorObject* member) {
                                     return objects.count(member) != 0 && memberSet_.erase(member);
                                 }),
                  members.end());
    if (members.size() != before)
        Recalculate();
}

void ObjectsGroup::Clear() {
    members.clear();
    memberSet_.clear();
    Recalculate();
}

} // namespace lw
