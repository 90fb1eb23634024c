#pragma once

#include "seams/FileDialogs.h"

namespace lw {

class FileCommands;
class Weaver;

// The Edit commands of the main window: the history, the clipboard, saved
// selections, imports and the reload of blocks. Commands that start
// something run only while the canvas is idle, whatever calls them.
class EditMenuCommands {
public:
    static constexpr const char* kReloadQuestion =
        "It is potentially dangerous operation, current template will be saved,\n"
        "all Undo/Redo information will be lost.\n"
        "Do you want to proceed?";

    EditMenuCommands(Weaver& weaver, FileCommands& fileCommands)
        : weaver_(weaver), fileCommands_(fileCommands) {}

    void Undo();
    void Redo();
    void Cut();
    void Copy();
    // Waits for a click that places the clipboard's template.
    void Paste();
    // Places the clipboard's template at once, centred on the pointer.
    void PasteAtPointer();
    void SaveSelection();
    // Waits for a click that places the chosen template; the selection stays.
    void ImportFromFile();
    // Asks first, saves unsaved changes, then reloads.
    void ReloadBlocks();

private:
    void WaitToPlace(const std::string& path);
    // False, with a message, when nothing was ever copied.
    bool ClipboardExists();

    Weaver& weaver_;
    FileCommands& fileCommands_;
};

} // namespace lw
