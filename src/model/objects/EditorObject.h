#pragma once

#include "objects/ScreenRect.h"
#include "objects/ViewTransform.h"

#include <cstdint>

namespace lw {

// The kinds of objects; the numbers are fixed, a switch comes before a case.
enum class ObjectKind : std::int32_t {
    Phase = 0,
    Switch = 1,
    Case = 2,
    Check = 3,
    Action = 4,
    Unlinker = 5,
    ObjectsGroup = 6
};

// Everything that stands on the canvas. The position of a phase is its
// top-left corner, of every other object its centre. Objects refer to each
// other by id only; the store in Weaver owns them all.
class EditorObject {
public:
    explicit EditorObject(std::int32_t id) : id(id) {}
    EditorObject& operator=(const EditorObject&) = delete;
    virtual ~EditorObject() = default;

    virtual ScreenRect GetScreenRect(int viewX, int viewY, float scale) const;
    virtual int GetRadius() const { return 1; }
    virtual ObjectKind GetKind() const = 0;
    virtual int GetColorIndex() const { return 0; }

    // The position on the screen: the top-left corner of a phase, the centre
    // of every other object.
    ScreenPoint ScreenAnchor(const ViewTransform& view) const {
        return ScreenPoint{view.ScreenX(posX), view.ScreenY(posY)};
    }

    // Written by whoever places the object, before it is drawn.
    std::int32_t posX = 0;
    std::int32_t posY = 0;
    const std::int32_t id;

protected:
    // Copies are made of whole objects only, for the undo history.
    EditorObject(const EditorObject&) = default;

    // The rectangle of half-extents hx, hy about the position: each edge is
    // the integer sum, then made a float, then scaled and truncated.
    ScreenRect CentredScreenRect(int viewX, int viewY, float scale, int hx, int hy) const;
};

// The object as a `T`, or null when it is none or of another class. Every
// class of object is final and names its kind, so the test is one virtual
// call instead of a dynamic_cast: a large template makes hundreds of
// thousands of them on every save and paint.
template <typename T> T* As(EditorObject* object) {
    return object != nullptr && object->GetKind() == T::kKind ? static_cast<T*>(object) : nullptr;
}
template <typename T> const T* As(const EditorObject* object) {
    return object != nullptr && object->GetKind() == T::kKind ? static_cast<const T*>(object)
                                                              : nullptr;
}

} // namespace lw
