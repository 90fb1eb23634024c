#include "CommandActions.h"

#include "QtText.h"
#include "ToolbarIcons.h"
#include "app/CommandTable.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

using lw::CommandId;

CommandActions::CommandActions(QMainWindow& window, CommandRunner run)
    : QObject(&window), window_(window), run_(std::move(run)) {}

void CommandActions::Build() {
    BuildMenus();
    BuildToolbar();
    BuildKeys();
}

// A menu entry and a toolbar button of one command share their action. The
// entry's text holds the key's text after a tab, which Qt shows as it
// stands; the keys themselves are actions of their own, since Ctrl+V is not
// the key of the Paste entry it stands beside.
QAction* CommandActions::MakeAction(CommandId command, const QString& text) {
    auto* action = new QAction(text, &window_);
    action->setObjectName(lw::CommandName(command));
    action->setStatusTip(ToQString(lw::StatusText(command)));
    action->setToolTip(ToQString(lw::ToolTipText(command)));
    action->setCheckable(lw::IsToggle(command));
    action->setIconVisibleInMenu(false);
    connect(action, &QAction::triggered, this, [this, command] { run_(command); });
    actions_[command] = action;
    return action;
}

void CommandActions::BuildMenus() {
    for (const lw::MenuDefinition& definition : lw::MainMenu()) {
        QMenu* menu = window_.menuBar()->addMenu(ToQString(definition.title));
        // Every separator shows where the table puts it, also at the start
        // or the end of a menu.
        menu->setSeparatorsCollapsible(false);
        connect(menu, &QMenu::aboutToShow, this, &CommandActions::aboutToShowMenu);
        bool afterRecentFiles = false;
        for (const lw::MenuEntry& entry : definition.entries) {
            if (entry.IsSeparator()) {
                QAction* separator = menu->addSeparator();
                if (afterRecentFiles)
                    recentSeparator_ = separator;
            } else {
                menu->addAction(MakeAction(*entry.command, ToQString(entry.text)));
            }
            afterRecentFiles = entry.command && lw::IsRecentFile(*entry.command);
        }
    }
}

void CommandActions::BuildToolbar() {
    toolbar_ = window_.addToolBar(tr("Toolbar"));
    toolbar_->setObjectName("toolbar");
    toolbar_->setIconSize(QSize(16, 15));
    for (const std::optional<CommandId>& button : lw::ToolbarButtons()) {
        if (!button) {
            toolbar_->addSeparator();
            continue;
        }
        QAction* action =
            actions_.count(*button) != 0 ? actions_[*button] : MakeAction(*button, QString());
        action->setIcon(ToolbarIcon(*button));
        toolbar_->addAction(action);
    }
}

void CommandActions::BuildKeys() {
    for (const lw::Accelerator& key : lw::Accelerators()) {
        auto* action = new QAction(&window_);
        action->setShortcut(KeySequenceOf(key.keys));
        const CommandId command = key.command;
        connect(action, &QAction::triggered, this, [this, command] { run_(command); });
        window_.addAction(action);
        keys_.emplace_back(command, action);
    }
}

void CommandActions::Refresh(const CommandQuery& isEnabled, const CommandQuery& isChecked) {
    for (const auto& [command, action] : actions_) {
        action->setEnabled(isEnabled(command));
        if (action->isCheckable())
            action->setChecked(isChecked(command));
    }
    for (const auto& [command, action] : keys_)
        action->setEnabled(isEnabled(command));
}

void CommandActions::ShowRecentFiles(const std::vector<std::string>& paths) {
    for (CommandId command = CommandId::RecentFile1; command <= CommandId::RecentFile8;
         command = static_cast<CommandId>(static_cast<int>(command) + 1)) {
        QAction* action = Action(command);
        const std::size_t index = lw::RecentFileIndex(command);
        action->setVisible(index < paths.size());
        if (index < paths.size())
            action->setText(ToQString(lw::RecentFileText(index, paths[index])));
    }
    if (recentSeparator_ != nullptr)
        recentSeparator_->setVisible(!paths.empty());
}

QAction* CommandActions::Action(CommandId command) const {
    const auto found = actions_.find(command);
    return found != actions_.end() ? found->second : nullptr;
}

QKeySequence KeySequenceOf(const std::string& keys) {
    // Qt's portable names of these two keys are short.
    QString text = ToQString(keys);
    text.replace(QStringLiteral("Insert"), QStringLiteral("Ins"));
    text.replace(QStringLiteral("Delete"), QStringLiteral("Del"));
    return QKeySequence::fromString(text, QKeySequence::PortableText);
}
