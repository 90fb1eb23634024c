#include "app/EditorCommands.h"

#include "app/Weaver.h"
#include "document/TemplateDesc.h"

namespace lw {

EditorCommands::EditorCommands(Weaver& weaver, FileDialogs& fileDialogs)
    : weaver_(weaver), file_(weaver, fileDialogs), edit_(weaver, file_), finder_(weaver) {
    // The link entries make the link in the direction their text names.
    handlers_ = {
        {CommandId::FileNew, [this] { file_.New(); }},
        {CommandId::FileOpen, [this] { file_.Open(); }},
        {CommandId::FileSave, [this] { file_.Save(); }},
        {CommandId::FileSaveAs, [this] { file_.SaveAs(); }},
        {CommandId::EditUndo, [this] { edit_.Undo(); }},
        {CommandId::EditRedo, [this] { edit_.Redo(); }},
        {CommandId::EditCut, [this] { edit_.Cut(); }},
        {CommandId::EditCopy, [this] { edit_.Copy(); }},
        {CommandId::EditPaste, [this] { edit_.Paste(); }},
        {CommandId::PasteAtPointer, [this] { edit_.PasteAtPointer(); }},
        {CommandId::ReloadBlocks, [this] { edit_.ReloadBlocks(); }},
        {CommandId::SaveSelection, [this] { edit_.SaveSelection(); }},
        {CommandId::ImportTemplate, [this] { edit_.ImportFromFile(); }},
        {CommandId::AddPhase, [this] { weaver_.AddPhase(); }},
        {CommandId::AddUnlinker, [this] { weaver_.AddUnlinker(); }},
        {CommandId::AddCase, [this] { weaver_.AddCase(); }},
        {CommandId::AddSwitch, [this] { weaver_.AddSwitch(); }},
        {CommandId::AddRule, [this] { weaver_.AddRuleAction(); }},
        {CommandId::AddSquadCheck, [this] { weaver_.AddCheck(CheckSquad); }},
        {CommandId::AddLocationCheck, [this] { weaver_.AddCheck(CheckLocationType); }},
        {CommandId::AddCoalitionCheck, [this] { weaver_.AddCheck(CheckCoalition); }},
        {CommandId::AddRangeCheck, [this] { weaver_.AddCheck(CheckRange); }},
        {CommandId::AddInRadiusCheck, [this] { weaver_.AddCheck(CheckInRadius); }},
        {CommandId::AddInSectorCheck, [this] { weaver_.AddCheck(CheckInSector); }},
        {CommandId::AddFreeCheck, [this] { weaver_.AddCheck(CheckFree); }},
        {CommandId::AddTargetLink01, [this] { weaver_.AddLink(false); }},
        {CommandId::AddObjectLink01, [this] { weaver_.AddLink(true); }},
        {CommandId::AddTargetLink10, [this] { weaver_.AddLink(false, true); }},
        {CommandId::AddObjectLink10, [this] { weaver_.AddLink(true, true); }},
        {CommandId::DeleteLinks, [this] { weaver_.DeleteLinksOfPhase(); }},
        {CommandId::AddPrimaryLink, [this] { weaver_.StartGeometryLink(true); }},
        {CommandId::AddSecondaryLink, [this] { weaver_.StartGeometryLink(false); }},
        {CommandId::ViewZoomFit, [this] { weaver_.FitAll(); }},
        {CommandId::ViewZoomSelection, [this] { weaver_.FitSelection(); }},
        {CommandId::ViewZoomIn, [this] { weaver_.ZoomIn(); }},
        {CommandId::ViewZoomOut, [this] { weaver_.ZoomOut(); }},
        {CommandId::FindNext, [this] { finder_.Next(); }},
        {CommandId::FindPrevious, [this] { finder_.Previous(); }},
    };
    for (CommandId recent = CommandId::RecentFile1; recent <= CommandId::RecentFile8;
         recent = static_cast<CommandId>(static_cast<int>(recent) + 1))
        handlers_[recent] = [this, recent] { file_.OpenRecent(RecentFileIndex(recent)); };
}

bool* EditorCommands::Toggle(CommandId command) const {
    EditorOptions& options = weaver_.options;
    switch (command) {
    case CommandId::DrawIo:
        return &options.DrawInputOutputs;
    case CommandId::DrawSwitches:
        return &options.DrawSwitchAndCases;
    case CommandId::DrawChecks:
        return &options.DrawChecks;
    case CommandId::DrawActions:
        return &options.DrawActions;
    case CommandId::DrawGeometry:
        return &options.DrawGeometry;
    case CommandId::OpenLastOnStart:
        return &options.OpenLastUsedTemplateOnStart;
    default:
        return nullptr;
    }
}

bool EditorCommands::IsChecked(CommandId command) const {
    const bool* flag = Toggle(command);
    return flag != nullptr && *flag;
}

bool EditorCommands::IsWindowCommand(CommandId command) {
    return command == CommandId::AppExit || command == CommandId::AppAbout ||
           command == CommandId::ViewToolbar || command == CommandId::ViewStatusBar ||
           command == CommandId::ViewProblems || command == CommandId::EditFind;
}

bool EditorCommands::IsViewCommand(CommandId command) {
    switch (command) {
    case CommandId::AppExit:
    case CommandId::AppAbout:
    case CommandId::ViewToolbar:
    case CommandId::ViewStatusBar:
    case CommandId::ViewProblems:
    case CommandId::DrawIo:
    case CommandId::DrawSwitches:
    case CommandId::DrawChecks:
    case CommandId::DrawActions:
    case CommandId::DrawGeometry:
    case CommandId::OpenLastOnStart:
    case CommandId::ViewZoomFit:
    case CommandId::ViewZoomSelection:
    case CommandId::ViewZoomIn:
    case CommandId::ViewZoomOut:
        return true;
    default:
        return false;
    }
}

// While a new object waits to be placed, or a link is being drawn, only the
// commands that look are taken: anything else could leave the half-made
// object behind, or save it.
bool EditorCommands::IsEnabled(CommandId command) const {
    if (IsViewCommand(command))
        return command != CommandId::ViewZoomSelection || !weaver_.selection.members.empty();
    if (!weaver_.IsIdle())
        return false;
    switch (command) {
    case CommandId::FileSave:
        return weaver_.CanSave();
    case CommandId::EditUndo:
        return weaver_.CanUndo();
    case CommandId::EditRedo:
        return weaver_.CanRedo();
    case CommandId::EditCut:
    case CommandId::EditCopy:
    case CommandId::SaveSelection:
        return weaver_.HasIdleSelection();
    case CommandId::FindNext:
    case CommandId::FindPrevious:
        return finder_.MatchCount() != 0;
    default:
        if (IsRecentFile(command))
            return RecentFileIndex(command) < weaver_.recentFiles.Paths().size();
        // Every other command, those of the context menu and its keys among
        // them, tests for itself what else it needs.
        return true;
    }
}

bool EditorCommands::Run(CommandId command) {
    if (!IsEnabled(command) || IsWindowCommand(command))
        return false;
    if (bool* flag = Toggle(command)) {
        *flag = !*flag;
        weaver_.Repaint();
        return true;
    }
    const auto handler = handlers_.find(command);
    if (handler == handlers_.end())
        return false;
    handler->second();
    return true;
}

} // namespace lw
