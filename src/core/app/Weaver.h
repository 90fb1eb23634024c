#pragma once

#include "app/EditorOptions.h"
#include "catalog/BlocksContainer.h"
#include "catalog/ModelList.h"
#include "catalog/RuleCatalogue.h"
#include "platform/FileAccess.h"
#include "platform/OptionsStore.h"
#include "platform/UserPrompts.h"
#include "platform/ViewHost.h"
#include "undo/UndoManager.h"

#include <string>
#include <vector>

namespace lw {

// The central object: it owns the catalogues, the command history, the
// options and the document, and every operation on them goes through it. The
// platform reaches it only through the seams it is given.
class Weaver {
public:
    Weaver(UserPrompts& prompts, OptionsStore& optionsStore, FileSystem& fileSystem);
    Weaver(const Weaver&) = delete;
    Weaver& operator=(const Weaver&) = delete;

    // Everything the program does at start once its window exists: the data
    // folder, the configuration, the catalogues and the options.
    void StartUp(const std::string& dataFolderPath);

    // Reads "scg\Loomwright.ini" from the data folder.
    void ReadConfiguration();

    // "Loomwright - " with the template's path and a "*" while it has changes.
    std::string Title() const;
    void RefreshTitle();

    void SetViewHost(ViewHost* host) { viewHost = host; }

    // The seams, in the order they must be built.
    UserPrompts& prompts;
    OptionsStore& optionsStore;
    FileAccess files;

    BlocksContainer blockPool;
    ModelList modelList;
    RuleCatalogue ruleCatalogue;
    UndoManager undoManager;
    EditorOptions options;
    // Path of the open template relative to the data folder; empty for a new one.
    std::string fileName;
    ViewHost* viewHost = nullptr;

    // The data folder in lower case, as paths in the program are compared;
    // files.BaseFolder() holds it as the file system spells it.
    std::string dataFolder;
    std::string tvdFolder = "scg\\0\\";
    std::string modelsPath = "models.cfg";
    std::string actionsPath = "actions.cfg";
    std::vector<std::string> blockFolders;

private:
    template <typename Catalogue> void ReadCatalogue(const std::string& path, Catalogue& catalogue);
};

} // namespace lw
