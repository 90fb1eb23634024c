#pragma once

#include "app/ContextMenu.h"
#include "app/EditorOptions.h"
#include "app/GestureMachine.h"
#include "app/RecentFiles.h"
#include "app/Recovery.h"
#include "canvas/CanvasView.h"
#include "canvas/ScenePainter.h"
#include "document/TemplateDesc.h"
#include "platform/OptionsStore.h"
#include "seams/PropertyDialogs.h"
#include "seams/ViewHost.h"
#include "undo/UndoManager.h"
#include "workspace/TemplateWorkspace.h"

#include <string>
#include <vector>

namespace lw {

class DrawingSurface;

// The central object: the workspace it derives from (the data folder, the
// catalogues and the document), with the command history, the options and
// the gesture; every operation of the editor goes through it. The platform
// reaches it only through the seams it is given.
class Weaver : public TemplateWorkspace {
public:
    Weaver(UserPrompts& prompts, OptionsStore& optionsStore, FileSystem& fileSystem);
    ~Weaver() override;
    Weaver(const Weaver&) = delete;
    Weaver& operator=(const Weaver&) = delete;

    // Everything the program does at start once its window exists: the data
    // folder, the configuration, the catalogues and the options, then the
    // last used template, fitted.
    void StartUp(const std::string& dataFolderPath);
    // At the program's very first start, when no options were stored yet,
    // the editor opens the rich sample, fitted, if the data folder has it.
    static constexpr const char* kFirstStartTemplate = "scg\\sample_rich.mt";
    void OpenFirstStartTemplate();

    // Empties the document and its history; the caller repaints.
    void ClearDocument() override;
    // Replaces the document by the file's content, as ReadTemplateFile does,
    // and names the document by the file.
    bool LoadTemplateFile(const std::string& path);
    // Writes the document to `fileName`, whole or not at all. False, with the
    // document still changed, when it could not be written.
    bool SaveTemplateFile();
    // Builds the objects of a template read into an empty document; consumes `desc`.
    void BuildFromDesc(TemplateDesc& desc);
    void ExportToDesc(TemplateDesc& desc) const;

    // "Loomwright - " with the template's path ("untitled" for a new one) and
    // a "*" while it has changes.
    std::string Title() const;
    void RefreshTitle();
    void Repaint();

    // The Edit menu's history commands: the newest command of one stack goes
    // to the other. Both mark the document as changed and repaint.
    void Undo();
    void Redo();

    // Writes the options and the recent files to the options store, as the
    // main window does when it closes.
    void SaveOptions();

    // Copies and pastes go through template files (the clipboard is
    // kClipboardPath in the data folder). ExportSelection writes the selected
    // phases, cases and switches with what belongs to them; PlaceTemplate
    // imports a file centred on a window point as one undoable command.
    static constexpr const char* kClipboardPath = "scg\\clipboard.mt";
    void ExportSelection(const std::string& path);
    void PlaceTemplate(const std::string& path, int x, int y, int viewX, int viewY, float scale);
    // Paste and Import: the template at `path` waits for the click that
    // places it.
    void WaitToPlaceTemplate(const std::string& path);
    // Deletes the selection and all that goes with it as one undoable command.
    void DeleteSelection();

    // Rereads the block pool and brings the document into line with it,
    // logging every change to kReloadLogPath, which is then opened for the
    // user. Clears the history; the document stays changed.
    static constexpr const char* kReloadLogPath = "reload_blocks_log.txt";
    void ReloadBlocks();

    // Draws the whole document, with the gesture in progress, as the canvas
    // shows it at this view offset and scale.
    void PaintScene(DrawingSurface& dc, int viewX, int viewY, float scale) const;

