#include "CLoomwrightApp.h"

#include "CMainFrame.h"
#include "app/AppInfo.h"

CLoomwrightApp::CLoomwrightApp(int& argc, char** argv) : QApplication(argc, argv) {
    setOrganizationName(lw::kOrganizationName);
    setApplicationName(lw::kApplicationName);
}

CLoomwrightApp::~CLoomwrightApp() = default;

bool CLoomwrightApp::InitInstance() {
    frame_ = std::make_unique<CMainFrame>();
    if (!frame_->OnCreate())
        return false;
    frame_->show();
    return true;
}
