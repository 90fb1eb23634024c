#include "app/Weaver.h"
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "operations/TemplateBuilder.h"
#include "operations/TemplateExporter.h"

namespace lw {

void Weaver::ClearDocument() {
    fileName.clear();
    undoManager.ClearHistory();
    ClearObjects();
}

bool Weaver::LoadTemplateFile(const std::string& path) {
    auto stream = files.OpenForReading(path);
    if (!stream) {
        // A file that does not open leaves the document empty.
        ClearDocument();
        prompts.ShowMessage("Can't open template file!", MessageIcon::Stop);
        RefreshTitle();
        Repaint();
        return false;
    }
    TemplateDesc desc;
    const std::size_t linesWithWords = ReadTemplateDesc(desc, *stream);
    // A file of another kind would open as an empty template, which a save
    // would then write over it: the open document stays instead. A file of
    // empty and comment lines alone is an empty template.
    if (desc.IsEmpty() && linesWithWords > 0) {
        prompts.ShowMessage(kNoTemplateMessage, MessageIcon::Stop);
        return false;
    }
    ClearDocument();
    BuildFromDesc(desc);
    // The view is the caller's to fit; until then it is no fitted view.
    viewFollowsFit_ = false;
    NoteTemplateFile(path);
    fileName = path;
    RefreshTitle();
    Repaint();
    return true;
}

void Weaver::NoteTemplateFile(const std::string& path) {
    options.SetLastUsedTemplateName(path);
    recentFiles.Add(path);
}

bool Weaver::SaveTemplateFile() {
    TemplateDesc desc;
    ExportToDesc(desc);
    // The file is replaced only once all of it is written, so a failed save
    // keeps the old file and leaves the document changed.
    if (!files.ReplaceFile(fileName, TemplateDescText(desc))) {
        prompts.ShowMessage("Can't save template file!", MessageIcon::Stop);
        return false;
    }
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
