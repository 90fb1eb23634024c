#pragma once

#include "app/CommandId.h"

#include <QObject>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

class QAction;
class QKeySequence;
class QMainWindow;
class QMenu;
class QToolBar;

// The Qt actions of the main window's commands: the menu bar, the toolbar
// and the keys, built from core's command tables. Every action only asks
// for its command to be run; whether it may run, and whether a toggle is
// on, is set from outside by Refresh.
class CommandActions : public QObject {
    Q_OBJECT

public:
    using CommandRunner = std::function<void(lw::CommandId)>;
    using CommandQuery = std::function<bool(lw::CommandId)>;

    CommandActions(QMainWindow& window, CommandRunner run);

    // The menu bar, the toolbar and the keys, each once.
    void Build();
    // Sets every action's enabled state and tick.
    void Refresh(const CommandQuery& isEnabled, const CommandQuery& isChecked);
    // The File menu's recent files: an entry for each path, the rest hidden.
    void ShowRecentFiles(const std::vector<std::string>& paths);

    // The action of the command's menu entry and toolbar button.
    QAction* Action(lw::CommandId command) const;
    QToolBar* Toolbar() const { return toolbar_; }

signals:
    // A menu is about to open: its entries must show the present state.
    void aboutToShowMenu();

private:
    void BuildMenus();
    void BuildToolbar();
    void BuildKeys();
    QAction* MakeAction(lw::CommandId command, const QString& text);

    QMainWindow& window_;
    CommandRunner run_;
    QToolBar* toolbar_ = nullptr;
    // The separator below the recent files, hidden while there are none.
    QAction* recentSeparator_ = nullptr;
    std::map<lw::CommandId, QAction*> actions_;
    std::vector<std::pair<lw::CommandId, QAction*>> keys_;
};

// The key chord as the command tables name it ("Ctrl+Insert").
QKeySequence KeySequenceOf(const std::string& keys);
