// Long seeded runs of the edits a designer makes, interleaved with undo and
// redo, checking after every step that the document still holds together.
// Run under the address and undefined-behaviour sanitizers, this is what
// finds a command that keeps or follows a destroyed object.

#include "canvas/RecordingSurface.h"
#include "document/TemplateReader.h"
#include "document/TemplateWriter.h"
#include "support/SampleEditor.h"
#include "undo/UR_AddCommands.h"
#include "undo/UR_DeleteLinksCmd.h"
#include "undo/UR_EditCommands.h"
#include "undo/UR_EditPhaseCmd.h"
#include "undo/UR_MoveObjectsCmd.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <sstream>

using namespace lw;

namespace {

class RandomEdits {
public:
    // On the rich sample, or on a generated template of that many phases.
    explicit RandomEdits(unsigned seed, int generatedPhases = 0) : random_(seed) {
        if (generatedPhases > 0) {
            e.AddGeneratedData(generatedPhases);
            rebuilt.AddGeneratedData(generatedPhases);
        }
        e.Open(generatedPhases > 0 ? "scg\\synthetic.mt" : "scg\\sample_rich.mt");
        e.weaver.options.DrawInputOutputs = e.weaver.options.DrawSwitchAndCases = true;
        e.weaver.options.DrawChecks = e.weaver.options.DrawActions = true;
        e.weaver.options.DrawGeometry = true;
        rebuilt.StartUp();
    }

    // One edit, undo or redo chosen at random; returns its name for failure reports.
    std::string Step() {
        switch (Below(14)) {
        case 0:
            return AddPhase();
        case 1:
            return AddCheck();
        case 2:
            return AddCase();
        case 3:
            return AddSwitch();
        case 4:
            return AddLink();
        case 5:
            return DeleteSelection();
        case 6:
            return DeleteLinks();
        case 7:
            return Move();
        case 8:
            return EditPhase();
        case 9:
            return EditCase();
        case 10:
            return EditOthers();
        case 11:
            return Paste();
        case 12:
            e.weaver.Undo();
            return "undo";
        default:
            e.weaver.Redo();
            return "redo";
        }
    }

    void CheckDocument() {
        const Weaver& w = e.weaver;
        std::set<std::int32_t> ids;
        for (const auto& object : w.objects) {
            EXPECT_TRUE(ids.insert(object->id).second) << "id twice: " << object->id;
            EXPECT_GT(object->id, 0);
            EXPECT_LT(object->id, w.nextId);
            const auto indexed = w.objectIndex.find(object->id);
            EXPECT_TRUE(indexed != w.objectIndex.end() && indexed->second == object.get());
        }
        EXPECT_EQ(w.objectIndex.size(), w.objects.size());
        for (const EditorObject* member : w.selection.members)
            EXPECT_TRUE(w.objectIndex.count(member->id) && w.FindObject(member->id) == member);

        // Export skips what no longer resolves: exactly the links between
        // live phases are written, and the written file builds again.
        TemplateDesc desc;
        w.ExportToDesc(desc);
        std::size_t liveLinks = 0;
        for (const Link& link : w.links)
            liveLinks += w.FindPhase(link.fromPhaseId) && w.FindPhase(link.toPhaseId);
        EXPECT_EQ(desc.links.size(), liveLinks);
        std::istringstream text(TemplateDescText(desc));
        TemplateDesc reread;
        ReadTemplateDesc(reread, text);
        rebuilt.weaver.ClearDocument();
        rebuilt.weaver.BuildFromDesc(reread);

        RecordingSurface surface;
        w.PaintScene(surface, 0, 0, 0.5f);
    }

private:
    std::size_t Below(std::size_t n) { return n == 0 ? 0 : random_() % n; }

    template <typename T> T* Any() {
        std::vector<T*> found;
        for (const auto& object : e.weaver.objects) {
            if (T* typed = As<T>(object.get()))
                found.push_back(typed);
        }
        return found.empty() ? nullptr : found[Below(found.size())];
    }

    void SelectSome() {
        e.weaver.selection.Clear();
        const std::size_t count = 1 + Below(6);
        for (std::size_t i = 0; i < count && !e.weaver.objects.empty(); ++i)
            e.weaver.selection.Add(e.weaver.objects[Below(e.weaver.objects.size())].get());
        e.weaver.selection.Recalculate();
    }

    std::string AddPhase() {
        const Phase* model = Any<Phase>();
        Phase* phase = e.weaver.NewPhase();
        if (model != nullptr) {
            phase->blocks = model->blocks;
            phase->inputs = model->inputs;
            phase->outputs = model->outputs;
            phase->generationType = model->generationType;
            phase->primaryLinkId = model->id;
        }
        phase->posX = static_cast<std::int32_t>(Below(4000));
        phase->posY = static_cast<std::int32_t>(Below(4000));
        Action* action = e.weaver.NewAction();
        action->phaseId = phase->id;
        action->objectName = "Lead";
        action->name = "Model";
        phase->AddActionId(action->id);
        auto command = std::make_unique<UR_AddNewPhaseCmd>(&e.weaver, *phase);
        command->AddAction(*action);
        e.weaver.undoManager.Push(std::move(command));
        return "add phase";
    }

    std::string AddCheck() {
        Phase* phase = Any<Phase>();
        if (phase == nullptr)
            return "no check";
        Check* check = e.weaver.NewCheck();
        check->phaseId = phase->id;
        check->type = static_cast<std::int32_t>(Below(7));
        phase->AddCheckId(check->id);
        e.weaver.undoManager.Push(std::make_unique<UR_AddNewCheckCmd>(&e.weaver, *check));
        return "add check";
    }

