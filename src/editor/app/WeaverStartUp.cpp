#include "app/Weaver.h"

namespace lw {

void Weaver::StartUp(const std::string& dataFolderPath) {
    OpenDataFolder(dataFolderPath);
    undoManager.ClearHistory();
    firstStart_ = !options.Load(optionsStore);
    recentFiles.Load(optionsStore);
    // Unsaved changes of a run that ended badly come before the last template.
    if (OfferRecoveredDocument())
        return;
    if (options.OpenLastUsedTemplateOnStart && !options.LastUsedTemplateName.empty() &&
        LoadTemplateFile(options.LastUsedTemplateName))
        FitAll();
}

// A newcomer sees a template at once rather than an empty canvas.
void Weaver::OpenFirstStartTemplate() {
    if (firstStart_ && fileName.empty() && !undoManager.changed &&
        files.KindOf(kFirstStartTemplate) == PathKind::File &&
        LoadTemplateFile(kFirstStartTemplate))
        FitAll();
}

void Weaver::SaveOptions() {
    options.Save(optionsStore);
    recentFiles.Save(optionsStore);
}

} // namespace lw
