#pragma once

#include "seams/FileDialogs.h"

#include <deque>
#include <string>
#include <vector>

namespace lw {

// File dialogs that answer from a script: each answer a full path, or a
// cancel when it is empty or there is none left. Each request is kept.
class ScriptedFileDialogs : public FileDialogs {
public:
    bool ShowOpenDialog(const std::string& startFolder, const FileRequest& request,
                        std::string& chosenPath) override {
        return Answer(startFolder, request, chosenPath);
    }
    bool ShowSaveDialog(const std::string& startFolder, const FileRequest& request,
                        std::string& chosenPath) override {
        return Answer(startFolder, request, chosenPath);
    }

    std::deque<std::string> answers;
    std::vector<std::string> startFolders;
    std::vector<FileRequest> requests;

private:
    bool Answer(const std::string& startFolder, const FileRequest& request, std::string& chosen) {
        startFolders.push_back(startFolder);
        requests.push_back(request);
        if (answers.empty())
            return false;
        chosen = answers.front();
        answers.pop_front();
        return !chosen.empty();
    }
};

} // namespace lw
