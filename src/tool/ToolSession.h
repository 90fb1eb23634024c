#pragma once

#include "ModelSession.h"
#include "app/Weaver.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/NativeFileSystem.h"

#include <string>
#include <vector>

// The editor without its window: a Weaver started on a data folder, with the
// real file system and options that are never stored.
class ToolSession {
public:
    explicit ToolSession(const std::string& dataFolder);

    std::vector<std::string> TakeMessages() { return prompts.TakeMessages(); }
    std::vector<std::string> TakeMessagesAndQuestions() {
        return prompts.TakeMessagesAndQuestions();
    }

    lw::NativeFileSystem disk;
    lw::MemoryOptionsStore options;
    PrintedPrompts prompts;
    lw::Weaver weaver{prompts, options, disk};
};
