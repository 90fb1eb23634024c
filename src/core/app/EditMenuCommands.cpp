#include "app/EditMenuCommands.h"

#include "app/FileCommands.h"
#include "app/Weaver.h"

namespace lw {

bool EditMenuCommands::IsIdle() const {
    return weaver_.interactionState == StateIdle;
}

bool EditMenuCommands::CanExportSelection() const {
    return IsIdle() && !weaver_.selection.members.empty();
}

void EditMenuCommands::Undo() {
    weaver_.Undo();
}

void EditMenuCommands::Redo() {
    weaver_.Redo();
}

void EditMenuCommands::Cut() {
    if (!CanExportSelection())
        return;
    // The selection goes whatever the export came to; undo brings it back.
    weaver_.ExportSelection(Weaver::kClipboardPath);
    weaver_.DeleteSelection();
}

void EditMenuCommands::Copy() {
    if (CanExportSelection())
        weaver_.ExportSelection(Weaver::kClipboardPath);
}

void EditMenuCommands::Paste() {
    if (!IsIdle())
        return;
    weaver_.selection.Clear();
    WaitToPlace(Weaver::kClipboardPath);
}

void EditMenuCommands::PasteAtPointer() {
    if (!IsIdle())
        return;
    weaver_.selection.Clear();
    const ViewTransform view = weaver_.CurrentView();
    weaver_.PlaceTemplate(Weaver::kClipboardPath, weaver_.pointerX, weaver_.pointerY, view.viewX,
                          view.viewY, view.scale);
}

void EditMenuCommands::SaveSelection() {
    if (!CanExportSelection())
        return;
    FileRequest request = FileCommands::TemplateRequest("selection.mt", "");
    if (fileCommands_.ChooseFileToSave(request))
        weaver_.ExportSelection(request.fileName);
}

void EditMenuCommands::ImportFromFile() {
    if (!IsIdle())
        return;
    FileRequest request = FileCommands::TemplateRequest("", "");
    if (fileCommands_.ChooseFileToOpen(request))
        WaitToPlace(request.fileName);
}

void EditMenuCommands::WaitToPlace(const std::string& path) {
    weaver_.pendingImportPath = path;
    weaver_.interactionState = StatePlaceTemplate;
    weaver_.SetCursor(CanvasCursor::Place);
}

void EditMenuCommands::ReloadBlocks() {
    if (!IsIdle())
        return;
    if (weaver_.prompts.Ask(kReloadQuestion, MessageIcon::Warning) != Answer::Yes)
        return;
    if (weaver_.undoManager.changed) {
        fileCommands_.Save();
        if (weaver_.undoManager.changed)
            return;
    }
    weaver_.ReloadBlocks();
}

} // namespace lw
