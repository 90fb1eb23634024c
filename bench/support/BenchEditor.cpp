#include "support/BenchEditor.h"

#include "synth/SyntheticTemplate.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <stdexcept>

namespace lw::bench {

namespace fs = std::filesystem;

const std::string& SyntheticDataFolder(int phases) {
    static std::map<int, std::string> folders;
    auto found = folders.find(phases);
    if (found != folders.end())
        return found->second;
    const fs::path folder =
        fs::temp_directory_path() / ("loomwright-bench-" + std::to_string(phases));
    fs::remove_all(folder);
    if (!synth::WriteSyntheticData(synth::GenerateSyntheticData({phases, "P"}), folder.string()))
        throw std::runtime_error("can't write the synthetic data into " + folder.string());
    return folders[phases] = folder.string();
}

std::string SyntheticTemplatePath(int phases) {
    return SyntheticDataFolder(phases) + "/" + synth::SyntheticData::kTemplatePath;
}

BenchEditor::BenchEditor(int phases) {
    store.SetInt(EditorOptions::kSection, "OpenLastUsedTemplateOnStart", 0);
    weaver.SetView(&view);
    weaver.StartUp(SyntheticDataFolder(phases));
    if (!weaver.LoadTemplateFile(synth::SyntheticData::kTemplateName))
        throw std::runtime_error("can't open the synthetic template");
    if (!prompts.Log().empty())
        throw std::runtime_error("the synthetic template gave a message: " +
                                 prompts.Log().front().text);
    EditorOptions& options = weaver.options;
    options.DrawInputOutputs = options.DrawSwitchAndCases = options.DrawChecks =
        options.DrawActions = options.DrawGeometry = true;
}

void AtEverySize(benchmark::internal::Benchmark* benchmark) {
    for (int phases : {1000, 4000, 16000})
        benchmark->Arg(phases);
    benchmark->Unit(benchmark::kMillisecond);
}

void BenchEditor::SelectAllPlaced() {
    weaver.selection.Clear();
    for (const auto& object : weaver.objects) {
        if (As<Phase>(object.get()) || As<Case>(object.get()) || As<Switch>(object.get()))
            weaver.selection.Add(object.get());
    }
    weaver.selection.Recalculate();
}

} // namespace lw::bench
