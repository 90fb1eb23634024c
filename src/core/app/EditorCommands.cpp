#include "app/EditorCommands.h"

#include "app/Weaver.h"
#include "document/TemplateDesc.h"

namespace lw {

EditorCommands::EditorCommands(Weaver& weaver, FileDialogs& fileDialogs)
    : weaver_(weaver), file_(weaver, fileDialogs), edit_(weaver, file_) {}

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
           command == CommandId::ViewToolbar || command == CommandId::ViewStatusBar;
}

bool EditorCommands::IsEnabled(CommandId command) const {
    switch (command) {
    case CommandId::FileNew:
    case CommandId::FileOpen:
    case CommandId::FileSaveAs:
    case CommandId::EditPaste:
    case CommandId::PasteAtPointer:
    case CommandId::ReloadBlocks:
    case CommandId::ImportTemplate:
    case CommandId::AddPhase:
    case CommandId::AddUnlinker:
    case CommandId::AddCase:
    case CommandId::AddSwitch:
        return weaver_.IsIdle();
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
    default:
        // The toggles, the window's own commands and those of the context
        // menu and its keys are always enabled; their operations test for
        // themselves what they need.
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
    switch (command) {
    case CommandId::FileNew:
        file_.New();
        break;
    case CommandId::FileOpen:
        file_.Open();
        break;
    case CommandId::FileSave:
        file_.Save();
        break;
    case CommandId::FileSaveAs:
        file_.SaveAs();
        break;
    case CommandId::EditUndo:
        edit_.Undo();
        break;
    case CommandId::EditRedo:
        edit_.Redo();
        break;
    case CommandId::EditCut:
        edit_.Cut();
        break;
    case CommandId::EditCopy:
        edit_.Copy();
        break;
    case CommandId::EditPaste:
        edit_.Paste();
        break;
    case CommandId::PasteAtPointer:
        edit_.PasteAtPointer();
        break;
    case CommandId::ReloadBlocks:
        edit_.ReloadBlocks();
        break;
    case CommandId::SaveSelection:
        edit_.SaveSelection();
        break;
    case CommandId::ImportTemplate:
        edit_.ImportFromFile();
        break;
    case CommandId::AddPhase:
        weaver_.AddPhase();
        break;
    case CommandId::AddUnlinker:
        weaver_.AddUnlinker();
        break;
    case CommandId::AddCase:
        weaver_.AddCase();
        break;
    case CommandId::AddSwitch:
        weaver_.AddSwitch();
        break;
    case CommandId::AddRule:
        weaver_.AddRuleAction();
        break;
    case CommandId::AddSquadCheck:
        weaver_.AddCheck(CheckSquad);
        break;
    case CommandId::AddLocationCheck:
        weaver_.AddCheck(CheckLocationType);
        break;
    case CommandId::AddCoalitionCheck:
        weaver_.AddCheck(CheckCoalition);
        break;
    case CommandId::AddRangeCheck:
        weaver_.AddCheck(CheckRange);
        break;
    case CommandId::AddInRadiusCheck:
        weaver_.AddCheck(CheckInRadius);
        break;
    case CommandId::AddInSectorCheck:
        weaver_.AddCheck(CheckInSector);
        break;
    case CommandId::AddFreeCheck:
        weaver_.AddCheck(CheckFree);
        break;
    case CommandId::AddTargetLink01:
    case CommandId::AddTargetLink10:
        weaver_.AddLink(false);
        break;
    case CommandId::AddObjectLink01:
    case CommandId::AddObjectLink10:
        weaver_.AddLink(true);
        break;
    case CommandId::DeleteLinks:
        weaver_.DeleteLinksOfPhase();
        break;
    case CommandId::AddPrimaryLink:
        weaver_.StartGeometryLink(true);
        break;
    case CommandId::AddSecondaryLink:
        weaver_.StartGeometryLink(false);
        break;
    default:
        return false;
    }
    return true;
}

} // namespace lw
