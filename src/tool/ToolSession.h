#pragma once

#include "app/Weaver.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/NativeFileSystem.h"
#include "platform/RecordingPrompts.h"

#include <ostream>
#include <string>
#include <vector>

// The editor without its window: a Weaver started on a data folder, with the
// real file system, options that are never stored, and message boxes that
// are kept for printing.
class ToolSession {
public:
    explicit ToolSession(const std::string& dataFolder);

    // The texts of the messages shown since the last call.
    std::vector<std::string> TakeMessages();
    // The same with the questions asked among them, each as "? " and its text.
    std::vector<std::string> TakeMessagesAndQuestions();

    lw::NativeFileSystem disk;
    lw::MemoryOptionsStore options;
    lw::RecordingPrompts prompts;
    lw::Weaver weaver{prompts, options, disk};

private:
    std::vector<std::string> Take(bool withQuestions);

    std::size_t messagesTaken_ = 0;
};

// Prints each line with the prefix before it.
void PrintLines(std::ostream& out, const std::vector<std::string>& lines,
                const std::string& prefix = std::string());

// A path given on the command line, relative to the working folder, made
// absolute so that it does not resolve against the data folder.
std::string CommandLinePath(const std::string& path);
