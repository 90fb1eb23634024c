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
    // The document goes first: a file that does not open leaves it empty.
    ClearDocument();
    auto stream = files.OpenForReading(path);
    if (stream) {
        TemplateDesc desc;
        ReadTemplateDesc(desc, *stream);
        BuildFromDesc(desc);
        options.SetLastUsedTemplateName(path);
        fileName = path;
    } else {
        prompts.ShowMessage("Can't open template file!", MessageIcon::Stop);
    }
    RefreshTitle();
    Repaint();
    return stream != nullptr;
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
    undoManager.changed = false;
    options.SetLastUsedTemplateName(fileName);
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
