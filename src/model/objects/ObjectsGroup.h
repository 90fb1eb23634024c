#pragma once

#include "objects/EditorObject.h"
#include "objects/ViewTransform.h"

#include <cstdint>
#include <unordered_set>
#include <vector>

namespace lw {

// The selection: objects treated as one, with the rectangle around them. Not
// in the store and never drawn itself. Its position is the midpoint of its
// bounds and so, unlike every other object's, in window pixels.
class ObjectsGroup final : public EditorObject {
public:
    static constexpr ObjectKind kKind = ObjectKind::ObjectsGroup;

    ObjectsGroup() : EditorObject(0) {}

    ScreenRect GetScreenRect(int, int, float) const override { return bounds; }
    int GetRadius() const override { return 0; }
    ObjectKind GetKind() const override { return kKind; }

    // Recomputes the bounds and the position from the members as the view
    // shows them now; does nothing until the view is known.
    void Recalculate();

    bool Contains(const EditorObject* object) const;
    // Appends the object unless it is a member already.
    void Add(EditorObject* object);
    void Remove(const EditorObject* object);
    // Removes every member that is in `objects`, in one pass over the members,
    // and recomputes the group if it lost any.
    void RemoveAll(const std::unordered_set<const EditorObject*>& objects);
    // Empties the group and recomputes it.
    void Clear();

    // In the order they were added; owned by the store. Change them only
    // through Add, Remove, RemoveAll and Clear, which keep the lookup beside.
    std::vector<EditorObject*> members;
    ScreenRect bounds;
    const ViewTransform* view = nullptr;

private:
    // The members again by their ids, so that asking about one costs no walk
    // of a large selection. A slot holds a member of that id whenever there
    // is one; only when objects share an id, which those of one store never
    // do, are the others looked for in `members`, as are objects with ids
    // beyond a sane range, or none.
    static constexpr std::int32_t kMaxSlot = 1 << 24;
    static bool HasSlot(const EditorObject* object) {
        return object != nullptr && object->id >= 0 && object->id < kMaxSlot;
    }
    const EditorObject*& SlotOf(const EditorObject* object);
    // Gives each empty slot a member of its id again, after removals.
    void RefillSlots();
    std::vector<const EditorObject*> byId_;
};

} // namespace lw
