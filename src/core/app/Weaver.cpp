#include "app/Weaver.h"

#include "app/AppInfo.h"

namespace lw {

Weaver::Weaver(UserPrompts& prompts, OptionsStore& optionsStore, FileSystem& fileSystem)
    : prompts(prompts), optionsStore(optionsStore), files(fileSystem), blockPool(files, prompts),
      undoManager(this) {}

Weaver::~Weaver() {
    ClearDocument();
}

std::string Weaver::Title() const {
    return std::string(kApplicationName) + " - " + fileName + (undoManager.changed ? "*" : "");
}

void Weaver::ForgetObject(const EditorObject* object) {
    ObjectStore::ForgetObject(object);
    // An undo may take away the object a gesture is placing or linking from.
    if (object == pendingPhase)
        pendingPhase = nullptr;
    if (object == pendingCase)
        pendingCase = nullptr;
    if (object == pendingSwitch)
        pendingSwitch = nullptr;
}

void Weaver::RefreshTitle() {
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

} // namespace lw
