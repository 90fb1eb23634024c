#pragma once

#include "app/CanvasInput.h"
#include "app/Weaver.h"
#include "seams/ScriptedPropertyDialogs.h"
#include "support/HandBuilt.h"
#include "support/SampleEditor.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace lw::test {

// An editor on an empty document, its view at the origin and scale 1 unless
// a test moves it, with scripted dialogs and the canvas's raw input. Tests
// build their objects by hand (support/HandBuilt.h) at positions chosen so
// that the pixels are obvious.
class GestureFixture : public ::testing::Test {
protected:
    GestureFixture() {
        e.StartUp();
        weaver.SetPropertyDialogs(&dialogs);
    }

    void Select(EditorObject* object) {
        weaver.selection.Add(object);
        weaver.selection.Recalculate();
    }

    // A left press and release at one point, with no key held.
    void ClickAt(int x, int y) {
        input.LeftDown(x, y, kLeftButton);
        input.LeftUp(x, y, 0);
    }
    // A left press, moves through the given points, and the release at the last.
    void DragThrough(int x, int y, const std::vector<std::pair<int, int>>& path) {
        input.LeftDown(x, y, kLeftButton);
        for (const auto& [px, py] : path)
            input.Move(px, py, kLeftButton);
        input.LeftUp(path.back().first, path.back().second, 0);
    }

    using Point = std::pair<int, int>;
    // Where the object stands; a missing one is nowhere on the canvas.
    static Point At(const EditorObject* object) {
        return object != nullptr ? Point{object->posX, object->posY} : Point{INT_MIN, INT_MIN};
    }

    std::size_t Commands() const { return weaver.undoManager.undoStack.size(); }
    // Whether the history holds `count` commands, the newest of them a `Command`.
    template <typename Command> bool HistoryEndsWith(std::size_t count) const {
        const auto& stack = weaver.undoManager.undoStack;
        return count > 0 && stack.size() == count &&
               dynamic_cast<const Command*>(stack.back().get()) != nullptr;
    }
    std::vector<EditorObject*> Selected() const { return weaver.selection.members; }

    SampleEditor e;
    Weaver& weaver = e.weaver;
    ScriptedPropertyDialogs dialogs;
    CanvasInput input{weaver};
};

} // namespace lw::test
