#pragma once

#include "app/Weaver.h"
#include "canvas/CanvasView.h"
#include "objects/ViewTransform.h"
#include "platform/MemoryFileSystem.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/RecordingPrompts.h"
#include "support/RecordingViewHost.h"

#include <string>

namespace lw::test {

// An editor started on a copy of the sample data folder held in memory, with
// recording seams and a canvas view at the origin and scale 1. Tests may
// change the files freely before or after start.
class SampleEditor {
public:
    static constexpr const char* kData = "/Sim/Data";

    SampleEditor();

    // Puts a generated template of that many phases into the data folder as
    // "scg\\synthetic.mt", with the configuration and blocks it loads with,
    // which replace the sample's configuration.
    void AddGeneratedData(int phases);
    // Starts on the data folder with an empty document.
    void StartUp();
    // Opens a template of the data folder, such as "scg\\sample_rich.mt".
    void Open(const std::string& path);
    // The template text that Save would write now.
    std::string SavedText() const;
    // The bytes of a file of the data folder, named as the program names it
    // ("scg\\clipboard.mt"); "<missing>" when there is none.
    std::string DataFileText(const std::string& path) const;
    // Adds the phase, case or switch of that name to the selection.
    void Select(const std::string& name);

    MemoryFileSystem disk;
    MemoryOptionsStore store;
    RecordingPrompts prompts;
    RecordingViewHost host;
    CanvasView view;
    Weaver weaver{prompts, store, disk};
};

} // namespace lw::test
