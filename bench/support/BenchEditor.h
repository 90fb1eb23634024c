#pragma once

#include "app/Weaver.h"
#include "canvas/CanvasView.h"
#include "platform/MemoryOptionsStore.h"
#include "platform/NativeFileSystem.h"
#include "platform/RecordingPrompts.h"

#include <benchmark/benchmark.h>
#include <string>

namespace lw::bench {

// The data folder of a synthetic template of `phases` phases, generated once
// per run into a temporary folder and reused by every benchmark of that size.
const std::string& SyntheticDataFolder(int phases);
// The generated template's native path in that folder.
std::string SyntheticTemplatePath(int phases);

// The editor without its window on the real file system, as the tool runs
// it, started on the synthetic data folder of that size with its template
// open, every layer shown, and a view at the origin at scale 1.
class BenchEditor {
public:
    explicit BenchEditor(int phases);

    // Selects every phase, case and switch, as a band around them all does.
    void SelectAllPlaced();

    NativeFileSystem disk;
    MemoryOptionsStore store;
    RecordingPrompts prompts;
    CanvasView view;
    Weaver weaver{prompts, store, disk};
};

// Runs a benchmark at every size, 1,000, 4,000 and 16,000 phases, and
// reports it in milliseconds.
void AtEverySize(benchmark::internal::Benchmark* benchmark);

} // namespace lw::bench
