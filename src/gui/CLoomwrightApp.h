#pragma once

#include <QApplication>
#include <memory>

class CMainFrame;

// The application: makes the main window and runs the one event loop.
class CLoomwrightApp : public QApplication {
    Q_OBJECT

public:
    CLoomwrightApp(int& argc, char** argv);
    ~CLoomwrightApp() override;

    bool InitInstance();
    CMainFrame* MainFrame() const { return frame_.get(); }

private:
    std::unique_ptr<CMainFrame> frame_;
};
