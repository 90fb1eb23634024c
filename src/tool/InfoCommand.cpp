#include "InfoCommand.h"

#include "ToolSession.h"

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
    ToolSession session(arguments.dataFolder);
    const lw::Weaver& weaver = session.weaver;
    const std::vector<std::string> messages = session.TakeMessages();
    for (const std::string& message : messages)
        out << message << "\n";

    std::map<std::string, std::size_t> blocksPerFolder;
    for (const auto& block : weaver.blockPool.blocks)
        ++blocksPerFolder[block.second.folder];

    out << "data folder: " << weaver.files.BaseFolder() << "\n";
    out << "tvd: " << weaver.tvdFolder << "\n";
    out << "models: " << weaver.modelsPath << " (" << weaver.modelList.types.size() << " types, "
        << CountModels(weaver.modelList) << " models)\n";
    out << "actions: " << weaver.actionsPath << " (" << weaver.ruleCatalogue.rules.size()
        << " rules)\n";
    for (const std::string& folder : weaver.blockFolders)
        out << "blocks: " << folder << " (" << blocksPerFolder[folder] << " blocks)\n";
    return messages.empty() ? 0 : 1;
}
