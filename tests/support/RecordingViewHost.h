#pragma once

#include "seams/ViewHost.h"

#include <functional>
#include <string>
#include <vector>

namespace lw::test {

// A window that remembers what the document asked of it.
class RecordingViewHost : public ViewHost {
public:
    void SetTitle(const std::string& text) override {
        title = text;
        titles.push_back(text);
    }
    void Repaint() override { ++repaints; }
    void RepaintArea(const ScreenRect& area) override { repaintedAreas.push_back(area); }
    void CapturePointer(bool capture) override { captured = capture; }
    void ShowCursor(CanvasCursor shown) override { cursor = shown; }
    bool OpenTextFile(const std::string& path) override {
        openedFiles.push_back(path);
        return canOpenFiles;
    }

    // Idle work waits until the test runs it, as the window's loop would.
    void RunWhenIdle(std::function<void()> work) override { idleWork.push_back(std::move(work)); }
    void RunIdleWork() {
        auto waiting = std::move(idleWork);
        idleWork.clear();
        for (auto& work : waiting)
            work();
    }

    std::string title;
    std::vector<std::string> titles;
    int repaints = 0;
    std::vector<ScreenRect> repaintedAreas;
    bool captured = false;
    CanvasCursor cursor = CanvasCursor::Arrow;
    std::vector<std::string> openedFiles;
    bool canOpenFiles = true;
    std::vector<std::function<void()>> idleWork;
};

} // namespace lw::test
