#include "CLoomwrightApp.h"

#include "AppWindowIcon.h"
#include "CMainFrame.h"
#include "QtText.h"
#include "app/AppInfo.h"

#include <QStandardPaths>

CLoomwrightApp::CLoomwrightApp(int& argc, char** argv) : QApplication(argc, argv) {
    setOrganizationName(lw::kOrganizationName);
    setApplicationName(lw::kApplicationName);
    // Desktops find the installed icon and the program by this name.
    setDesktopFileName(QStringLiteral("loomwright"));
    setWindowIcon(AppWindowIcon());
}

CLoomwrightApp::~CLoomwrightApp() = default;

bool CLoomwrightApp::InitInstance() {
    frame_ = std::make_unique<CMainFrame>();
    frame_->UseRecovery(
        PathToStdString(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    if (!frame_->OnCreate())
        return false;
    frame_->show();
    return true;
}
