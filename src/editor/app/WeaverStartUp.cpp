#include "app/Weaver.h"
#include "document/WordLines.h"
#include "text/Text.h"

namespace lw {

void Weaver::StartUp(const std::string& dataFolderPath) {
    dataFolder = LowerCase(dataFolderPath);
    // A missing data folder is no error: relative paths then resolve against
    // the working directory, and the program starts with what it finds there.
    const bool folderExists = files.System().KindOf(dataFolderPath) == PathKind::Directory;
    files.SetBaseFolder(folderExists ? dataFolderPath : std::string());

    ReadConfiguration();
    ReadCatalogue(modelsPath, modelList);
    ReadCatalogue(actionsPath, ruleCatalogue);
    blockPool.Load(blockFolders);
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

template <typename Catalogue>
void Weaver::ReadCatalogue(const std::string& path, Catalogue& catalogue) {
    // A catalogue that is missing leaves its list empty, without a word.
    if (auto stream = files.OpenForReading(path))
        catalogue.Read(*stream);
}

void Weaver::ReadConfiguration() {
    auto stream = files.OpenForReading("scg\\Loomwright.ini");
    if (!stream)
        return;
    std::string line;
    std::vector<std::string> words;
    while (ReadWordLine(*stream, line, words)) {
        if (words.size() < 2)
            continue;
        // The prefix applies as the lines come, so "tvd" acts on the lines below it.
        const std::string& key = words[0];
        const std::string& value = words[1];
        if (key == "tvd")
            tvdFolder = value;
        else if (key == "models")
            modelsPath = tvdFolder + value;
        else if (key == "actions")
            actionsPath = tvdFolder + value;
        else if (key == "blocks")
            blockFolders.push_back(tvdFolder + value);
    }
}

} // namespace lw
