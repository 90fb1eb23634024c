#include "app/Weaver.h"

#include "app/AppInfo.h"

namespace lw {

namespace {

// Until a window gives Weaver its dialogs, every dialog is cancelled.
class NoPropertyDialogs : public PropertyDialogs {
public:
    bool EditPhase(Phase&) override { return false; }
    bool EditCase(Case&, const std::vector<std::int32_t>&) override { return false; }
    bool EditSwitch(Switch&, const std::vector<std::int32_t>&) override { return false; }
    bool EditUnlinker(Unlinker&, std::int32_t) override { return false; }
    bool EditCheck(Check&) override { return false; }
    bool EditAction(Action&, ActionDialog) override { return false; }
    bool AddLink(const Phase&, const Phase&, Link&) override { return false; }
    bool DeleteLinks(const Phase&, std::vector<Link>&) override { return false; }
    bool InputString(const std::string&, std::string&) override { return false; }
};

} // namespace

Weaver::Weaver(UserPrompts& prompts, OptionsStore& optionsStore, FileSystem& fileSystem)
    : TemplateWorkspace(prompts, fileSystem), optionsStore(optionsStore), undoManager(this) {
    selection.view = canvasView_;
}

Weaver::~Weaver() {
    ClearDocument();
}

// A document never saved has no file name to show, and says so.
std::string Weaver::Title() const {
    const std::string name = fileName.empty() ? kUntitledName : fileName;
    return std::string(kApplicationName) + " - " + name + (undoManager.changed ? "*" : "");
}

void Weaver::ForgetObject(const EditorObject* object) {
    TemplateWorkspace::ForgetObject(object);
    // An undo may take away the object a gesture is placing or linking from.
    if (object == pendingPhase)
        pendingPhase = nullptr;
    if (object == pendingCase)
        pendingCase = nullptr;
    if (object == pendingSwitch)
        pendingSwitch = nullptr;
}

// Every change of the document refreshes the title, so its problems are
// checked again from here when next asked for.
void Weaver::RefreshTitle() {
    problems.DocumentChanged();
    KeepRecoveryCopy();
    if (viewHost != nullptr)
        viewHost->SetTitle(Title());
}

void Weaver::SetCursor(CanvasCursor cursor) {
    currentCursor = cursor;
    if (viewHost != nullptr)
        viewHost->ShowCursor(cursor);
}

void Weaver::Repaint() {
    if (viewHost != nullptr)
        viewHost->Repaint();
}

void Weaver::RepaintArea(const ScreenRect& area) {
    if (viewHost != nullptr)
        viewHost->RepaintArea(area);
}

void Weaver::SetView(CanvasView* canvasView) {
    canvasView_ = canvasView != nullptr ? canvasView : &ownView_;
    selection.view = canvasView_;
}

PropertyDialogs& Weaver::Dialogs() {
    static NoPropertyDialogs none;
    return dialogs_ != nullptr ? *dialogs_ : none;
}

} // namespace lw
