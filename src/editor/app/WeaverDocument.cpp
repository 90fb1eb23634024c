#include "app/Weaver.h"
#include "catalog/GroupReader.h"
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "operations/TemplateBuilder.h"
#include "operations/TemplateExporter.h"

#include <algorithm>
#include <set>
#include <utility>

namespace lw {

void Weaver::ClearDocument() {
    fileName.clear();
    undoManager.ClearHistory();
    ClearObjects();
    problems.ForgetFile();
}

bool Weaver::LoadTemplateFile(const std::string& path) {
    if (!ReadTemplateFile(path))
        return false;
    NoteTemplateFile(path);
    fileName = path;
    RefreshTitle();
    Repaint();
    return true;
}

bool Weaver::ReadTemplateFile(const std::string& path) {
    auto stream = files.OpenForReading(path);
    if (!stream) {
        // A file that does not open leaves the document empty.
        ClearDocument();
        prompts.ShowMessage("Can't open template file!", MessageIcon::Stop);
        RefreshTitle();
        Repaint();
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
    undoManager.ClearHistory();
    TemplateBuilder builder(*this, blockPool, prompts);
    BuildReport build{path, &report.lines, {}};
    if (reportProblems)
        builder.SetReport(&build);
    builder.Build(desc);
    if (reportProblems)
        NoteFileProblems(desc, report, std::move(build.diagnostics));
    // The view is the caller's to fit; until then it is no fitted view.
    viewFollowsFit_ = false;
    return true;
}

// What the file showed, with the problems of the block files its phases use,
// and where each phase, case and switch came from.
void Weaver::NoteFileProblems(const TemplateDesc& desc, TemplateReadReport& report,
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

void Weaver::NoteTemplateFile(const std::string& path) {
    options.SetLastUsedTemplateName(path);
    recentFiles.Add(path);
}

bool Weaver::SaveTemplateFile() {
    TemplateDesc desc;
    ExportToDesc(desc);
    // The file is replaced only once all of it is written, so a failed save
    // keeps the old file and leaves the document changed.
    if (!files.ReplaceFile(fileName, TemplateDescText(desc))) {
        prompts.ShowMessage("Can't save template file!", MessageIcon::Stop);
        return false;
    }
    undoManager.MarkSaved();
    // What was read from the file before is no longer in it.
    problems.ForgetFile();
    NoteTemplateFile(fileName);
    RefreshTitle();
    return true;
}

void Weaver::BuildFromDesc(TemplateDesc& desc) {
    undoManager.ClearHistory();
    TemplateBuilder(*this, blockPool, prompts).Build(desc);
}

void Weaver::ExportToDesc(TemplateDesc& desc) const {
    lw::ExportToDesc(*this, desc);
}

} // namespace lw
