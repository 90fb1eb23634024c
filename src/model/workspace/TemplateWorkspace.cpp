#include "workspace/TemplateWorkspace.h"

#include "catalog/GroupReader.h"
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "document/WordLines.h"
#include "operations/TemplateBuilder.h"
#include "operations/TemplateExporter.h"
#include "text/Text.h"

#include <algorithm>
#include <set>
#include <utility>

namespace lw {

TemplateWorkspace::TemplateWorkspace(UserPrompts& prompts, FileSystem& fileSystem)
    : prompts(prompts), files(fileSystem), blockPool(files, prompts) {}

void TemplateWorkspace::OpenDataFolder(const std::string& dataFolderPath) {
    dataFolder = LowerCase(dataFolderPath);
    // A missing data folder is no error: relative paths then resolve against
    // the working directory, and the program starts with what it finds there.
    const bool folderExists = files.System().KindOf(dataFolderPath) == PathKind::Directory;
    files.SetBaseFolder(folderExists ? dataFolderPath : std::string());

    ReadConfiguration();
    ReadCatalogue(modelsPath, modelList);
    ReadCatalogue(actionsPath, ruleCatalogue);
    blockPool.Load(blockFolders);
}

template <typename Catalogue>
void TemplateWorkspace::ReadCatalogue(const std::string& path, Catalogue& catalogue) {
    // A catalogue that is missing leaves its list empty, without a word.
    if (auto stream = files.OpenForReading(path))
        catalogue.Read(*stream);
}

void TemplateWorkspace::ReadConfiguration() {
    auto stream = files.OpenForReading("scg\\Loomwright.ini");
    if (!stream)
        return;
    std::string line;
    std::vector<std::string> words;
    while (ReadWordLine(*stream, line, words)) {
        if (words.size() < 2)
            continue;
        // The prefix applies as the lines come, so "tvd" acts on the lines below it.
        const std::string& key = words[0];
        const std::string& value = words[1];
        if (key == "tvd")
            tvdFolder = value;
        else if (key == "models")
            modelsPath = tvdFolder + value;
        else if (key == "actions")
            actionsPath = tvdFolder + value;
        else if (key == "blocks")
            blockFolders.push_back(tvdFolder + value);
    }
}

void TemplateWorkspace::ClearDocument() {
    fileName.clear();
    ClearObjects();
    problems.ForgetFile();
}

bool TemplateWorkspace::ReadTemplateFile(const std::string& path) {
    auto stream = files.OpenForReading(path);
    if (!stream) {
        // A file that does not open leaves the document empty.
        ClearDocument();
        prompts.ShowMessage("Can't open template file!", MessageIcon::Stop);
        return false;
    }
    TemplateDesc desc;
    TemplateReadReport report{path, {}, {}};
    const std::size_t linesWithWords =
        ReadTemplateDesc(desc, *stream, reportProblems ? &report : nullptr);
    // A file of another kind would open as an empty template, which a save
    // would then write over it: the open document stays instead. A file of
    // empty and comment lines alone is an empty template.
    if (desc.IsEmpty() && linesWithWords > 0) {
        prompts.ShowMessage(kNoTemplateMessage, MessageIcon::Stop);
        return false;
    }
    ClearDocument();
    TemplateBuilder builder(*this, blockPool, prompts);
    BuildReport build{path, &report.lines, {}};
    if (reportProblems)
        builder.SetReport(&build);
    builder.Build(desc);
    if (reportProblems)
        NoteFileProblems(desc, report, std::move(build.diagnostics));
    return true;
}

// What the file showed, with the problems of the block files its phases use,
// and where each phase, case and switch came from.
void TemplateWorkspace::NoteFileProblems(const TemplateDesc& desc, TemplateReadReport& report,
                                         Diagnostics built) {
    Diagnostics found = std::move(report.diagnostics);
    found.insert(found.end(), std::make_move_iterator(built.begin()),
                 std::make_move_iterator(built.end()));
    std::stable_sort(found.begin(), found.end(),
                     [](const Diagnostic& a, const Diagnostic& b) { return a.line < b.line; });
    std::set<std::string> blockFiles;
    ForEach<Phase>([&](const Phase& phase) {
        for (const auto& block : phase.blocks)
            blockFiles.insert(block.second);
    });
    for (const std::string& reference : blockFiles) {
        GroupReadReport blockReport{files.Resolve(reference), {}};
        if (auto blockStream = files.OpenForReading(reference)) {
            BlockInfo ignored;
            ReadGroupStream(ignored, *blockStream, &blockReport);
        }
        found.insert(found.end(), blockReport.diagnostics.begin(), blockReport.diagnostics.end());
    }
    ObjectSourceLines lines;
    const auto keep = [](auto& byName, const auto& records, const std::vector<int>& recordLines) {
        for (std::size_t i = 0; i < records.size() && i < recordLines.size(); ++i)
            byName[records[i].name].push_back(recordLines[i]);
    };
    keep(lines.phases, desc.phases, report.lines.phases);
    keep(lines.cases, desc.cases, report.lines.cases);
    keep(lines.switches, desc.switches, report.lines.switches);
    for (std::size_t i = 0; i < desc.actions.size() && i < report.lines.actions.size(); ++i) {
        const ActionDesc& action = desc.actions[i];
        lines.actions[ActionLineKey(action.phaseName, action.objectName, action.actionName)]
            .push_back(report.lines.actions[i]);
    }
    problems.SetFile(std::move(found), std::move(lines));
}

bool TemplateWorkspace::WriteTemplateFile() {
    TemplateDesc desc;
    ExportToDesc(*this, desc);
    // The file is replaced only once all of it is written, so a failed save
    // keeps the old file.
    if (!files.ReplaceFile(fileName, TemplateDescText(desc))) {
        prompts.ShowMessage("Can't save template file!", MessageIcon::Stop);
        return false;
    }
    // What was read from the file before is no longer in it.
    problems.ForgetFile();
    return true;
}

} // namespace lw