    // The pointer on the canvas, at client points of the view. Each finished
    // gesture pushes one undo command at most.
    bool HitTest(const EditorObject* object, int x, int y, const ViewTransform& view) const;
    // A plain left press: drags what it hits, else selects it, else starts a band.
    void PointerDown(int x, int y);
    // The pointer moved with no button or the left one held.
    void PointerMove(int x, int y);
    // The left button came up; ends a band, a drag or a placing.
    void PointerUp(int x, int y);
    // A left press and release at one point with no key held.
    void Click(int x, int y);
    // Selects every object under the point; additive toggles them instead.
    void SelectAt(bool additive, int x, int y);
    void BeginDrag(int x, int y);
    void UpdateBand(int x, int y);
    void EndBand(int x, int y);
    // Picks the link or, failing that, the geometry link nearest the point,
    // within six pixels.
    void PickLinkAt(int x, int y);
    // The link within reach of the point, nearest first; null for none.
    const Link* LinkNear(int x, int y) const;
    // Shows the link under the pointer while the canvas is idle.
    void HoverAt(int x, int y);
    // Deletes the picked link, else the picked geometry link, else the selection.
    void DeleteKey();
    // Leaves a placing or a link gesture.
    void EscapeKey();
    // Edits the object hit, or makes a phase on the empty canvas.
    void DoubleClick(int x, int y);
    // A press with Shift: links each selected phase to the phase under the
    // point, gate by gate.
    void AutoLinkAt(int x, int y);
    // Moves the view by the pointer's move in window pixels.
    void Pan(int dx, int dy);
    // One step of the wheel about a point given in screen coordinates, which
    // the canvas covers at `canvasOnScreen`.
    void Zoom(int screenX, int screenY, int delta, const ScreenRect& canvasOnScreen);

    // The view commands. Fitting shows every object drawn, or the selection,
    // whole in the canvas with a margin; the zoom steps keep the canvas's
    // centre where it is.
    void FitAll();
    void FitSelection();
    void ZoomIn();
    void ZoomOut();
    // Moves the view, at its scale, so that the object is in the middle.
    void CentreOn(const EditorObject& object);
    // Selects the object alone and centres it, as Find and the problems do.
    void ShowObject(EditorObject& object);
    void ResetView();
    // The canvas has a new size in pixels; a view fitted by Open or at start,
    // which the user has not moved since, is fitted again.
    void CanvasResized(int width, int height);

    // The creation commands: each makes its object, opens its dialog on it and
    // keeps it, placing it first where that takes a click, or removes it again.
    void AddPhase();
    void FinishPlacingPhase(int x, int y, int viewX, int viewY, float scale);
    void AddCase();
    void AddSwitch();
    void AddUnlinker();
    void AddCheck(std::int32_t checkType);
    void AddRuleAction();
    // Links the first two selected phases through the link dialog, from the
    // first to the second, or from the second to the first.
    void AddLink(bool isObjectLink, bool fromSecond = false);
    void DeleteLinksOfPhase();
    // Waits for a click on the phase that the first selected phase's primary
    // or secondary geometry link is to lead to.
    void StartGeometryLink(bool primary);
    // Links every output gate of `source` to the input of that name of
    // `destination`, one undo command for each.
    void AutoLink(const Phase& source, const Phase& destination);
    // Opens the dialog of the object's kind and keeps what it accepts as one
    // undoable edit.
    void EditObjectProperties(EditorObject* object);
    // The canvas's context menu for the selection now.
    ContextMenu BuildContextMenu() const;

    // Enable rules of the commands. Commands that start something need the
    // canvas idle; undo and redo only need something to take.
    // The pointer's gesture: asked here, moved only by Weaver's gestures.
    InteractionState interactionState() const { return gesture_.State(); }
    const GestureMachine& Gesture() const { return gesture_; }
    bool IsIdle() const { return gesture_.IsIdle(); }
    bool HasIdleSelection() const { return IsIdle() && !selection.members.empty(); }
    bool CanUndo() const { return !undoManager.undoStack.empty(); }
    bool CanRedo() const { return !undoManager.redoStack.empty(); }
    bool CanSave() const { return IsIdle() && undoManager.changed; }

    void SetViewHost(ViewHost* host) { viewHost = host; }
    // Where the open document is kept against a crash; without one, nowhere.
    void SetRecovery(Recovery* recovery) { recovery_ = recovery; }
    // The question at start when a run left a recovery copy: Yes opens it
    // as the template it was a copy of, with its changes unsaved, and true
    // comes back; No removes it.
    bool OfferRecoveredDocument();
    // At a normal exit the changes are saved or given up: the copy goes.
    void DiscardRecoveryCopy();
    void SetPropertyDialogs(PropertyDialogs* shown) { dialogs_ = shown; }
    // Sets `currentCursor` and shows it.
    void SetCursor(CanvasCursor cursor);
    // The canvas whose offset, scale and font the gestures change and the
    // selection's bounds follow; until there is one, a view of Weaver's own.
    void SetView(CanvasView* canvasView);
    CanvasView& View() { return *canvasView_; }
    ViewTransform CurrentView() const { return *canvasView_; }

