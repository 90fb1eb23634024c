#include "app/CommandId.h"

#include <array>
#include <utility>

namespace lw {

namespace {

constexpr std::array<std::pair<CommandId, const char*>, 58> kNames{{
    {CommandId::FileNew, "ID_FILE_NEW"},
    {CommandId::FileOpen, "ID_FILE_OPEN"},
    {CommandId::FileSave, "ID_FILE_SAVE"},
    {CommandId::FileSaveAs, "ID_FILE_SAVE_AS"},
    {CommandId::AppExit, "ID_APP_EXIT"},
    {CommandId::EditUndo, "ID_EDIT_UNDO"},
    {CommandId::EditRedo, "ID_EDIT_REDO"},
    {CommandId::EditCut, "ID_EDIT_CUT"},
    {CommandId::EditCopy, "ID_EDIT_COPY"},
    {CommandId::EditPaste, "ID_EDIT_PASTE"},
    {CommandId::PasteAtPointer, "ID_PASTE_AT_POINTER"},
    {CommandId::ReloadBlocks, "ID_RELOAD_BLOCKS"},
    {CommandId::SaveSelection, "ID_SAVE_SELECTION"},
    {CommandId::ImportTemplate, "ID_IMPORT_TEMPLATE"},
    {CommandId::ViewToolbar, "ID_VIEW_TOOLBAR"},
    {CommandId::ViewStatusBar, "ID_VIEW_STATUS_BAR"},
    {CommandId::DrawIo, "ID_DRAW_IO"},
    {CommandId::DrawSwitches, "ID_DRAW_SWITCHES"},
    {CommandId::DrawChecks, "ID_DRAW_CHECKS"},
    {CommandId::DrawActions, "ID_DRAW_ACTIONS"},
    {CommandId::DrawGeometry, "ID_DRAW_GEOMETRY"},
    {CommandId::AddPhase, "ID_ADD_PHASE"},
    {CommandId::AddUnlinker, "ID_ADD_UNLINKER"},
    {CommandId::AddCase, "ID_ADD_CASE"},
    {CommandId::AddSwitch, "ID_ADD_SWITCH"},
    {CommandId::OpenLastOnStart, "ID_OPEN_LAST_ON_START"},
    {CommandId::AppAbout, "ID_APP_ABOUT"},
    {CommandId::AddRule, "ID_ADD_RULE"},
    {CommandId::AddSquadCheck, "ID_ADD_SQUAD_CHECK"},
    {CommandId::AddLocationCheck, "ID_ADD_LOCATION_CHECK"},
    {CommandId::AddCoalitionCheck, "ID_ADD_COALITION_CHECK"},
    {CommandId::AddRangeCheck, "ID_ADD_RANGE_CHECK"},
    {CommandId::AddInRadiusCheck, "ID_ADD_IN_RADIUS_CHECK"},
    {CommandId::AddInSectorCheck, "ID_ADD_IN_SECTOR_CHECK"},
    {CommandId::AddFreeCheck, "ID_ADD_FREE_CHECK"},
    {CommandId::AddTargetLink01, "ID_ADD_TARGET_LINK_01"},
    {CommandId::AddObjectLink01, "ID_ADD_OBJECT_LINK_01"},
    {CommandId::AddTargetLink10, "ID_ADD_TARGET_LINK_10"},
    {CommandId::AddObjectLink10, "ID_ADD_OBJECT_LINK_10"},
    {CommandId::DeleteLinks, "ID_DELETE_LINKS"},
    {CommandId::AddPrimaryLink, "ID_ADD_PRIMARY_LINK"},
    {CommandId::AddSecondaryLink, "ID_ADD_SECONDARY_LINK"},
    {CommandId::ViewZoomFit, "ID_VIEW_ZOOM_FIT"},
    {CommandId::ViewZoomSelection, "ID_VIEW_ZOOM_SELECTION"},
    {CommandId::ViewZoomIn, "ID_VIEW_ZOOM_IN"},
    {CommandId::ViewZoomOut, "ID_VIEW_ZOOM_OUT"},
    {CommandId::EditFind, "ID_EDIT_FIND"},
    {CommandId::FindNext, "ID_EDIT_FIND_NEXT"},
    {CommandId::FindPrevious, "ID_EDIT_FIND_PREVIOUS"},
    {CommandId::RecentFile1, "ID_FILE_MRU_FILE1"},
    {CommandId::RecentFile2, "ID_FILE_MRU_FILE2"},
    {CommandId::RecentFile3, "ID_FILE_MRU_FILE3"},
    {CommandId::RecentFile4, "ID_FILE_MRU_FILE4"},
    {CommandId::RecentFile5, "ID_FILE_MRU_FILE5"},
    {CommandId::RecentFile6, "ID_FILE_MRU_FILE6"},
    {CommandId::RecentFile7, "ID_FILE_MRU_FILE7"},
    {CommandId::RecentFile8, "ID_FILE_MRU_FILE8"},
    {CommandId::ViewProblems, "ID_VIEW_PROBLEMS"},
}};

} // namespace

bool IsRecentFile(CommandId command) {
    return command >= CommandId::RecentFile1 && command <= CommandId::RecentFile8;
}

std::size_t RecentFileIndex(CommandId command) {
    return static_cast<std::size_t>(command) - static_cast<std::size_t>(CommandId::RecentFile1);
}

const char* CommandName(CommandId command) {
    for (const auto& [id, name] : kNames) {
        if (id == command)
            return name;
    }
    return "";
}

std::optional<CommandId> CommandByName(const std::string& name) {
    for (const auto& [id, text] : kNames) {
        if (name == text)
            return id;
    }
    return std::nullopt;
}

} // namespace lw
