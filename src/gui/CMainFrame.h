#pragma once

#include "CChildView.h"
#include "QtFileSystem.h"
#include "QtOptionsStore.h"
#include "QtPrompts.h"
#include "app/Weaver.h"
#include "platform/ViewHost.h"

#include <QMainWindow>

// The main window. It holds the canvas and the central Weaver, and gives
// Weaver the platform's message boxes, options, files and window.
class CMainFrame : public QMainWindow, public lw::ViewHost {
    Q_OBJECT

public:
    explicit CMainFrame(QWidget* parent = nullptr);

    // Builds the window's parts, finds the data folder next to the program,
    // and starts Weaver on it.
    bool OnCreate();

    lw::Weaver& weaver() { return weaver_; }
    CChildView& view() { return view_; }

    void SetTitle(const std::string& title) override;
    void Repaint() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QtPrompts prompts_;
    QtOptionsStore optionsStore_;
    QtFileSystem fileSystem_;
    CChildView view_;
    lw::Weaver weaver_;
};
