#include "app/CommandTable.h"

#include <map>

namespace lw {

namespace {

using C = CommandId;

MenuEntry Entry(const char* text, CommandId command) {
    return MenuEntry{text, command};
}

MenuEntry Separator() {
    return MenuEntry{};
}

// The status text and the tool tip of a command, parted by a line break. The
// link entries of the context menu have a backslash where the break belongs,
// so the status bar shows both halves and they have no tool tip.
const std::map<CommandId, const char*>& Prompts() {
    static const std::map<CommandId, const char*> prompts = {
        {C::FileNew, "New Template\nNew"},
        {C::FileOpen, "Open Mission Template\nOpen"},
        {C::FileSave, "Save current Template\nSave"},
        {C::FileSaveAs, "Save Template As\nSave As"},
        {C::AppExit, "Quit the application; prompts to save documents\nExit"},
        {C::EditUndo, "Undo the last action\nUndo"},
        {C::EditRedo, "Redo the previously undone action\nRedo"},
        {C::EditCut, "Cut the selection and put it on the Clipboard\nCut"},
        {C::EditCopy, "Copy the selection and put it on the Clipboard\nCopy"},
        {C::EditPaste, "Insert Clipboard contents\nPaste"},
        {C::ReloadBlocks, "Reload Blocks with template loaded\nReload Blocks"},
        {C::SaveSelection, "Save selected objects to file as a template\nSave Selection to file"},
        {C::ImportTemplate,
         "Import Template from file and add it to the current one\nImport Template"},
        {C::ViewToolbar, "Show or hide the toolbar\nToggle ToolBar"},
        {C::ViewStatusBar, "Show or hide the status bar\nToggle StatusBar"},
        {C::DrawIo, "Draw Inputs, Outputs and Links\nDraw I/O and links"},
        {C::DrawSwitches, "Draw Switches and Cases\nDraw Switches and Cases"},
        {C::DrawChecks, "Draw Checks\nDraw Checks"},
        {C::DrawActions, "Draw Actions\nDraw Actions"},
        {C::DrawGeometry, "Draw Geometry\nDraw Geometry"},
        {C::AddPhase, "Add new phase\nAdd phase"},
        {C::AddUnlinker, "Add new unlinker\nAdd unlinker"},
        {C::AddCase, "Add new Case\nAdd Case"},
        {C::AddSwitch, "Add new switch\nAdd switch"},
        {C::AppAbout, "Display program information and version number\nAbout"},
        {C::AddRule, "Add Additional Rule to selected Phase\nAdd Rule"},
        {C::AddSquadCheck, "Add Squad Check to Selected Phase\nAdd Squad Check"},
        {C::AddLocationCheck, "Add Location Type Check to Selected Phase\nAdd Location Type Check"},
        {C::AddCoalitionCheck, "Add Coalition Check to Selected Phase\nAdd Coalition Check"},
        {C::AddRangeCheck, "Add Range Check to Selected Phase\nAdd Range Check"},
        {C::AddInRadiusCheck, "Add In Radius Check to Selected Phase\nAdd In Radius Check"},
        {C::AddInSectorCheck, "Add In Sector Check to Selected Phase\nAdd In Sector Check"},
        {C::AddFreeCheck, "Add Free Check to Selected Phase\nAdd Free Check"},
        {C::AddTargetLink01, "Add Target link\\Add Target Link"},
        {C::AddObjectLink01, "Add Object link\\Add Object Link"},
        {C::AddTargetLink10, "Add Target link\\Add Target Link"},
        {C::AddObjectLink10, "Add Object link\\Add Object Link"},
        {C::DeleteLinks, "Shows Delete Links Dialog for Selected Phase\nDelete Links"},
        {C::ViewZoomFit, "Show the whole template\nFit All"},
        {C::ViewZoomSelection, "Show the whole selection\nFit Selection"},
        {C::ViewZoomIn, "Zoom in on the middle of the canvas\nZoom In"},
        {C::ViewZoomOut, "Zoom out from the middle of the canvas\nZoom Out"},
        {C::EditFind, "Find phases, cases and switches by their names\nFind"},
        {C::FindNext, "Go to the next object found\nFind Next"},
        {C::FindPrevious, "Go to the previous object found\nFind Previous"},
        {C::ViewProblems, "Show or hide the problems of the template\nProblems"},
    };
    return prompts;
}

std::string PromptPart(CommandId command, bool toolTip) {
    const auto prompt = Prompts().find(command);
    if (prompt == Prompts().end())
        return std::string();
    const std::string text = prompt->second;
    const std::size_t lineBreak = text.find('\n');
    if (lineBreak == std::string::npos)
        return toolTip ? std::string() : text;
    return toolTip ? text.substr(lineBreak + 1) : text.substr(0, lineBreak);
}

} // namespace

const std::vector<MenuDefinition>& MainMenu() {
    static const std::vector<MenuDefinition> menus = {
        {"&File",
         {Entry("New\tCtrl+N", C::FileNew), Entry("Open\tCtrl+O", C::FileOpen),
          Entry("Save\tCtrl+S", C::FileSave), Entry("Save As\tCtrl+Shift+S", C::FileSaveAs),
          Separator(), Entry("Recent File", C::RecentFile1), Entry("Recent File", C::RecentFile2),
          Entry("Recent File", C::RecentFile3), Entry("Recent File", C::RecentFile4),
          Entry("Recent File", C::RecentFile5), Entry("Recent File", C::RecentFile6),
          Entry("Recent File", C::RecentFile7), Entry("Recent File", C::RecentFile8), Separator(),
          Entry("E&xit", C::AppExit)}},
        {"&Edit",
         {Entry("&Undo\tCtrl+Z", C::EditUndo), Entry("&Redo\tCtrl+Y", C::EditRedo), Separator(),
          Entry("Cu&t\tCtrl+X", C::EditCut), Entry("&Copy\tCtrl+C", C::EditCopy),
          Entry("&Paste\tCtrl+V", C::EditPaste), Separator(),
          Entry("Reload Blocks \"on the fly\"", C::ReloadBlocks),
          Entry("Save Selection to file", C::SaveSelection),
          Entry("Import From File", C::ImportTemplate), Separator(),
          Entry("Find...\tCtrl+F", C::EditFind), Entry("Find Next\tF3", C::FindNext),
          Entry("Find Previous\tShift+F3", C::FindPrevious)}},
        {"&View",
         {Separator(), Entry("&Toolbar", C::ViewToolbar), Entry("&Status Bar", C::ViewStatusBar),
          Entry("Problems", C::ViewProblems), Separator(),
          Entry("Draw Inputs, Outputs, Links", C::DrawIo),
          Entry("Draw Switches and Cases", C::DrawSwitches), Entry("Draw Checks", C::DrawChecks),
          Entry("Draw Actions", C::DrawActions), Entry("Draw Geometry", C::DrawGeometry),
          Separator(), Entry("Fit All\tCtrl+0", C::ViewZoomFit),
          Entry("Fit Selection", C::ViewZoomSelection), Entry("Zoom In\tCtrl++", C::ViewZoomIn),
          Entry("Zoom Out\tCtrl+-", C::ViewZoomOut)}},
        {"&Phase",
         {Entry("Add new phase", C::AddPhase), Entry("Add new unlinker", C::AddUnlinker),
          Entry("Add new case", C::AddCase), Entry("Add new switch", C::AddSwitch)}},
        {"&Options", {Entry("Open last used template on start", C::OpenLastOnStart), Separator()}},
        {"&Help", {Entry("&About Loomwright...", C::AppAbout)}},
    };
    return menus;
}

const std::vector<std::optional<CommandId>>& ToolbarButtons() {
    static const std::vector<std::optional<CommandId>> buttons = {
        C::FileNew,      C::FileOpen,  C::FileSave,     std::nullopt,         C::EditUndo,
        C::EditRedo,     std::nullopt, C::EditCut,      C::EditCopy,          C::EditPaste,
        std::nullopt,    C::DrawIo,    C::DrawSwitches, C::DrawChecks,        C::DrawActions,
        C::DrawGeometry, std::nullopt, C::ViewZoomFit,  C::ViewZoomSelection, C::ViewZoomIn,
        C::ViewZoomOut,  std::nullopt, C::AddPhase,     C::AddUnlinker,       C::AddCase,
        C::AddSwitch,    std::nullopt, C::AppAbout,
    };
    return buttons;
}

// Ctrl+V is no key of the menu's Paste, whose text it stands beside: the
// menu's Paste and Shift+Insert wait for a click, Ctrl+V pastes at once where
// the pointer is.
const std::vector<Accelerator>& Accelerators() {
    static const std::vector<Accelerator> keys = {
        {"Ctrl+N", C::FileNew},
        {"Ctrl+O", C::FileOpen},
        {"Ctrl+S", C::FileSave},
        {"Ctrl+Shift+S", C::FileSaveAs},
        {"Ctrl+Z", C::EditUndo},
        {"Alt+Backspace", C::EditUndo},
        {"Ctrl+Y", C::EditRedo},
        {"Ctrl+X", C::EditCut},
        {"Shift+Delete", C::EditCut},
        {"Ctrl+C", C::EditCopy},
        {"Ctrl+Insert", C::EditCopy},
        {"Shift+Insert", C::EditPaste},
        {"Ctrl+V", C::PasteAtPointer},
        {"Shift+T", C::AddPrimaryLink},
        {"Ctrl+T", C::AddSecondaryLink},
        {"Ctrl+0", C::ViewZoomFit},
        {"Ctrl++", C::ViewZoomIn},
        {"Ctrl+=", C::ViewZoomIn},
        {"Ctrl+-", C::ViewZoomOut},
        {"Ctrl+F", C::EditFind},
        {"F3", C::FindNext},
        {"Shift+F3", C::FindPrevious},
    };
    return keys;
}

std::string RecentFileText(std::size_t index, const std::string& path) {
    return "&" + std::to_string(index + 1) + " " + path;
}

std::string StatusText(CommandId command) {
    return PromptPart(command, false);
}

std::string ToolTipText(CommandId command) {
    return PromptPart(command, true);
}

bool IsToggle(CommandId command) {
    switch (command) {
    case C::ViewToolbar:
    case C::ViewStatusBar:
    case C::ViewProblems:
    case C::DrawIo:
    case C::DrawSwitches:
    case C::DrawChecks:
    case C::DrawActions:
    case C::DrawGeometry:
    case C::OpenLastOnStart:
        return true;
    default:
        return false;
    }
}

} // namespace lw
