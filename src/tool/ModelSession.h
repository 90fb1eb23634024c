#pragma once

#include "platform/NativeFileSystem.h"
#include "platform/RecordingPrompts.h"
#include "workspace/TemplateWorkspace.h"

#include <ostream>
#include <string>
#include <vector>

// Message boxes kept for printing.
class PrintedPrompts : public lw::RecordingPrompts {
public:
    // The texts of the messages shown since the last call.
    std::vector<std::string> TakeMessages();
    // The same with the questions asked among them, each as "? " and its text.
    std::vector<std::string> TakeMessagesAndQuestions();

private:
    std::vector<std::string> Take(bool withQuestions);

    std::size_t taken_ = 0;
};

// A data folder and a template read from it, without the editor: all that
// checking, comparing and rewriting a template need.
class ModelSession {
public:
    explicit ModelSession(const std::string& dataFolder);

    // Reads a template named on the command line, as the editor opens it.
    bool Load(const std::string& path);
    std::vector<std::string> TakeMessages() { return prompts.TakeMessages(); }

    lw::NativeFileSystem disk;
    PrintedPrompts prompts;
    lw::TemplateWorkspace workspace{prompts, disk};
};

// Prints each line with the prefix before it.
void PrintLines(std::ostream& out, const std::vector<std::string>& lines,
                const std::string& prefix = std::string());

// A path given on the command line, relative to the working folder, made
// absolute so that it does not resolve against the data folder.
std::string CommandLinePath(const std::string& path);
