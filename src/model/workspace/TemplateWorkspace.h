#pragma once

#include "catalog/BlocksContainer.h"
#include "catalog/ModelList.h"
#include "catalog/RuleCatalogue.h"
#include "diagnostics/Problems.h"
#include "document/TemplateDesc.h"
#include "document/TemplateReadReport.h"
#include "operations/ObjectStore.h"
#include "platform/FileAccess.h"
#include "platform/FileSystem.h"
#include "platform/UserPrompts.h"

#include <string>
#include <vector>

namespace lw {

// A data folder with its configuration and catalogues, and the template read
// from it and written back: all that checking, comparing and rewriting a
// template need, without the editor. The store it derives from is the
// document.
class TemplateWorkspace : public ObjectStore {
public:
    TemplateWorkspace(UserPrompts& prompts, FileSystem& fileSystem);
    TemplateWorkspace(const TemplateWorkspace&) = delete;
    TemplateWorkspace& operator=(const TemplateWorkspace&) = delete;

    // Makes the folder the base of relative paths, then reads the
    // configuration, the model and rule catalogues and the block pool.
    void OpenDataFolder(const std::string& dataFolderPath);
    // Reads "scg\Loomwright.ini" from the data folder.
    void ReadConfiguration();

    // Empties the document and forgets its file.
    virtual void ClearDocument();
    // Replaces the document by the file's content, and gives it no name; a
    // file that does not open leaves an empty document. A file that holds
    // lines but no template record leaves the document as it was. False in
    // both cases, each told in a message.
    static constexpr const char* kNoTemplateMessage = "This file holds no template.";
    bool ReadTemplateFile(const std::string& path);
    // Writes the document to `fileName`; false, after a message, when the
    // file could not be written, which then keeps its old content.
    bool WriteTemplateFile();

    UserPrompts& prompts;
    FileAccess files;
    BlocksContainer blockPool;
    ModelList modelList;
    RuleCatalogue ruleCatalogue;
    // Whether reading a template reports the lines it drops and the records
    // it cannot use, beside the message boxes. The editor and `check` ask
    // for it; it makes opening a large template about two thirds slower.
    bool reportProblems = false;
    Problems problems;
    // Path of the open template relative to the data folder; empty for a new one.
    std::string fileName;

    // The data folder in lower case, as paths in the program are compared;
    // files.BaseFolder() holds it as the file system spells it.
    std::string dataFolder;
    std::string tvdFolder = "scg\\0\\";
    std::string modelsPath = "models.cfg";
    std::string actionsPath = "actions.cfg";
    std::vector<std::string> blockFolders;

private:
    template <typename Catalogue> void ReadCatalogue(const std::string& path, Catalogue& catalogue);
    void NoteFileProblems(const TemplateDesc& desc, TemplateReadReport& report, Diagnostics built);
};

} // namespace lw