    OptionsStore& optionsStore;
    UndoManager undoManager;
    EditorOptions options;
    RecentFiles recentFiles;
    ViewHost* viewHost = nullptr;

private:
    // Declared before the fields that name its parts, so that it is built first.
    SceneGesture gestureView_;

public:
    CanvasCursor currentCursor = CanvasCursor::Arrow;
    // World points of the press that began the gesture and of the drag's last step.
    std::int32_t anchorX = 0;
    std::int32_t anchorY = 0;
    std::int32_t dragX = 0;
    std::int32_t dragY = 0;
    // The parts of the gesture that show on the canvas, kept in gestureView_
    // (above) so that the painter reads them where they are.
    std::int32_t& pointerX = gestureView_.pointerX;
    std::int32_t& pointerY = gestureView_.pointerY;
    ScreenRect& bandRect = gestureView_.bandRect;
    ScreenRect previousBandRect;
    bool& bandActive = gestureView_.bandActive;
    // The object being placed; pendingPhase is also the source of a link gesture.
    Phase*& pendingPhase = gestureView_.pendingPhase;
    Case* pendingCase = nullptr;
    Switch* pendingSwitch = nullptr;
    std::string pendingImportPath;
    // The picked link, and the one under the pointer; a source id of 0 means none.
    Link& selectedLink = gestureView_.selectedLink;
    Link& hoveredLink = gestureView_.hoveredLink;
    // The phase whose primary or secondary geometry link is picked; 0 for none.
    std::uint32_t& pickedGeometryPhase = gestureView_.pickedGeometryPhase;
    bool& pickedIsPrimary = gestureView_.pickedIsPrimary;

protected:
    void ForgetObject(const EditorObject* object) override;

private:
    GestureMachine gesture_;
    PropertyDialogs& Dialogs();
    void RepaintArea(const ScreenRect& area);
    void EndGesture();
    void ApplyView(const ViewTransform& view, bool followsFit);
    void ZoomStep(bool zoomIn);
    void FinishDrag(int x, int y);
    void CollectDragged();
    void CancelDrag();
    template <typename Command, typename T> void FinishPlacing(T*& pending, int x, int y);
    void FinishGeometryLink(int x, int y);
    // The first object in list order that the point hits.
    EditorObject* FirstHit(int x, int y) const;
    // The phase the commands on "the selected phase" work on: the first selected object.
    Phase* FirstSelectedPhase() const;
    // A new phase named "PHASE_<id>" with its dialog opened on it; null when
    // the dialog did not give it a name free to take and a block.
    Phase* AskForNewPhase();
    template <typename T, typename OpenDialog>
    void AskToPlace(T* item, T*& pending, InteractionState placeState, OpenDialog openDialog);
    void EditPhase(Phase& phase);
    void EditCheck(Check& check);
    void EditAction(Action& action);
    template <typename T, typename Command, typename OpenDialog>
    void EditWithDialog(T& object, OpenDialog openDialog);

    // Reads the file into the editor as ReadTemplateFile does, with a fresh
    // history and the view no longer fitted; the title and canvas follow a
    // file that did not open.
    bool ReadDocument(const std::string& path);
    // The template was opened or saved: it is the last used and the most recent.
    void NoteTemplateFile(const std::string& path);

    // What the drag under way moves, with where each object stood before it.
    struct DraggedObject {
        EditorObject* object;
        std::int32_t startX;
        std::int32_t startY;
    };
    std::vector<DraggedObject> dragged_;

    // The copy follows every change of the document: written while it has
    // unsaved changes, at once or, for a large document, when the window is
    // idle; removed when it has none.
    void KeepRecoveryCopy();
    void WriteRecoveryCopy();
    Recovery* recovery_ = nullptr;
    bool recoveryPending_ = false;
    bool recoveryFailureShown_ = false;

    CanvasView ownView_;
    bool viewFollowsFit_ = false;
    bool firstStart_ = false;
    CanvasView* canvasView_ = &ownView_;
    PropertyDialogs* dialogs_ = nullptr;
};

} // namespace lw
