#pragma once

#include <string>

namespace lw {

// What a file command asks of a file dialog. The filter is written as
// "Description (*.ext)|*.ext||"; the extension as "*.ext".
struct FileRequest {
    std::string fileName;
    std::string filter;
    std::string subFolder;
    std::string extension;
};

// The platform's modal file dialogs. Each shows `startFolder` with the
// request's name, filter and default extension, and answers the full native
// path of the chosen file, or false when the user cancels. The open dialog
// insists on an existing file; the save dialog on an existing folder, and
// asks before it lets an existing file be chosen.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    virtual bool ShowOpenDialog(const std::string& startFolder, const FileRequest& request,
                                std::string& chosenPath) = 0;
    virtual bool ShowSaveDialog(const std::string& startFolder, const FileRequest& request,
                                std::string& chosenPath) = 0;
};

} // namespace lw
