#include "app/Weaver.h"
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "objects/ScreenRect.h"
#include "operations/SelectionExporter.h"
#include "undo/UR_ImportTemplateDesc.h"

namespace lw {

void Weaver::ExportSelection(const std::string& path) {
    if (selection.members.empty()) {
        prompts.ShowMessage("Empty Selection!", MessageIcon::Stop);
        return;
    }
    TemplateDesc desc;
    SelectionExporter(*this, desc).ExportMembers();
    // Nothing usable still replaces the file, with nothing: a copy of only
    // checks leaves an empty clipboard rather than the previous one.
    const bool usable = !desc.phases.empty() || !desc.cases.empty() || !desc.switches.empty();
    if (!files.ReplaceFile(path, usable ? TemplateDescText(desc) : std::string())) {
        prompts.ShowMessage("Can't open file!", MessageIcon::Stop);
        return;
    }
    if (!usable)
        prompts.ShowMessage("Nothing to export. Select at least one phase, case or switch.",
                            MessageIcon::Stop);
}

void Weaver::WaitToPlaceTemplate(const std::string& path) {
    pendingImportPath = path;
    gesture_.StartPlacing(InteractionState::StatePlaceTemplate);
    SetCursor(CanvasCursor::Place);
}

void Weaver::PlaceTemplate(const std::string& path, int x, int y, int viewX, int viewY,
                           float scale) {
    gesture_.Finish();
    SetCursor(CanvasCursor::Arrow);
    const ViewTransform view{viewX, viewY, scale};
    const std::int32_t targetX = view.WorldX(x);
    const std::int32_t targetY = view.WorldY(y);
    if (auto stream = files.OpenForReading(path)) {
        TemplateDesc desc;
        ReadTemplateDesc(desc, *stream);
        auto command = std::make_unique<UR_ImportTemplateDesc>(this, blockPool, prompts,
                                                               std::move(desc), targetX, targetY);
        command->Run(true);
        undoManager.Push(std::move(command));
    } else {
        prompts.ShowMessage("Can't open template file!", MessageIcon::Stop);
    }
    RefreshTitle();
    Repaint();
}

} // namespace lw
