#include "GenerateCommand.h"

#include "synth/SyntheticTemplate.h"

#include <iostream>
#include <string>

namespace {

// At most a million phases: the generated file then takes about a gigabyte.
constexpr long kMaxPhases = 1000000;

long ParsePhaseCount(const std::string& text) {
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos ||
        text.size() > 7)
        return 0;
    const long count = std::stol(text);
    return count <= kMaxPhases ? count : 0;
}

} // namespace

int RunGenerateCommand(const ToolArguments& arguments, std::ostream& out) {
    const long phases = ParsePhaseCount(arguments.positional[0]);
    if (phases <= 0) {
        std::cerr << "loomwright-tool: the number of phases must be a whole number from 1 to "
                  << kMaxPhases << "\n";
        return 2;
    }
    const std::string& folder = arguments.positional[1];
    const lw::synth::SyntheticData data =
        lw::synth::GenerateSyntheticData({static_cast<int>(phases), "P"});
    if (!lw::synth::WriteSyntheticData(data, folder)) {
        std::cerr << "loomwright-tool: can't write into " << folder << "\n";
        return 2;
    }
    out << folder << "/" << lw::synth::SyntheticData::kTemplatePath << "\n";
    return 0;
}