    std::string AddCase() {
        Case* object = e.weaver.NewCase();
        for (int i = 0; i < 2; ++i) {
            if (Phase* phase = Any<Phase>(); phase != nullptr && phase->caseId == 0) {
                object->phaseIds.push_back(phase->id);
                phase->caseId = object->id;
            }
        }
        e.weaver.undoManager.Push(std::make_unique<UR_AddNewCaseCmd>(&e.weaver, *object));
        return "add case";
    }

    std::string AddSwitch() {
        Switch* object = e.weaver.NewSwitch();
        if (Case* member = Any<Case>(); member != nullptr && member->switchId == 0) {
            object->caseIds.push_back(member->id);
            member->switchId = object->id;
        }
        e.weaver.undoManager.Push(std::make_unique<UR_AddNewSwitchCmd>(&e.weaver, *object));
        return "add switch";
    }

    std::string AddLink() {
        const Phase* from = Any<Phase>();
        const Phase* to = Any<Phase>();
        if (from == nullptr || to == nullptr || from->outputs.empty() || to->inputs.empty())
            return "no link";
        const Link link{Below(2) == 0, from->id, from->outputs[Below(from->outputs.size())].name,
                        to->id, to->inputs[Below(to->inputs.size())].name};
        e.weaver.links.push_back(link);
        e.weaver.RefreshGateMarks();
        e.weaver.undoManager.Push(std::make_unique<UR_AddNewLinkCmd>(&e.weaver, link));
        return "add link";
    }

    std::string DeleteSelection() {
        SelectSome();
        e.weaver.DeleteSelection();
        return "delete selection";
    }

    std::string DeleteLinks() {
        if (e.weaver.links.empty())
            return "no links";
        const std::vector<Link> doomed{e.weaver.links[Below(e.weaver.links.size())]};
        e.weaver.undoManager.Push(std::make_unique<UR_DeleteLinksCmd>(&e.weaver, doomed));
        for (const Link& link : doomed)
            e.weaver.RemoveLink(link);
        e.weaver.RefreshGateMarks();
        return "delete links";
    }

    std::string Move() {
        SelectSome();
        const auto dx = static_cast<std::int32_t>(Below(200)) - 100;
        const auto dy = static_cast<std::int32_t>(Below(200)) - 100;
        for (EditorObject* member : e.weaver.selection.members) {
            member->posX += dx;
            member->posY += dy;
        }
        e.weaver.undoManager.Push(
            std::make_unique<UR_MoveObjectsCmd>(&e.weaver, dx, dy, e.weaver.selection.members));
        return "move";
    }

    std::string EditPhase() {
        Phase* phase = Any<Phase>();
        if (phase == nullptr)
            return "no phase";
        auto command = std::make_unique<UR_EditPhaseCmd>(&e.weaver, *phase);
        phase->name += "x";
        const Phase* target = Below(2) == 0 ? nullptr : Any<Phase>();
        phase->primaryLinkId = target != nullptr ? target->id : 0;
        command->Complete(*phase);
        e.weaver.undoManager.Push(std::move(command));
        return "edit phase";
    }

    std::string EditCase() {
        Case* object = Any<Case>();
        if (object == nullptr)
            return "no case";
        auto command = std::make_unique<UR_EditCaseCmd>(&e.weaver, *object);
        for (std::int32_t id : object->phaseIds) {
            if (Phase* phase = e.weaver.FindPhase(id))
                phase->caseId = 0;
        }
        object->phaseIds.clear();
        if (Phase* phase = Any<Phase>()) {
            object->phaseIds.push_back(phase->id);
            phase->caseId = object->id;
        }
        command->Complete(*object);
        e.weaver.undoManager.Push(std::move(command));
        return "edit case";
    }

    std::string EditOthers() {
        if (Check* check = Any<Check>()) {
            auto command = std::make_unique<UR_EditCheckCmd>(&e.weaver, *check);
            check->params.push_back(std::to_string(Below(100)));
            command->Complete(*check);
            e.weaver.undoManager.Push(std::move(command));
        }
        if (Switch* object = Any<Switch>()) {
            auto command = std::make_unique<UR_EditSwitchCmd>(&e.weaver, *object);
            object->number = static_cast<std::int32_t>(Below(5));
            command->Complete(*object);
            e.weaver.undoManager.Push(std::move(command));
        }
        return "edit check and switch";
    }

    std::string Paste() {
        SelectSome();
        e.weaver.ExportSelection(Weaver::kClipboardPath);
        e.weaver.selection.Clear();
        e.weaver.PlaceTemplate(Weaver::kClipboardPath, static_cast<int>(Below(800)),
                               static_cast<int>(Below(600)), 0, 0, 1.0f);
        return "paste";
    }

    std::mt19937 random_;

public:
    test::SampleEditor e;
    // The written document read back into a second editor.
    test::SampleEditor rebuilt;
};

} // namespace

TEST(RandomEditsTest, DocumentsHoldTogetherThroughLongRunsOfEditsUndoAndRedo) {
    // The generated template has every kind of object and link many times.
    for (unsigned seed = 1; seed <= 6; ++seed) {
        RandomEdits run(seed, seed > 4 ? 48 : 0);
        for (int step = 0; step < 300; ++step) {
            const std::string what = run.Step();
            SCOPED_TRACE("seed " + std::to_string(seed) + ", step " + std::to_string(step) + ": " +
                         what);
            run.CheckDocument();
            if (::testing::Test::HasFailure())
                return;
        }
    }
}
