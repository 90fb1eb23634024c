#pragma once

#include "seams/FileDialogs.h"

#include <cstddef>
#include <string>

namespace lw {

class Weaver;

// The File commands of the main window and the question at its close. Every
// template path they hand on is relative to the data folder, in lower case
// with "\" separators: a file outside the data folder cannot be chosen.
class FileCommands {
public:
    static constexpr const char* kTemplateFilter = "Mission Template Files (*.mt)|*.mt||";
    static constexpr const char* kTemplateExtension = "*.mt";

    // A request for a template file, offered in the data folder or a folder below it.
    static FileRequest TemplateRequest(const std::string& fileName, const std::string& subFolder);

    FileCommands(Weaver& weaver, FileDialogs& dialogs) : weaver_(weaver), dialogs_(dialogs) {}

    void New();
    void Open();
    // Opens the template at this place of the recent files.
    void OpenRecent(std::size_t index);
    void Save();
    void SaveAs();

    // Asked before the main window closes: true when it may close.
    bool ConfirmClose();

    // The dialogs of the commands: true when `request.fileName` holds the
    // chosen path relative to the data folder.
    bool ChooseFileToOpen(FileRequest& request);
    bool ChooseFileToSave(FileRequest& request);

private:
    // Offers to save unsaved changes first: false when the command must stop.
    bool AskToSaveChanges(const char* question);
    // Opens the template and fits the view to it.
    void OpenFitted(const std::string& path);
    // The chosen path relative to the data folder; a path outside it is
    // refused with a message that says where templates are `done`.
    bool TakeInDataFolder(const std::string& chosen, FileRequest& request, const char* done);
    std::string StartFolder(const FileRequest& request) const;
    // The chosen path relative to the data folder, or false for one outside it.
    bool RelativeToDataFolder(const std::string& chosenPath, std::string& relative) const;

    Weaver& weaver_;
    FileDialogs& dialogs_;
};

} // namespace lw
