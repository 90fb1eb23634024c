#include "DiffCommand.h"

#include "ModelSession.h"
#include "TemplateCommands.h"
#include "diff/DiffListing.h"
#include "diff/DocumentDiff.h"

#include <iostream>

bool LoadForComparison(ModelSession& session, const std::string& path) {
    const bool loaded = session.Load(path);
    PrintLines(std::cerr, session.TakeMessages(), path + ": ");
    return loaded;
}

int RunDiffCommand(const ToolArguments& arguments, std::ostream& out) {
    const auto format = arguments.values.find(kFormatOption);
    const bool json = format != arguments.values.end() && format->second == "json";
    if (format != arguments.values.end() && !json && format->second != "text") {
        std::cerr << "loomwright-tool: --format takes text or json\n";
        return kFailure;
    }
    ModelSession older(arguments.dataFolder);
    ModelSession newer(arguments.dataFolder);
    if (!LoadForComparison(older, arguments.positional[0]) ||
        !LoadForComparison(newer, arguments.positional[1]))
        return kFailure;
    const lw::DocumentDiff diff = lw::CompareDocuments(older.workspace, newer.workspace);
    out << (json ? lw::DiffJson(diff) : lw::DiffText(diff));
    return diff.Same() ? 0 : 1;
}
