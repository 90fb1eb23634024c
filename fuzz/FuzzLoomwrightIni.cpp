// Starts an editor on the small data folder with the fuzz input as its
// Loomwright.ini, so that the folders and catalogues the lines name are
// followed as well: into the block scan, the catalogue readers and the path
// mapping of the file access.
#include "SmallDataFolder.h"
#include "app/EditorOptions.h"
#include "app/Weaver.h"
#include "platform/MemoryFileSystem.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/RecordingPrompts.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lw::MemoryFileSystem disk;
    lw::fuzz::AddSmallDataFolder(disk);
    disk.AddFile(lw::fuzz::kIniPath, std::string(reinterpret_cast<const char*>(data), size));

    lw::MemoryOptionsStore store;
    store.SetInt(lw::EditorOptions::kSection, "OpenLastUsedTemplateOnStart", 0);
    lw::RecordingPrompts prompts;
    lw::Weaver weaver(prompts, store, disk);
    weaver.StartUp(lw::fuzz::kDataFolder);
    return 0;
}
