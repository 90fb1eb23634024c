#include "canvas/DiffOverlay.h"

namespace lw {

namespace {

constexpr Rgb kAdded{0, 160, 0};
constexpr Rgb kChanged{230, 120, 0};
constexpr Rgb kMoved{0, 90, 220};
constexpr Rgb kRemoved{150, 150, 150};
// The frame stands this far outside the object, clear of its own outline.
constexpr int kFrameGap = 4;

void Outline(DrawingSurface& surface, const ScreenRect& r) {
    surface.Line({r.left, r.top}, {r.right, r.top});
    surface.Line({r.right, r.top}, {r.right, r.bottom});
    surface.Line({r.right, r.bottom}, {r.left, r.bottom});
    surface.Line({r.left, r.bottom}, {r.left, r.top});
}

ScreenRect Grown(const ScreenRect& r, int by) {
    return ScreenRect{r.left - by, r.top - by, r.right + by, r.bottom + by};
}

ScreenRect RectOf(const EditorObject& object, const ViewTransform& view) {
    return object.GetScreenRect(view.viewX, view.viewY, view.scale);
}

// A removed phase, case or switch is named; a check, an action or an
// unlinker is too small to hold its name.
void PaintRemoved(DrawingSurface& surface, const EditorObject& object, const std::string& name,
                  const ViewTransform& view) {
    const ScreenRect rect = RectOf(object, view);
    surface.SelectPen(Pen{PenStyle::Dash, 1, kRemoved});
    Outline(surface, rect);
    const Rgb before = surface.SetTextColour(kRemoved);
    surface.DrawText(name, rect, TextCentre | TextVerticalCentre | TextSingleLine);
    surface.SetTextColour(before);
}

} // namespace

void PaintDiffOverlay(DrawingSurface& surface, const DocumentDiff& diff, const ObjectStore& older,
                      const ObjectStore& newer, const ViewTransform& view) {
    for (const ObjectDiff& object : diff.objects) {
        if (object.removed) {
            if (const EditorObject* was = older.FindObject(object.oldId))
                PaintRemoved(surface, *was, object.owner.empty() ? object.name : "", view);
            continue;
        }
        const EditorObject* is = newer.FindObject(object.newId);
        if (is == nullptr)
            continue;
        const bool changed = !object.changedFields.empty() || !object.oldName.empty();
        const Rgb colour = object.added ? kAdded : changed ? kChanged : kMoved;
        surface.SelectPen(Pen{PenStyle::Solid, 3, colour});
        Outline(surface, Grown(RectOf(*is, view), kFrameGap));
    }
}

} // namespace lw
