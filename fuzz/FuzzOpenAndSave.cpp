// The whole way of a template through the editor: the fuzz input is a .mt
// file in a small data folder held in memory. An editor starts on the folder,
// opens the file with File Open, saves it elsewhere with Save As, and opens
// what it saved, with every problem reported as the editor reports them.
// Questions are answered No, so nothing stops the sequence; a file that holds
// no template record is not opened, and ends it.
#include "SmallDataFolder.h"
#include "app/EditorOptions.h"
#include "app/FileCommands.h"
#include "app/Weaver.h"
#include "platform/MemoryFileSystem.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/RecordingPrompts.h"
#include "seams/ScriptedFileDialogs.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

const std::string kFolder = lw::fuzz::kDataFolder;
const std::string kInputPath = kFolder + "/scg/Fuzzed.mt";
const std::string kSavedPath = kFolder + "/scg/saved/copy.mt";

// A step that cannot fail on a disk in memory; if it does, that is a finding.
void Require(bool condition) {
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lw::MemoryFileSystem disk;
    lw::fuzz::AddSmallDataFolder(disk);
    disk.AddFile(kInputPath, std::string(reinterpret_cast<const char*>(data), size));
    disk.AddDirectory(kFolder + "/scg/saved");

    lw::MemoryOptionsStore store;
    store.SetInt(lw::EditorOptions::kSection, "OpenLastUsedTemplateOnStart", 0);
    lw::RecordingPrompts prompts(lw::Answer::No);
    lw::ScriptedFileDialogs dialogs;
    lw::Weaver weaver(prompts, store, disk);
    lw::FileCommands commands(weaver, dialogs);
    weaver.reportProblems = true;
    weaver.StartUp(kFolder);

    dialogs.answers = {kInputPath, kSavedPath, kSavedPath};
    commands.Open();
    if (weaver.fileName.empty())
        return 0;
    Require(weaver.fileName == "scg\\fuzzed.mt");
    weaver.problems.All(weaver, weaver.fileName);
    commands.SaveAs();
    Require(weaver.fileName == "scg\\saved\\copy.mt" && !weaver.undoManager.changed);
    commands.Open();
    Require(weaver.fileName == "scg\\saved\\copy.mt");
    return 0;
}
