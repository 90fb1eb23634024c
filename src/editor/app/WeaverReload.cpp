#include "app/Weaver.h"
#include "operations/BlockReloader.h"
#include "text/TextLines.h"

namespace lw {

void Weaver::ReloadBlocks() {
    // No command could take the reload back, so the history goes, and the
    // repaired document is left for the user to look over and save.
    undoManager.ClearHistory();
    undoManager.MarkChangedForGood();

    // The log must be writable before anything is touched: a reload whose
    // changes cannot be told is not made.
    if (!files.ReplaceFile(kReloadLogPath, "")) {
        prompts.ShowMessage("Can't open log file! Aborting!", MessageIcon::Stop);
        return;
    }

    std::vector<std::string> log;
    BlockReloader(*this, blockPool, log).Run(blockFolders);
    RefreshTitle();
    Repaint();

    std::string text;
    for (const std::string& line : log)
        text += line + kLineEnd;
    // As with the viewer below, a failure here is not examined: the file
    // was writable a moment ago.
    files.ReplaceFile(kReloadLogPath, text);
    // Without a viewer the user must at least learn where the log is.
    const std::string logPath = files.Resolve(kReloadLogPath);
    if (viewHost != nullptr && !viewHost->OpenTextFile(logPath))
        prompts.ShowMessage("No program could show the reload log. It is in \"" + logPath + "\".",
                            MessageIcon::Information);
}

} // namespace lw
