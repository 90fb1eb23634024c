#include "app/Weaver.h"
#include "canvas/ViewFitting.h"
#include "undo/UR_AddCommands.h"
#include "undo/UR_EditPhaseCmd.h"
#include "undo/UR_MoveObjectsCmd.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <unordered_set>

namespace lw {

namespace {

bool Contains(const ScreenRect& r, std::int32_t x, std::int32_t y) {
    return x >= r.left && x < r.right && y >= r.top && y < r.bottom;
}

ScreenRect SpannedRect(const ScreenPoint& a, std::int32_t x, std::int32_t y) {
    return ScreenRect{std::min(a.x, x), std::min(a.y, y), std::max(a.x, x), std::max(a.y, y)};
}

// The products wrap as 32-bit integers do, rather than overflow.
std::int32_t WrappingSquare(std::int32_t value) {
    const auto v = static_cast<std::uint32_t>(value);
    return static_cast<std::int32_t>(v * v);
}

} // namespace

bool Weaver::HitTest(const EditorObject* object, int x, int y, const ViewTransform& view) const {
    if (object == nullptr || !options.IsKindShown(object->GetKind()))
        return false;
    const ObjectKind kind = object->GetKind();
    if (kind == ObjectKind::Case || kind == ObjectKind::Switch) {
        const ScreenPoint centre = object->ScreenAnchor(view);
        const std::int32_t r = TruncateToInt(static_cast<float>(object->GetRadius()) * view.scale);
        const auto sum = static_cast<std::uint32_t>(WrappingSquare(x - centre.x)) +
                         static_cast<std::uint32_t>(WrappingSquare(y - centre.y));
        return static_cast<std::int32_t>(sum) < WrappingSquare(r);
    }
    return Contains(object->GetScreenRect(view.viewX, view.viewY, view.scale), x, y);
}

EditorObject* Weaver::FirstHit(int x, int y) const {
    const ViewTransform view = CurrentView();
    for (const auto& object : objects) {
        if (HitTest(object.get(), x, y, view))
            return object.get();
    }
    return nullptr;
}

void Weaver::PointerDown(int x, int y) {
    if (!IsIdle())
        return;
    selectedLink = Link{};
    pickedGeometryPhase = 0;
    pickedIsPrimary = true;
    const ViewTransform view = CurrentView();
    for (const EditorObject* member : selection.members) {
        if (HitTest(member, x, y, view)) {
            BeginDrag(x, y);
            return;
        }
    }
    SelectAt(false, x, y);
    if (!selection.members.empty()) {
        BeginDrag(x, y);
        return;
    }
    gesture_.StartBand();
    SetCursor(CanvasCursor::Arrow);
    anchorX = view.WorldX(x);
    anchorY = view.WorldY(y);
    bandRect = ScreenRect{x, y, x, y};
    previousBandRect = bandRect;
    bandActive = true;
    if (viewHost != nullptr)
        viewHost->CapturePointer(true);
}

void Weaver::SelectAt(bool additive, int x, int y) {
    if (!additive && !selection.members.empty()) {
        selection.Clear();
        Repaint();
    }
    const ViewTransform view = CurrentView();
    for (const auto& item : objects) {
        EditorObject* object = item.get();
        if (!HitTest(object, x, y, view))
            continue;
        if (additive && selection.Contains(object))
            selection.Remove(object);
        else
            selection.Add(object);
        RepaintArea(object->GetScreenRect(view.viewX, view.viewY, view.scale));
    }
    selection.Recalculate();
}

void Weaver::BeginDrag(int x, int y) {
    const ViewTransform view = CurrentView();
    gesture_.StartDrag();
    SetCursor(CanvasCursor::Move);
    selection.Recalculate();
    anchorX = view.WorldX(x);
    anchorY = view.WorldY(y);
    dragX = anchorX;
    dragY = anchorY;
    CollectDragged();
    if (viewHost != nullptr)
        viewHost->CapturePointer(true);
}

// What a drag moves: the selection, and every check, action and unlinker of a
// selected phase with it, each once, so that nothing is left behind. Where
// each stood is kept, for Escape to put it back.
void Weaver::CollectDragged() {
    dragged_.clear();
    std::unordered_set<std::int32_t> phaseIds;
    std::unordered_set<const EditorObject*> taken;
    for (EditorObject* member : selection.members) {
        if (member->GetKind() == ObjectKind::Phase)
            phaseIds.insert(member->id);
        if (taken.insert(member).second)
            dragged_.push_back({member, member->posX, member->posY});
    }
    for (const auto& item : objects) {
        EditorObject* object = item.get();
        const std::int32_t owner = OwnerPhaseId(*object);
        if (owner != 0 && phaseIds.count(owner) != 0 && taken.insert(object).second)
            dragged_.push_back({object, object->posX, object->posY});
    }
}

void Weaver::PointerMove(int x, int y) {
    pointerX = x;
    pointerY = y;
    switch (gesture_.State()) {
    case InteractionState::StateRubberBand:
        UpdateBand(x, y);
        break;
    case InteractionState::StateDrag: {
        // Objects follow the pointer at once, with no threshold and no grid.
        const ViewTransform view = CurrentView();
        const std::int32_t worldX = view.WorldX(x);
        const std::int32_t worldY = view.WorldY(y);
        for (const DraggedObject& moved : dragged_) {
            EditorObject& object = *moved.object;
            object.posX = TruncateToInt(static_cast<double>(object.posX) + worldX - dragX);
            object.posY = TruncateToInt(static_cast<double>(object.posY) + worldY - dragY);
        }
        selection.Recalculate();
        dragX = worldX;
        dragY = worldY;
        Repaint();
        break;
    }
    case InteractionState::StatePrimaryLink:
    case InteractionState::StateSecondaryLink:
        Repaint();
        break;
    case InteractionState::StateIdle:
        HoverAt(x, y);
        break;
    default:
        break;
    }
}

void Weaver::UpdateBand(int x, int y) {
    previousBandRect = bandRect;
    bandRect = SpannedRect(ScreenPoint{View().ScreenX(anchorX), View().ScreenY(anchorY)}, x, y);
    RepaintArea(bandRect);
    RepaintArea(previousBandRect);
}

void Weaver::PointerUp(int x, int y) {
    switch (gesture_.State()) {
    case InteractionState::StateRubberBand:
        EndBand(x, y);
        break;
    case InteractionState::StateDrag:
        FinishDrag(x, y);
        break;
    case InteractionState::StatePlacePhase: {
        const ViewTransform view = CurrentView();
        FinishPlacingPhase(x, y, view.viewX, view.viewY, view.scale);
        break;
    }
    case InteractionState::StatePlaceCase:
        FinishPlacing<UR_AddNewCaseCmd>(pendingCase, x, y);
        break;
    case InteractionState::StatePlaceSwitch:
        FinishPlacing<UR_AddNewSwitchCmd>(pendingSwitch, x, y);
        break;
    default:
        break;
    }
}

void Weaver::EndGesture() {
    gesture_.Finish();
    SetCursor(CanvasCursor::Arrow);
}

// The objects moved with every step already; the command only records the
// whole move, and a press and release in one place records none.
void Weaver::FinishDrag(int x, int y) {
    if (viewHost != nullptr)
        viewHost->CapturePointer(false);
    EndGesture();
    selection.Recalculate();
    const ViewTransform view = CurrentView();
    const std::int32_t deltaX = TruncateToInt(static_cast<double>(view.WorldX(x)) - anchorX);
    const std::int32_t deltaY = TruncateToInt(static_cast<double>(view.WorldY(y)) - anchorY);
    std::vector<EditorObject*> moved;
    for (const DraggedObject& dragged : dragged_)
        moved.push_back(dragged.object);
    dragged_.clear();
    if (deltaX == 0 && deltaY == 0)
        return;
    undoManager.Push(std::make_unique<UR_MoveObjectsCmd>(this, deltaX, deltaY, moved));
}

// Everything goes back where it stood, and the drag leaves no command.
void Weaver::CancelDrag() {
    for (const DraggedObject& dragged : dragged_) {
        dragged.object->posX = dragged.startX;
        dragged.object->posY = dragged.startY;
    }
    dragged_.clear();
    if (viewHost != nullptr)
        viewHost->CapturePointer(false);
    EndGesture();
    selection.Recalculate();
}

template <typename Command, typename T> void Weaver::FinishPlacing(T*& pending, int x, int y) {
    if (pending != nullptr) {
        pending->posX = View().WorldX(x);
        pending->posY = View().WorldY(y);
        undoManager.Push(std::make_unique<Command>(this, *pending));
    }
    Repaint();
    pending = nullptr;
    EndGesture();
}

// The band takes what it holds by the anchor point, so a phase whose top-left
// corner lies outside is not taken, however much of it the band covers.
void Weaver::EndBand(int x, int y) {
    if (viewHost != nullptr)
        viewHost->CapturePointer(false);
    EndGesture();
    bandActive = false;
    const bool wasEmpty = selection.members.empty();
    selection.Clear();
    const ViewTransform view = CurrentView();
    const ScreenRect band =
        SpannedRect(ScreenPoint{view.ScreenX(anchorX), view.ScreenY(anchorY)}, x, y);
    for (const auto& item : objects) {
        if (!options.IsKindShown(item->GetKind()))
            continue;
        const ScreenPoint anchor = item->ScreenAnchor(view);
        if (Contains(band, anchor.x, anchor.y))
            selection.Add(item.get());
    }
    selection.Recalculate();
    if (selection.members.empty() && wasEmpty) {
        RepaintArea(bandRect);
        RepaintArea(previousBandRect);
    } else {
        Repaint();
    }
}

void Weaver::Click(int x, int y) {
    switch (gesture_.State()) {
    case InteractionState::StatePlaceTemplate: {
        const ViewTransform view = CurrentView();
        PlaceTemplate(pendingImportPath, x, y, view.viewX, view.viewY, view.scale);
        break;
    }
    case InteractionState::StatePrimaryLink:
    case InteractionState::StateSecondaryLink:
        FinishGeometryLink(x, y);
        break;
    case InteractionState::StateIdle:
        PickLinkAt(x, y);
        Repaint();
        break;
    default:
        break;
    }
}

// A click that misses stays in the gesture, and so does one on the phase that
// the other geometry link of the source already leads to.
void Weaver::FinishGeometryLink(int x, int y) {
    if (pendingPhase == nullptr)
        return;
    const bool primary = gesture_.State() == InteractionState::StatePrimaryLink;
    const ViewTransform view = CurrentView();
    for (const auto& item : objects) {
        const Phase* target = As<Phase>(item.get());
        if (target == nullptr || target == pendingPhase || !HitTest(target, x, y, view))
            continue;
        const std::int32_t otherTarget =
            primary ? pendingPhase->secondaryLinkId : pendingPhase->primaryLinkId;
        if (otherTarget == target->id)
            continue;
        auto command = std::make_unique<UR_EditPhaseCmd>(this, *pendingPhase);
        (primary ? pendingPhase->primaryLinkId : pendingPhase->secondaryLinkId) = target->id;
        command->Complete(*pendingPhase);
        undoManager.Push(std::move(command));
        Repaint();
        pendingPhase = nullptr;
        EndGesture();
        return;
    }
}

void Weaver::EscapeKey() {
    switch (gesture_.State()) {
    case InteractionState::StatePlacePhase:
        if (pendingPhase != nullptr)
            RemoveObject(pendingPhase);
        break;
    case InteractionState::StatePlaceCase:
        if (pendingCase != nullptr)
            RemoveObject(pendingCase);
        break;
    case InteractionState::StatePlaceSwitch:
        if (pendingSwitch != nullptr)
            RemoveObject(pendingSwitch);
        break;
    case InteractionState::StatePrimaryLink:
    case InteractionState::StateSecondaryLink:
        // The source phase stays; only the gesture ends.
        pendingPhase = nullptr;
        break;
    case InteractionState::StateDrag:
        CancelDrag();
        break;
    default:
        break;
    }
    // A band goes on until its release.
    if (gesture_.WaitsForAClick())
        EndGesture();
    Repaint();
}

void Weaver::DoubleClick(int x, int y) {
    if (!IsIdle())
        return;
    if (EditorObject* hit = FirstHit(x, y)) {
        EditObjectProperties(hit);
        return;
    }
    if (pendingPhase != nullptr)
        return;
    // On the empty canvas a phase is made where the user clicked, with no
    // placing step after its dialog.
    if (AskForNewPhase() != nullptr) {
        const ViewTransform view = CurrentView();
        FinishPlacingPhase(x, y, view.viewX, view.viewY, view.scale);
    }
    Repaint();
}

void Weaver::AutoLinkAt(int x, int y) {
    // AutoLink leaves the selection as it is, so it can be walked directly.
    const ViewTransform view = CurrentView();
    for (const EditorObject* member : selection.members) {
        const Phase* source = As<Phase>(member);
        if (source == nullptr)
            continue;
        for (const auto& item : objects) {
            const Phase* hit = As<Phase>(item.get());
            if (hit != nullptr && hit != source && HitTest(hit, x, y, view)) {
                AutoLink(*source, *hit);
                break;
            }
        }
    }
}

void Weaver::Pan(int dx, int dy) {
    CanvasView& view = View();
    view.viewX = TruncateToInt(static_cast<double>(view.viewX) +
                               TruncateToInt(static_cast<float>(dx) / view.scale));
    view.viewY = TruncateToInt(static_cast<double>(view.viewY) +
                               TruncateToInt(static_cast<float>(dy) / view.scale));
    viewFollowsFit_ = false;
    Repaint();
}

// The fixed point of the zoom is the pointer's point in screen coordinates,
// taken as if it were a window point, so it is off by the canvas's place on
// the screen. A band in progress jumps to that point too.
void Weaver::Zoom(int screenX, int screenY, int delta, const ScreenRect& canvasOnScreen) {
    // A wheel turned sideways, or a touchpad's horizontal stroke, is no step.
    if (delta == 0)
        return;
    if (screenX < canvasOnScreen.left || screenX > canvasOnScreen.right ||
        screenY < canvasOnScreen.top || screenY > canvasOnScreen.bottom)
        return;
    CanvasView& view = View();
    const double worldX =
        static_cast<double>(TruncateToInt(static_cast<float>(screenX) / view.scale)) - view.viewX;
    const double worldY =
        static_cast<double>(TruncateToInt(static_cast<float>(screenY) / view.scale)) - view.viewY;
    if (delta > 0)
        view.scale = static_cast<float>(view.scale * 1.1);
    else
        view.scale = static_cast<float>(view.scale / 1.1);
    view.scale = std::clamp(view.scale, kMinScale, kMaxScale);
    view.viewX = TruncateToInt(TruncateToInt(static_cast<float>(screenX) / view.scale) - worldX);
    view.viewY = TruncateToInt(TruncateToInt(static_cast<float>(screenY) / view.scale) - worldY);
    view.font = CanvasFontAt(view.scale, true);
    viewFollowsFit_ = false;
    if (gesture_.State() == InteractionState::StateRubberBand)
        UpdateBand(screenX, screenY);
    Repaint();
}

} // namespace lw
