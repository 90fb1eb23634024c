// Reading, building, exporting and writing a template, each on its own and as
// the editor's Open and Save run them, with the floors they are measured
// against: the bytes of the file read and split into lines, or written.
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "support/BenchEditor.h"
#include "synth/SyntheticTemplate.h"
#include "text/TextLines.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace lw::bench {
namespace {

std::string FileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

void SetBytes(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}

void BM_ReadFloor(benchmark::State& state) {
    const std::string path = SyntheticTemplatePath(static_cast<int>(state.range(0)));
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::istringstream in(FileBytes(path));
        std::vector<std::string> lines;
        std::string line;
        while (ReadTextLine(in, line))
            lines.push_back(line);
        bytes = in.str().size();
        benchmark::DoNotOptimize(lines.data());
    }
    SetBytes(state, bytes);
}

void BM_Read(benchmark::State& state) {
    const std::string path = SyntheticTemplatePath(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::ifstream in(path, std::ios::binary);
        TemplateDesc desc;
        ReadTemplateDesc(desc, in);
        benchmark::DoNotOptimize(desc.phases.data());
    }
}

void BM_Build(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    std::ifstream in(SyntheticTemplatePath(static_cast<int>(state.range(0))), std::ios::binary);
    TemplateDesc read;
    ReadTemplateDesc(read, in);
    for (auto _ : state) {
        state.PauseTiming();
        editor.weaver.ClearDocument();
        TemplateDesc desc = read;
        state.ResumeTiming();
        editor.weaver.BuildFromDesc(desc);
    }
}

void BM_Export(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        TemplateDesc desc;
        editor.weaver.ExportToDesc(desc);
        benchmark::DoNotOptimize(desc.phases.data());
    }
}

void BM_Write(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    TemplateDesc desc;
    editor.weaver.ExportToDesc(desc);
    for (auto _ : state) {
        std::ostringstream out;
        WriteTemplateDesc(desc, out);
        benchmark::DoNotOptimize(out.str().data());
    }
}

// Writes the bytes as a save does, into a new file beside the target that is
// synced and renamed over it, but without making them first.
void BM_WriteFloor(benchmark::State& state) {
    const int phases = static_cast<int>(state.range(0));
    const std::string bytes = FileBytes(SyntheticTemplatePath(phases));
    const std::string target = SyntheticDataFolder(phases) + "/scg/floor.mt";
    NativeFileSystem disk;
    for (auto _ : state)
        disk.ReplaceFile(target, bytes);
    SetBytes(state, bytes.size());
}

// The same bytes written plainly, with no sync and no rename.
void BM_WriteFloorUnsynced(benchmark::State& state) {
    const int phases = static_cast<int>(state.range(0));
    const std::string bytes = FileBytes(SyntheticTemplatePath(phases));
    const std::string target = SyntheticDataFolder(phases) + "/scg/floor.mt";
    for (auto _ : state) {
        std::ofstream out(target, std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    SetBytes(state, bytes.size());
}

void BM_Open(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    for (auto _ : state)
        editor.weaver.LoadTemplateFile(synth::SyntheticData::kTemplateName);
}

// Open as the editor does it, with every line's and record's problems reported.
void BM_OpenReportingProblems(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    editor.weaver.reportProblems = true;
    for (auto _ : state)
        editor.weaver.LoadTemplateFile(synth::SyntheticData::kTemplateName);
}

void BM_Save(benchmark::State& state) {
    BenchEditor editor(static_cast<int>(state.range(0)));
    editor.weaver.fileName = "scg\\saved.mt";
    for (auto _ : state)
        editor.weaver.SaveTemplateFile();
}

BENCHMARK(BM_ReadFloor)->Apply(AtEverySize);
BENCHMARK(BM_Read)->Apply(AtEverySize);
BENCHMARK(BM_Build)->Apply(AtEverySize);
BENCHMARK(BM_Export)->Apply(AtEverySize);
BENCHMARK(BM_Write)->Apply(AtEverySize);
BENCHMARK(BM_WriteFloor)->Apply(AtEverySize);
BENCHMARK(BM_WriteFloorUnsynced)->Apply(AtEverySize);
BENCHMARK(BM_Open)->Apply(AtEverySize);
BENCHMARK(BM_OpenReportingProblems)->Apply(AtEverySize);
BENCHMARK(BM_Save)->Apply(AtEverySize);

} // namespace
} // namespace lw::bench
