#include "app/EditMenuCommands.h"

#include "app/FileCommands.h"
#include "app/Weaver.h"

namespace lw {

void EditMenuCommands::Undo() {
    weaver_.Undo();
}

void EditMenuCommands::Redo() {
    weaver_.Redo();
}

void EditMenuCommands::Cut() {
    if (!weaver_.HasIdleSelection())
        return;
    // The selection goes whatever the export came to; undo brings it back.
    weaver_.ExportSelection(Weaver::kClipboardPath);
    weaver_.DeleteSelection();
}

void EditMenuCommands::Copy() {
    if (weaver_.HasIdleSelection())
        weaver_.ExportSelection(Weaver::kClipboardPath);
}

// With no clipboard file yet, nothing was ever copied: that is what the user
// is told, rather than that some file would not open.
bool EditMenuCommands::ClipboardExists() {
    if (weaver_.files.KindOf(Weaver::kClipboardPath) == PathKind::File)
        return true;
    weaver_.prompts.ShowMessage("The clipboard is empty.", MessageIcon::Information);
    return false;
}

void EditMenuCommands::Paste() {
    if (!weaver_.IsIdle() || !ClipboardExists())
        return;
    weaver_.selection.Clear();
    WaitToPlace(Weaver::kClipboardPath);
}

void EditMenuCommands::PasteAtPointer() {
    if (!weaver_.IsIdle() || !ClipboardExists())
        return;
    weaver_.selection.Clear();
    const ViewTransform view = weaver_.CurrentView();
    weaver_.PlaceTemplate(Weaver::kClipboardPath, weaver_.pointerX, weaver_.pointerY, view.viewX,
                          view.viewY, view.scale);
}

void EditMenuCommands::SaveSelection() {
    if (!weaver_.HasIdleSelection())
        return;
    FileRequest request = FileCommands::TemplateRequest("selection.mt", "");
    if (fileCommands_.ChooseFileToSave(request))
        weaver_.ExportSelection(request.fileName);
}

void EditMenuCommands::ImportFromFile() {
    if (!weaver_.IsIdle())
        return;
    FileRequest request = FileCommands::TemplateRequest("", "");
    if (fileCommands_.ChooseFileToOpen(request))
        WaitToPlace(request.fileName);
}

void EditMenuCommands::WaitToPlace(const std::string& path) {
    weaver_.WaitToPlaceTemplate(path);
}

void EditMenuCommands::ReloadBlocks() {
    if (!weaver_.IsIdle())
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
