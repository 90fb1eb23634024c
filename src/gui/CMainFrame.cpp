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
      fileCommands_(weaver_, fileDialogs_), editCommands_(weaver_, fileCommands_) {
    // Until the first refresh of the title the caption is the program's name alone.
    setWindowTitle(lw::kApplicationName);
    prompts_.SetParent(this);
    fileDialogs_.SetParent(this);
}

bool CMainFrame::OnCreate(const std::string& dataFolder) {
    view_.setParent(this);
    setCentralWidget(&view_);
    CreateFileMenu();
    CreateEditMenu();
    resize(1024, 768);
    weaver_.SetViewHost(this);
    weaver_.SetView(&view_);
    view_.SetWeaver(&weaver_);

    const QString program = QCoreApplication::applicationFilePath();
    weaver_.StartUp(dataFolder.empty() ? lw::DataFolderForExecutable(PathToStdString(program))
                                       : dataFolder);
    return true;
}

void CMainFrame::CreateFileMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("New"), QKeySequence(Qt::CTRL | Qt::Key_N), [this] { fileCommands_.New(); });
    menu->addAction(tr("Open"), QKeySequence(Qt::CTRL | Qt::Key_O),
                    [this] { fileCommands_.Open(); });
    menu->addAction(tr("Save"), QKeySequence(Qt::CTRL | Qt::Key_S),
                    [this] { fileCommands_.Save(); });
    menu->addAction(tr("Save As"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
                    [this] { fileCommands_.SaveAs(); });
    menu->addAction(tr("E&xit"), [this] { close(); });
}

void CMainFrame::CreateEditMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    menu->addAction(tr("&Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z),
                    [this] { editCommands_.Undo(); });
    menu->addAction(tr("&Redo"), QKeySequence(Qt::CTRL | Qt::Key_Y),
                    [this] { editCommands_.Redo(); });
    menu->addSeparator();
    menu->addAction(tr("Cu&t"), QKeySequence(Qt::CTRL | Qt::Key_X),
                    [this] { editCommands_.Cut(); });
    menu->addAction(tr("&Copy"), QKeySequence(Qt::CTRL | Qt::Key_C),
                    [this] { editCommands_.Copy(); });
    menu->addAction(tr("&Paste"), [this] { editCommands_.Paste(); });
    // Ctrl+V places the clipboard at the pointer at once, while the menu's
    // Paste waits for a click.
    auto* pasteAtPointer = new QAction(this);
    pasteAtPointer->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_V));
    connect(pasteAtPointer, &QAction::triggered, this, [this] { editCommands_.PasteAtPointer(); });
    addAction(pasteAtPointer);
    menu->addSeparator();
    menu->addAction(tr("Reload Blocks \"on the fly\""), [this] { editCommands_.ReloadBlocks(); });
    menu->addAction(tr("Save Selection to file"), [this] { editCommands_.SaveSelection(); });
    menu->addAction(tr("Import From File"), [this] { editCommands_.ImportFromFile(); });
}

void CMainFrame::SetTitle(const std::string& title) {
    setWindowTitle(ToQString(title));
}

void CMainFrame::Repaint() {
    view_.update();
}

void CMainFrame::ShowCursor(lw::CanvasCursor cursor) {
    view_.ShowCursor(cursor);
}

void CMainFrame::OpenTextFile(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQString(path)));
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    if (!fileCommands_.ConfirmClose()) {
        event->ignore();
        return;
    }
    weaver_.options.Save(optionsStore_);
    optionsStore_.Flush();
    event->accept();
}
