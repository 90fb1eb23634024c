// The editor's gestures and commands on a large open template: what one
// click, one band, one step of a drag, a delete of everything with its undo
// and redo, a paste of a 1,000-phase clipboard, a reload of the blocks and
// the recovery copy cost. The view is zoomed out so that the whole template lies in the window.
#include "support/BenchEditor.h"
#include "synth/SyntheticTemplate.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <fstream>

namespace lw::bench {
namespace {

// At this scale a 16,000-phase grid of 128 columns is 3,000 by 700 pixels.
constexpr float kOverviewScale = 0.03f;

void ZoomOut(BenchEditor& editor) {
    editor.view.scale = kOverviewScale;
    editor.view.viewX = 0;
    editor.view.viewY = 0;
}

// The last phase of the grid, which every search in list order reaches last.
ScreenPoint LastPhaseCentre(const BenchEditor& editor) {
    const Phase* last = nullptr;
    editor.weaver.ForEach<Phase>([&](const Phase& phase) { last = &phase; });
    const ScreenRect rect =
        last->GetScreenRect(editor.view.viewX, editor.view.viewY, editor.view.scale);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

template <typename Work> double Seconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void BM_HitTest(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    const ScreenPoint point = LastPhaseCentre(editor);
    for (auto _ : state)
        editor.weaver.SelectAt(false, point.x, point.y);
}

void BM_BandSelect(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    ZoomOut(editor);
    for (auto _ : state) {
        editor.weaver.PointerDown(-5, -5);
        editor.weaver.PointerMove(4000, 4000);
        editor.weaver.PointerUp(4000, 4000);
    }
    state.counters["selected"] = static_cast<double>(editor.weaver.selection.members.size());
}

void BM_DragStep(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    const ScreenPoint point = LastPhaseCentre(editor);
    editor.SelectAllPlaced();
    editor.weaver.PointerDown(point.x, point.y);
    int step = 0;
    for (auto _ : state) {
        ++step;
        editor.weaver.PointerMove(point.x + step % 50, point.y + step % 50);
    }
    editor.weaver.PointerUp(point.x, point.y);
}

// One iteration deletes every phase, case and switch with all that belongs to
// them, or undoes that, or redoes it; only that step is timed.
enum class DeleteStep { Delete, Undo, Redo };

void DeleteEverything(benchmark::State& state, DeleteStep timed) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    Weaver& weaver = editor.weaver;
    for (auto _ : state) {
        editor.SelectAllPlaced();
        double seconds = Seconds([&] { weaver.DeleteSelection(); });
        if (timed != DeleteStep::Delete)
            seconds = Seconds([&] { weaver.Undo(); });
        if (timed == DeleteStep::Redo) {
            seconds = Seconds([&] { weaver.Redo(); });
            weaver.Undo();
        }
        if (timed == DeleteStep::Delete)
            weaver.Undo();
        state.SetIterationTime(seconds);
    }
}

void BM_DeleteSelection(benchmark::State& state) {
    DeleteEverything(state, DeleteStep::Delete);
}
void BM_UndoDelete(benchmark::State& state) {
    DeleteEverything(state, DeleteStep::Undo);
}
void BM_RedoDelete(benchmark::State& state) {
    DeleteEverything(state, DeleteStep::Redo);
}

// A clipboard of 1,000 phases of other names, placed into the open template
// as Paste places it; its undo is not timed.
void BM_Paste1000(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    const std::string clipboard =
        SyntheticDataFolder(static_cast<int>(state.range(0))) + "/scg/clipboard.mt";
    std::ofstream(clipboard, std::ios::binary) << synth::GenerateSyntheticTemplate({1000, "Q"});
    for (auto _ : state) {
        const double seconds = Seconds(
            [&] { editor.weaver.PlaceTemplate(Weaver::kClipboardPath, 500, 400, 0, 0, 1.0f); });
        editor.weaver.Undo();
        state.SetIterationTime(seconds);
    }
}

void BM_ReloadBlocks(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    for (auto _ : state)
        editor.weaver.ReloadBlocks();
}

void TimedSizes(benchmark::internal::Benchmark* benchmark) {
    AtEverySize(benchmark);
    benchmark->UseManualTime();
}

// The document's own checks, which the Problems panel runs again after every
// change.
void BM_CheckDocument(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        editor.weaver.problems.DocumentChanged();
        benchmark::DoNotOptimize(editor.weaver.problems.All(editor.weaver, "synthetic.mt").size());
    }
}

// The recovery copy written after a change, as every change of a document
// with unsaved changes writes it: the export, the text and the atomic
// replace of the copy and its note.
void BM_WriteRecoveryCopy(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    const std::string folder = SyntheticDataFolder(static_cast<int>(state.range(0))) + "/recovery";
    Recovery recovery(editor.disk, folder);
    editor.weaver.SetRecovery(&recovery);
    for (auto _ : state)
        editor.weaver.undoManager.MarkChangedForGood();
    editor.weaver.SetRecovery(nullptr);
}

BENCHMARK(BM_HitTest)->Apply(AtEverySize);
BENCHMARK(BM_WriteRecoveryCopy)->Apply(AtEverySize);
BENCHMARK(BM_CheckDocument)->Apply(AtEverySize);
BENCHMARK(BM_BandSelect)->Apply(AtEverySize);
BENCHMARK(BM_DragStep)->Apply(AtEverySize);
BENCHMARK(BM_DeleteSelection)->Apply(TimedSizes);
BENCHMARK(BM_UndoDelete)->Apply(TimedSizes);
BENCHMARK(BM_RedoDelete)->Apply(TimedSizes);
BENCHMARK(BM_Paste1000)->Apply(TimedSizes);
BENCHMARK(BM_ReloadBlocks)->Apply(AtEverySize);

} // namespace
} // namespace lw::bench
