#pragma once

#include <map>
#include <string>

namespace lw::synth {

// What to generate: a template of `phaseCount` phases, their names beginning
// with `namePrefix` so that two generated templates can be pasted into one
// another without a clash.
struct SyntheticOptions {
    int phaseCount = 1000;
    std::string namePrefix = "P";
};

// A whole data folder: every file by its path relative to the data folder
// ("/" separators), with its bytes. Lines end in CR LF, as the editor writes.
struct SyntheticData {
    static constexpr const char* kTemplatePath = "scg/synthetic.mt";
    // The template as the editor names it, relative to the data folder.
    static constexpr const char* kTemplateName = "scg\\synthetic.mt";

    std::map<std::string, std::string> files;

    const std::string& TemplateText() const { return files.at(kTemplatePath); }
};

// A template that exercises every kind of record: phases of two to six gates
// on five block files, geometry of every generation type, about two gate
// links a phase of both kinds, a check and two actions with rules a phase,
// a case for every four phases, a switch for every four cases, an unlinker
// for every eighth phase, colours, and positions on a grid. Built with the
// configuration, catalogues and block folder it needs, it loads with no
// message. The same options always give the same bytes.
SyntheticData GenerateSyntheticData(const SyntheticOptions& options);

// Only the template's text of GenerateSyntheticData.
std::string GenerateSyntheticTemplate(const SyntheticOptions& options);

// Writes every file below `folder`, making the folders it needs. Returns
// false when a file could not be written.
bool WriteSyntheticData(const SyntheticData& data, const std::string& folder);

} // namespace lw::synth
