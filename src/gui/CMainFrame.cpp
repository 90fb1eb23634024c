#include "CMainFrame.h"

#include "QtText.h"
#include "app/AppInfo.h"
#include "app/DataFolder.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QKeySequence>
#include <QMenuBar>
#include <QUrl>

CMainFrame::CMainFrame(QWidget* parent)
    : QMainWindow(parent), weaver_(prompts_, optionsStore_, fileSystem_),
      commands_(weaver_, fileDialogs_), propertyDialogs_(weaver_, prompts_, dialogRunner_) {
    // Until the first refresh of the title the caption is the program's name alone.
    setWindowTitle(lw::kApplicationName);
    prompts_.SetParent(this);
    fileDialogs_.SetParent(this);
    propertyDialogs_.SetParent(this);
    weaver_.SetPropertyDialogs(&propertyDialogs_);
}

bool CMainFrame::OnCreate(const std::string& dataFolder) {
    view_.setParent(this);
    setCentralWidget(&view_);
    CreateFileMenu();
    CreateEditMenu();
    resize(1024, 768);
    weaver_.SetViewHost(this);
    weaver_.SetView(&view_);
    view_.Attach(weaver_, commands_);

    const QString program = QCoreApplication::applicationFilePath();
    weaver_.StartUp(dataFolder.empty() ? lw::DataFolderForExecutable(PathToStdString(program))
                                       : dataFolder);
    return true;
}

QAction* CMainFrame::AddCommand(QMenu* menu, const QString& text, lw::CommandId command,
                                const QKeySequence& keys) {
    auto* action = menu != nullptr ? menu->addAction(text) : new QAction(text, this);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [this, command] { commands_.Run(command); });
    if (menu == nullptr)
        addAction(action);
    return action;
}

void CMainFrame::CreateFileMenu() {
    using lw::CommandId;
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    AddCommand(menu, tr("New"), CommandId::FileNew, QKeySequence(Qt::CTRL | Qt::Key_N));
    AddCommand(menu, tr("Open"), CommandId::FileOpen, QKeySequence(Qt::CTRL | Qt::Key_O));
    AddCommand(menu, tr("Save"), CommandId::FileSave, QKeySequence(Qt::CTRL | Qt::Key_S));
    AddCommand(menu, tr("Save As"), CommandId::FileSaveAs,
               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    menu->addAction(tr("E&xit"), [this] { close(); });
}

void CMainFrame::CreateEditMenu() {
    using lw::CommandId;
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    AddCommand(menu, tr("&Undo"), CommandId::EditUndo, QKeySequence(Qt::CTRL | Qt::Key_Z));
    AddCommand(menu, tr("&Redo"), CommandId::EditRedo, QKeySequence(Qt::CTRL | Qt::Key_Y));
    menu->addSeparator();
    AddCommand(menu, tr("Cu&t"), CommandId::EditCut, QKeySequence(Qt::CTRL | Qt::Key_X));
    AddCommand(menu, tr("&Copy"), CommandId::EditCopy, QKeySequence(Qt::CTRL | Qt::Key_C));
    AddCommand(menu, tr("&Paste"), CommandId::EditPaste);
    // Ctrl+V places the clipboard at the pointer at once, while the menu's
    // Paste waits for a click.
    AddCommand(nullptr, QString(), CommandId::PasteAtPointer, QKeySequence(Qt::CTRL | Qt::Key_V));
    menu->addSeparator();
    AddCommand(menu, tr("Reload Blocks \"on the fly\""), CommandId::ReloadBlocks);
    AddCommand(menu, tr("Save Selection to file"), CommandId::SaveSelection);
    AddCommand(menu, tr("Import From File"), CommandId::ImportTemplate);
    // The link gestures' keys work in every state, as the context menu does.
    AddCommand(nullptr, QString(), CommandId::AddPrimaryLink, QKeySequence(Qt::SHIFT | Qt::Key_T));
    AddCommand(nullptr, QString(), CommandId::AddSecondaryLink, QKeySequence(Qt::CTRL | Qt::Key_T));
}

void CMainFrame::SetTitle(const std::string& title) {
    setWindowTitle(ToQString(title));
}

void CMainFrame::Repaint() {
    view_.update();
}

void CMainFrame::RepaintArea(const lw::ScreenRect& area) {
    // The band's edge is drawn on its right and bottom lines as well.
    view_.update(
        QRect(area.left, area.top, area.right - area.left + 1, area.bottom - area.top + 1));
}

void CMainFrame::ShowCursor(lw::CanvasCursor cursor) {
    view_.ShowCursor(cursor);
}

void CMainFrame::OpenTextFile(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQString(path)));
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    if (!commands_.File().ConfirmClose()) {
        event->ignore();
        return;
    }
    weaver_.options.Save(optionsStore_);
    optionsStore_.Flush();
    event->accept();
}
