#pragma once

#include "app/CommandId.h"
#include "app/EditMenuCommands.h"
#include "app/FileCommands.h"
#include "app/Finder.h"

#include <functional>
#include <map>

namespace lw {

class Weaver;

// Where every command enters, whether from a menu, a button, a key or a
// script: each runs only while its enable rule allows it.
class EditorCommands {
public:
    EditorCommands(Weaver& weaver, FileDialogs& fileDialogs);
    EditorCommands(const EditorCommands&) = delete;
    EditorCommands& operator=(const EditorCommands&) = delete;

    bool IsEnabled(CommandId command) const;
    // Whether the toggle is on; false for every command that is none.
    bool IsChecked(CommandId command) const;
    // The commands that the window carries out itself: leaving, the About
    // box and its bars.
    static bool IsWindowCommand(CommandId command);
    // Runs the command when it is enabled and no window command; false when
    // it did not run.
    bool Run(CommandId command);

    FileCommands& File() { return file_; }
    EditMenuCommands& Edit() { return edit_; }
    Finder& Find() { return finder_; }

private:
    bool* Toggle(CommandId command) const;
    // The commands that only look: they may run in the middle of a gesture.
    static bool IsViewCommand(CommandId command);

    Weaver& weaver_;
    FileCommands file_;
    EditMenuCommands edit_;
    Finder finder_;
    // What each command does, for all but the toggles and the window's own.
    std::map<CommandId, std::function<void()>> handlers_;
};

} // namespace lw
