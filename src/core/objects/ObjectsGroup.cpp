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
    return std::find(members.begin(), members.end(), object) != members.end();
}

void ObjectsGroup::Add(EditorObject* object) {
    if (!Contains(object))
        members.push_back(object);
}

void ObjectsGroup::Remove(const EditorObject* object) {
    const auto found = std::find(members.begin(), members.end(), object);
    if (found != members.end())
        members.erase(found);
}

void ObjectsGroup::Clear() {
    members.clear();
    Recalculate();
}

} // namespace lw
