#include "app/FileCommands.h"

#include "app/Weaver.h"
#include "text/Text.h"

#include <algorithm>

namespace lw {

namespace {

const char* const kSaveQuestion = "Template has been changed. Do you want to save changes?";
const char* const kCloseQuestion =
    "Template file has been changed, do you want to save your changes?";

} // namespace

FileRequest FileCommands::TemplateRequest(const std::string& fileName,
                                          const std::string& subFolder) {
    return FileRequest{fileName, kTemplateFilter, subFolder, kTemplateExtension};
}

bool FileCommands::AskToSaveChanges(const char* question) {
    if (!weaver_.undoManager.changed)
        return true;
    switch (weaver_.prompts.Ask(question, MessageIcon::Question)) {
    case Answer::Cancel:
        return false;
    case Answer::Yes:
        // A save that failed or was cancelled keeps the document changed.
        Save();
        return !weaver_.undoManager.changed;
    case Answer::No:
        return true;
    }
    return false;
}

// A new document starts in the view a canvas starts with.
void FileCommands::New() {
    if (!AskToSaveChanges(kSaveQuestion))
        return;
    weaver_.ClearDocument();
    weaver_.RefreshTitle();
    weaver_.ResetView();
}

void FileCommands::Open() {
    if (!AskToSaveChanges(kSaveQuestion))
        return;
    FileRequest request = TemplateRequest("", "scg");
    if (ChooseFileToOpen(request))
        OpenFitted(request.fileName);
}

void FileCommands::OpenFitted(const std::string& path) {
    if (weaver_.LoadTemplateFile(path))
        weaver_.FitAll();
}

// A recent file that is gone leaves the list, with a word in the status bar.
void FileCommands::OpenRecent(std::size_t index) {
    const std::vector<std::string>& paths = weaver_.recentFiles.Paths();
    if (index >= paths.size())
        return;
    const std::string path = paths[index];
    if (weaver_.files.KindOf(path) != PathKind::File) {
        weaver_.recentFiles.Remove(path);
        if (weaver_.viewHost != nullptr)
            weaver_.viewHost->ShowStatusText(path + " no longer exists.");
        return;
    }
    if (AskToSaveChanges(kSaveQuestion))
        OpenFitted(path);
}

void FileCommands::Save() {
    if (weaver_.fileName.empty())
        SaveAs();
    else
        weaver_.SaveTemplateFile();
}

void FileCommands::SaveAs() {
    FileRequest request = TemplateRequest("default.mt", "");
    if (!ChooseFileToSave(request))
        return;
    weaver_.fileName = request.fileName;
    weaver_.SaveTemplateFile();
}

// A gesture under way ends first, so that no half-made object is saved.
bool FileCommands::ConfirmClose() {
    if (!weaver_.IsIdle())
        weaver_.EscapeKey();
    return AskToSaveChanges(kCloseQuestion);
}

std::string FileCommands::StartFolder(const FileRequest& request) const {
    const std::string& folder = weaver_.files.BaseFolder();
    if (request.subFolder.empty())
        return folder;
    return weaver_.files.Resolve(request.subFolder);
}

bool FileCommands::RelativeToDataFolder(const std::string& chosenPath,
                                        std::string& relative) const {
    const std::string path = LowerCase(ToForwardSlashes(chosenPath));
    std::string folder = ToForwardSlashes(weaver_.dataFolder);
    if (folder.empty() || path.compare(0, folder.size(), folder) != 0)
        return false;
    // Behind the folder comes exactly one separator, unless the folder ends in one.
    std::size_t begin = folder.size();
    if (folder.back() != '/') {
        if (path.size() <= begin || path[begin] != '/')
            return false;
        ++begin;
    }
    relative = path.substr(begin);
    std::replace(relative.begin(), relative.end(), '/', '\\');
    return !relative.empty();
}

// Every template path is relative to the data folder, so a file outside it
// cannot be taken; the user is told so rather than left wondering.
bool FileCommands::ChooseFileToOpen(FileRequest& request) {
    std::string chosen;
    if (!dialogs_.ShowOpenDialog(StartFolder(request), request, chosen))
        return false;
    return TakeInDataFolder(chosen, request, "opened");
}

bool FileCommands::TakeInDataFolder(const std::string& chosen, FileRequest& request,
                                    const char* done) {
    if (RelativeToDataFolder(chosen, request.fileName))
        return true;
    weaver_.prompts.ShowMessage("A template can only be " + std::string(done) +
                                    " in the data folder, \"" + weaver_.files.BaseFolder() + "\".",
                                MessageIcon::Stop);
    return false;
}

bool FileCommands::ChooseFileToSave(FileRequest& request) {
    std::string chosen;
    if (!dialogs_.ShowSaveDialog(StartFolder(request), request, chosen))
        return false;
    if (weaver_.files.System().IsReadOnly(chosen)) {
        weaver_.prompts.ShowMessage("This file is Read Only!", MessageIcon::Stop);
        return false;
    }
    return TakeInDataFolder(chosen, request, "saved");
}

} // namespace lw
