#include "CMainFrame.h"

#include "QtText.h"
#include "app/AppInfo.h"
#include "app/DataFolder.h"

#include <QCloseEvent>
#include <QCoreApplication>

CMainFrame::CMainFrame(QWidget* parent)
    : QMainWindow(parent), weaver_(prompts_, optionsStore_, fileSystem_) {
    // Until the first refresh of the title the caption is the program's name alone.
    setWindowTitle(lw::kApplicationName);
    prompts_.SetParent(this);
}

bool CMainFrame::OnCreate() {
    view_.setParent(this);
    setCentralWidget(&view_);
    resize(1024, 768);
    weaver_.SetViewHost(this);

    const QString program = QCoreApplication::applicationFilePath();
    weaver_.StartUp(lw::DataFolderForExecutable(PathToStdString(program)));
    return true;
}

void CMainFrame::SetTitle(const std::string& title) {
    setWindowTitle(ToQString(title));
}

void CMainFrame::Repaint() {
    view_.update();
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    weaver_.options.Save(optionsStore_);
    optionsStore_.Flush();
    event->accept();
}
