#include "app/Weaver.h"
#include "operations/TemplateBuilder.h"
#include "operations/TemplateExporter.h"

namespace lw {

void Weaver::ClearDocument() {
    undoManager.ClearHistory();
    TemplateWorkspace::ClearDocument();
}

bool Weaver::LoadTemplateFile(const std::string& path) {
    if (!ReadDocument(path))
        return false;
    NoteTemplateFile(path);
    fileName = path;
    RefreshTitle();
    Repaint();
    return true;
}

bool Weaver::ReadDocument(const std::string& path) {
    if (!ReadTemplateFile(path)) {
        RefreshTitle();
        Repaint();
        return false;
    }
    // The view is the caller's to fit; until then it is no fitted view.
    viewFollowsFit_ = false;
    return true;
}

void Weaver::NoteTemplateFile(const std::string& path) {
    options.SetLastUsedTemplateName(path);
    recentFiles.Add(path);
}

bool Weaver::SaveTemplateFile() {
    // A failed save leaves the document changed.
    if (!WriteTemplateFile())
        return false;
    undoManager.MarkSaved();
    NoteTemplateFile(fileName);
    RefreshTitle();
    return true;
}

void Weaver::BuildFromDesc(TemplateDesc& desc) {
    undoManager.ClearHistory();
    TemplateBuilder(*this, blockPool, prompts).Build(desc);
}

void Weaver::ExportToDesc(TemplateDesc& desc) const {
    lw::ExportToDesc(*this, desc);
}

} // namespace lw
