#pragma once

#include "CChildView.h"
#include "QtFileDialogs.h"
#include "QtFileSystem.h"
#include "QtOptionsStore.h"
#include "QtPrompts.h"
#include "QtPropertyDialogs.h"
#include "app/EditorCommands.h"
#include "app/Weaver.h"
#include "seams/ViewHost.h"

#include <QMainWindow>

class CommandActions;
class FindBar;
class ProblemsPanel;
class QLabel;

// The main window. It holds the canvas and the central Weaver, gives Weaver
// the platform's message boxes, options, files and window, and is where
// every command of the menus, the toolbar, the keys and the canvas's context
// menu enters.
class CMainFrame : public QMainWindow, public lw::ViewHost {
    Q_OBJECT

public:
    explicit CMainFrame(QWidget* parent = nullptr);

    // Keeps the document in a recovery copy in this folder against a crash,
    // and offers a copy left there at start; called before OnCreate. The
    // program uses the user's application data folder.
    void UseRecovery(const std::string& folder);

    // Builds the window's parts and starts Weaver on the data folder: by
    // default the one two levels above the program.
    bool OnCreate(const std::string& dataFolder = std::string());

    lw::Weaver& weaver() { return weaver_; }
    lw::EditorCommands& commands() { return commands_; }
    lw::FileCommands& fileCommands() { return commands_.File(); }
    lw::EditMenuCommands& editCommands() { return commands_.Edit(); }
    CChildView& view() { return view_; }
    CommandActions& actions() { return *actions_; }
    FindBar& findBar() { return *findBar_; }
    ProblemsPanel& problemsPanel() { return *problemsPanel_; }

    // Runs the command if its enable rule allows it now, then brings every
    // menu entry, button and key up to date.
    void RunCommand(lw::CommandId command);
    void RefreshCommandStates();
    // The zoom, the pointer, the selection and the gesture's hint.
    void RefreshCanvasStatus();

    void SetTitle(const std::string& title) override;
    void Repaint() override;
    void RepaintArea(const lw::ScreenRect& area) override;
    void ShowCursor(lw::CanvasCursor cursor) override;
    void ShowStatusText(const std::string& text) override;
    bool OpenTextFile(const std::string& path) override;
    void RunWhenIdle(std::function<void()> work) override;

protected:
    // Asks about unsaved changes first; a close that goes on saves the options.
    void closeEvent(QCloseEvent* event) override;

private:
    void CreateStatusBar();
    void CreateCanvasArea();
    void PlaceOnScreen();
    // Steps to the next or previous match of the find bar, and says where it is.
    void StepThroughMatches(bool forward);
    bool IsChecked(lw::CommandId command) const;
    // The commands of the window itself: leaving, the About box, the bars.
    void RunWindowCommand(lw::CommandId command);

    QtPrompts prompts_;
    QtFileDialogs fileDialogs_;
    QtOptionsStore optionsStore_;
    QtFileSystem fileSystem_;
    CChildView view_;
    lw::Weaver weaver_;
    lw::EditorCommands commands_;
    DialogRunner dialogRunner_;
    QtPropertyDialogs propertyDialogs_;
    std::unique_ptr<lw::Recovery> recovery_;
    CommandActions* actions_ = nullptr;
    FindBar* findBar_ = nullptr;
    ProblemsPanel* problemsPanel_ = nullptr;
    // The status bar's fields for the canvas, from the left.
    QLabel* hintField_ = nullptr;
    QLabel* pointerField_ = nullptr;
    QLabel* selectionField_ = nullptr;
    QLabel* zoomField_ = nullptr;
    QLabel* problemsField_ = nullptr;
};
