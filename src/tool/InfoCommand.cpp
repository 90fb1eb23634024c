#include "InfoCommand.h"

#include "ModelSession.h"

#include <map>

namespace {

std::size_t CountModels(const lw::ModelList& list) {
    std::size_t count = 0;
    for (const auto& type : list.types)
        count += type.second.models.size();
    return count;
}

} // namespace

int RunInfoCommand(const ToolArguments& arguments, std::ostream& out) {
    ModelSession session(arguments.dataFolder);
    const lw::TemplateWorkspace& workspace = session.workspace;
    const std::vector<std::string> messages = session.TakeMessages();
    for (const std::string& message : messages)
        out << message << "\n";

    std::map<std::string, std::size_t> blocksPerFolder;
    for (const auto& block : workspace.blockPool.blocks)
        ++blocksPerFolder[block.second.folder];

    out << "data folder: " << workspace.files.BaseFolder() << "\n";
    out << "tvd: " << workspace.tvdFolder << "\n";
    out << "models: " << workspace.modelsPath << " (" << workspace.modelList.types.size()
        << " types, " << CountModels(workspace.modelList) << " models)\n";
    out << "actions: " << workspace.actionsPath << " (" << workspace.ruleCatalogue.rules.size()
        << " rules)\n";
    for (const std::string& folder : workspace.blockFolders)
        out << "blocks: " << folder << " (" << blocksPerFolder[folder] << " blocks)\n";
    return messages.empty() ? 0 : 1;
}
