#pragma once

#include "objects/EditorObject.h"
#include "objects/ViewTransform.h"

#include <vector>

namespace lw {

// The selection: objects treated as one, with the rectangle around them. Not
// in the store and never drawn itself. Its position is the midpoint of its
// bounds and so, unlike every other object's, in window pixels.
class ObjectsGroup : public EditorObject {
public:
    ObjectsGroup() : EditorObject(0) {}

    ScreenRect GetScreenRect(int, int, float) const override { return bounds; }
    int GetRadius() const override { return 0; }
    ObjectKind GetKind() const override { return ObjectKind::ObjectsGroup; }

    // Recomputes the bounds and the position from the members as the view
    // shows them now; does nothing until the view is known.
    void Recalculate();

    bool Contains(const EditorObject* object) const;
    // Appends the object unless it is a member already.
    void Add(EditorObject* object);
    void Remove(const EditorObject* object);
    // Empties the group and recomputes it.
    void Clear();

    // In the order they were added; owned by the store.
    std::vector<EditorObject*> members;
    ScreenRect bounds;
    const ViewTransform* view = nullptr;
};

} // namespace lw
