#pragma once

#include "app/CanvasInput.h"
#include "app/Weaver.h"
#include "seams/ScriptedPropertyDialogs.h"
#include "support/SampleEditor.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace lw::test {

// An editor on an empty document, its view at the origin and scale 1 unless
// a test moves it, with scripted dialogs and the canvas's raw input. Tests
// build their objects at positions chosen so that the pixels are obvious: at
// scale 1 a phase at (x, y) covers x..x+199, y..y+149, its single input gate
// stands at (x - 150, y + 75) and its single output gate at (x + 350, y + 75).
class GestureFixture : public ::testing::Test {
protected:
    GestureFixture() {
        e.StartUp();
        weaver.SetPropertyDialogs(&dialogs);
    }

    Phase* PhaseAt(const std::string& name, int x, int y) {
        Phase* phase = weaver.NewPhase();
        phase->name = name;
        phase->posX = x;
        phase->posY = y;
        phase->blocks["main"] = "scg\\0\\blocks\\air\\patrol.group";
        phase->inputs = {GateSlot{"in"}};
        phase->outputs = {GateSlot{"out"}};
        return phase;
    }
    Case* CaseAt(const std::string& name, int x, int y) {
        Case* item = weaver.NewCase();
        item->name = name;
        item->posX = x;
        item->posY = y;
        return item;
    }
    Check* CheckOf(Phase& phase, std::int32_t type, int x = 0, int y = 0) {
        Check* check = weaver.NewCheck();
        check->phaseId = phase.id;
        check->type = type;
        check->posX = x;
        check->posY = y;
        phase.AddCheckId(check->id);
        return check;
    }
    Action* ActionOf(Phase& phase, const std::string& objectName, const std::string& name) {
        Action* action = weaver.NewAction();
        action->phaseId = phase.id;
        action->objectName = objectName;
        action->name = name;
        phase.AddActionId(action->id);
        return action;
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
