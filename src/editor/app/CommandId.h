#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace lw {

// Every command of the main window, the canvas's context menu and the keys.
enum class CommandId {
    FileNew,
    FileOpen,
    FileSave,
    FileSaveAs,
    AppExit,
    EditUndo,
    EditRedo,
    EditCut,
    EditCopy,
    EditPaste,
    PasteAtPointer,
    ReloadBlocks,
    SaveSelection,
    ImportTemplate,
    ViewToolbar,
    ViewStatusBar,
    DrawIo,
    DrawSwitches,
    DrawChecks,
    DrawActions,
    DrawGeometry,
    AddPhase,
    AddUnlinker,
    AddCase,
    AddSwitch,
    OpenLastOnStart,
    AppAbout,
    AddRule,
    AddSquadCheck,
    AddLocationCheck,
    AddCoalitionCheck,
    AddRangeCheck,
    AddInRadiusCheck,
    AddInSectorCheck,
    AddFreeCheck,
    AddTargetLink01,
    AddObjectLink01,
    AddTargetLink10,
    AddObjectLink10,
    DeleteLinks,
    AddPrimaryLink,
    AddSecondaryLink,
    ViewZoomFit,
    ViewZoomSelection,
    ViewZoomIn,
    ViewZoomOut,
    EditFind,
    FindNext,
    FindPrevious,
    RecentFile1,
    RecentFile2,
    RecentFile3,
    RecentFile4,
    RecentFile5,
    RecentFile6,
    RecentFile7,
    RecentFile8,
    ViewProblems,
};

// The place in the recent files that a RecentFile command opens, from 0.
std::size_t RecentFileIndex(CommandId command);
bool IsRecentFile(CommandId command);

// The command's id name, such as "ID_EDIT_UNDO", by which scripts name it.
const char* CommandName(CommandId command);
std::optional<CommandId> CommandByName(const std::string& name);

} // namespace lw
