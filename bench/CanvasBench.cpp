// Painting the whole scene with every layer on, as the editor repaints its
// canvas: onto the recording surface the scene tests use (the cost of the
// scene code alone) and into a QImage with Qt's painter (what a repaint
// costs). The canvas is a window of 1280 by 800 at the origin and scale 1;
// the scene paints every object wherever it lies, and the painter clips.
// PaintFittedImage paints the view that Fit All gives, where the whole
// template is inside the window at once: nothing is clipped away.
#include "CanvasImage.h"
#include "canvas/CanvasPaint.h"
#include "canvas/RecordingSurface.h"
#include "support/BenchEditor.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>

namespace lw::bench {
namespace {

constexpr int kWidth = 1280;
constexpr int kHeight = 800;

void BM_PaintRecording(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        RecordingSurface surface;
        PaintCanvas(surface, editor.weaver, kWidth, kHeight, editor.view, editor.view.font);
        benchmark::DoNotOptimize(surface.calls.data());
    }
}

void BM_PaintImage(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        QImage image =
            PaintCanvasImage(editor.weaver, editor.view, editor.view.font, QSize(kWidth, kHeight));
        benchmark::DoNotOptimize(image.constBits());
    }
}

void BM_PaintFittedImage(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    editor.view.pixelWidth = kWidth;
    editor.view.pixelHeight = kHeight;
    editor.weaver.FitAll();
    for (auto _ : state) {
        QImage image =
            PaintCanvasImage(editor.weaver, editor.view, editor.view.font, QSize(kWidth, kHeight));
        benchmark::DoNotOptimize(image.constBits());
    }
}

BENCHMARK(BM_PaintRecording)->Apply(AtEverySize);
BENCHMARK(BM_PaintImage)->Apply(AtEverySize);
BENCHMARK(BM_PaintFittedImage)->Apply(AtEverySize);

} // namespace
} // namespace lw::bench

// Qt's painter needs an application for its fonts; the offscreen platform
// needs no display.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
