#include "GestureFixture.h"
#include "document/TemplateDesc.h"
#include "undo/UR_AddCommands.h"
#include "undo/UR_DeleteLinksCmd.h"
#include "undo/UR_EditCommands.h"
#include "undo/UR_EditPhaseCmd.h"

#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

using Ids = std::vector<std::int32_t>;

const char* const kBlock = "scg\\0\\blocks\\air\\patrol.group";

// What a property dialog was shown, beyond its name.
struct Shown {
    std::string dialog;
    std::vector<std::int32_t> firstMembers;
    std::int32_t preselectedPhaseId = 0;
    std::vector<std::string> params;
};

class CreationCommandsTest : public GestureFixture {
protected:
    // Answers the next dialog, noting what it was shown, after `edit`.
    void Answer(bool accept, ScriptedPropertyDialogs::Edit edit = {}) {
        dialogs.QueueOutcome(accept, [this, edit](DialogCall& call) {
            Shown seen{call.dialog, call.firstMembers, call.preselectedPhaseId, {}};
            if (const Check* check = As<Check>(call.object))
                seen.params = check->params;
            shown.push_back(seen);
            if (edit)
                edit(call);
        });
    }
    static void GiveBlock(DialogCall& call) { As<Phase>(call.object)->blocks["main"] = kBlock; }
    static ScriptedPropertyDialogs::Edit NamedWithBlock(const std::string& name) {
        return [name](DialogCall& call) {
            GiveBlock(call);
            As<Phase>(call.object)->name = name;
        };
    }
    static ScriptedPropertyDialogs::Edit Typed(const std::string& text) {
        return [text](DialogCall& call) { *call.text = text; };
    }
    // Each action of the phase as "objectName.name at x,y".
    std::vector<std::string> ActionsOf(const Phase& phase) const {
        std::vector<std::string> texts;
        for (std::int32_t id : phase.actionIds) {
            const Action* action = As<Action>(weaver.FindObject(id));
            if (action == nullptr)
                return {"missing action"};
            texts.push_back(action->objectName + "." + action->name + " at " +
                            std::to_string(action->posX) + "," + std::to_string(action->posY));
        }
        return texts;
    }

    std::vector<Shown> shown;
};

} // namespace

TEST_F(CreationCommandsTest, AddPhaseKeepsItsPhaseOnlyWithAFreeNameAndABlock) {
    PhaseAt(weaver, "Taken", 0, 0);
    std::string offered;
    Answer(false, [&](DialogCall& call) { offered = As<Phase>(call.object)->name; });
    Answer(true, NamedWithBlock("Taken"));
    Answer(true, NamedWithBlock(""));
    Answer(true);
    Answer(true, GiveBlock);
    for (int i = 0; i < 5; ++i)
        weaver.AddPhase();

    EXPECT_EQ(offered, "PHASE_2");
    EXPECT_EQ(shown.size(), 5u);
    // Each refusal spent its id.
    ASSERT_NE(weaver.pendingPhase, nullptr);
    EXPECT_EQ(weaver.pendingPhase->id, 6);
    EXPECT_EQ(weaver.pendingPhase->name, "PHASE_6");
    EXPECT_EQ(weaver.objects.size(), 2u);
    EXPECT_EQ(weaver.interactionState(), InteractionState::StatePlacePhase);
    EXPECT_EQ(weaver.currentCursor, CanvasCursor::Place);
    EXPECT_EQ(Commands(), 0u);
    // A second Add Phase waits for this one to be placed.
    weaver.AddPhase();
    EXPECT_EQ(shown.size(), 5u);
}

TEST_F(CreationCommandsTest, TheReleasePlacesThePhaseWithAnActionForEachBlockPropertyButScript) {
    Answer(true, [](DialogCall& call) {
        GiveBlock(call);
        As<Phase>(call.object)->blockProperties = {{"Gunner", {"Model", "Script", "Skin"}},
                                                   {"Alpha", {"Country"}}};
    });
    weaver.AddPhase();
    Phase* phase = weaver.pendingPhase;
    ASSERT_NE(phase, nullptr);
    e.view.viewY = 300; // the release lands on world y -100
    ClickAt(300, 200);

    EXPECT_EQ(At(phase), (Point{300, -100}));
    EXPECT_EQ(weaver.interactionState(), InteractionState::StateIdle);
    EXPECT_EQ(weaver.pendingPhase, nullptr);
    // Key order, stacking upward from y - 21.5, each truncated toward zero.
    EXPECT_EQ(phase->actionIds, (Ids{2, 3, 4}));
    EXPECT_EQ(ActionsOf(*phase),
              (std::vector<std::string>{"Alpha.Country at 366,-121", "Gunner.Model at 366,-154",
                                        "Gunner.Skin at 366,-187"}));
    EXPECT_EQ(As<Action>(weaver.FindObject(4))->phaseId, phase->id);
    EXPECT_TRUE(HistoryEndsWith<UR_AddNewPhaseCmd>(1));

    weaver.Undo();
    EXPECT_TRUE(weaver.objects.empty());
    weaver.Redo();
    EXPECT_EQ(weaver.objects.size(), 4u);
    EXPECT_EQ(At(weaver.FindObject(3)), (Point{366, -154}));
}

TEST_F(CreationCommandsTest, AddCheckPrefillsEachTypesDialog) {
    Phase* phase = PhaseAt(weaver, "P", 100, 200);
    weaver.AddCheck(CheckRange);
    EXPECT_TRUE(shown.empty()); // no phase selected
    EXPECT_EQ(weaver.objects.size(), 1u);
    Select(phase);

    const std::vector<std::pair<std::int32_t, std::vector<std::string>>> prefilled{
        {CheckSquad, {}},
        {CheckLocationType, {"Airfield"}},
        {CheckCoalition, {}},
        {CheckRange, {kPrimaryLinkPhase, "closest_outof", "1000"}},
        {CheckInRadius, {kPrimaryLinkPhase, "1000"}},
        {CheckInSector, {kPrimaryLinkPhase, "45"}},
    };
    for (const auto& [type, params] : prefilled) {
        Answer(false);
        weaver.AddCheck(type);
        EXPECT_EQ(shown.back().dialog, CheckDialogName(type));
        EXPECT_EQ(shown.back().params, params) << shown.back().dialog;
    }
    EXPECT_EQ(weaver.objects.size(), 1u);
    EXPECT_TRUE(phase->checkIds.empty());
}

TEST_F(CreationCommandsTest, AddRuleActionAsksForANameFreeInThePhase) {
    Phase* phase = PhaseAt(weaver, "P", 100, 200);
    ActionOf(weaver, *phase, "Pilot", "Skin");
    Select(phase);
    const std::size_t before = weaver.objects.size();

    dialogs.QueueOutcome(false);
    dialogs.QueueOutcome(true, Typed(""));
    dialogs.QueueOutcome(true, Typed("Skin"));
    for (int i = 0; i < 3; ++i)
        weaver.AddRuleAction();
    for (const auto& answered : dialogs.Log())
        EXPECT_EQ(answered.title, "Enter Phase Action Name");
    EXPECT_EQ(e.prompts.MessageTexts(),
              std::vector<std::string>{"Action with such name already exists in this Phase!"});
    EXPECT_EQ(e.prompts.Log().back().icon, MessageIcon::Stop);
    EXPECT_EQ(weaver.objects.size(), before);

    dialogs.QueueOutcome(true, Typed("Ammo"));
    dialogs.QueueOutcome(false);
    weaver.AddRuleAction();
    EXPECT_EQ(dialogs.Log().back().dialog, "ActionGeneralPropertiesDlg");
    EXPECT_EQ(weaver.objects.size(), before);

    for (const char* name : {"Ammo", "Fuel"}) {
        dialogs.QueueOutcome(true, Typed(name));
        dialogs.QueueOutcome(true);
        weaver.AddRuleAction();
    }
    EXPECT_EQ(ActionsOf(*phase), (std::vector<std::string>{"Pilot.Skin at 0,0", ".Ammo at 500,90",
                                                           ".Fuel at 500,130"}));
    EXPECT_TRUE(HistoryEndsWith<UR_AddNewActionCmd>(2));
}

TEST_F(CreationCommandsTest, OnlyEditsThatPassTheLaunchersChecksBecomeCommands) {
    Phase* phase = PhaseAt(weaver, "P", 0, 0);
    PhaseAt(weaver, "Other", 400, 0);
    const auto rename = [](const char* name) {
        return [name](DialogCall& call) { As<Phase>(call.object)->name = name; };
    };
    dialogs.QueueOutcome(true, rename("Renamed"));
    weaver.EditObjectProperties(phase);
    EXPECT_TRUE(HistoryEndsWith<UR_EditPhaseCmd>(1));
    weaver.Undo();
    EXPECT_EQ(phase->name, "P");
    dialogs.QueueOutcome(true, rename("Other"));
    weaver.EditObjectProperties(phase);
    EXPECT_EQ(Commands(), 0u);

    // The model editor needs the block property that a rule action lacks,
    // so such an action can never be accepted; what its dialog wrote stays.
    const auto rules = [](std::vector<ActionRule> given) {
        return [given](DialogCall& call) { As<Action>(call.object)->rules = given; };
    };
    const ActionRule model{"set_model", {"fighter", "ally"}, ""};
    Action* byHand = ActionOf(weaver, *phase, "", "Model");
    dialogs.QueueOutcome(true, rules({model}));
    weaver.EditObjectProperties(byHand);
    EXPECT_EQ(Commands(), 0u);
    EXPECT_EQ(byHand->rules, std::vector<ActionRule>{model});
    Action* fromBlock = ActionOf(weaver, *phase, "Pilot", "Model");
    dialogs.QueueOutcome(true, rules({{"set_model", {"fighter", ""}, ""}}));
    dialogs.QueueOutcome(true, rules({model, model}));
    dialogs.QueueOutcome(true, rules({model}));
    for (int i = 0; i < 3; ++i)
        weaver.EditObjectProperties(fromBlock);
    EXPECT_TRUE(HistoryEndsWith<UR_EditActionCmd>(1));

    Action* skin = ActionOf(weaver, *phase, "Pilot", "Skin");
    dialogs.QueueOutcome(true, rules({{"set_skin", {""}, ""}}));
    dialogs.QueueOutcome(true, rules({{"set_country", {"$s"}, ""}}));
    dialogs.QueueOutcome(true, rules({{"set_skin", {"$s", "extra"}, ""}}));
    for (int i = 0; i < 3; ++i)
        weaver.EditObjectProperties(skin);
    EXPECT_EQ(Commands(), 2u);

    // A free check opens nothing; a case left without phases is refused.
    const std::size_t opened = dialogs.Log().size();
    weaver.EditObjectProperties(CheckOf(weaver, *phase, CheckFree));
    EXPECT_EQ(dialogs.Log().size(), opened);
    dialogs.QueueOutcome(true);
    weaver.EditObjectProperties(CaseAt(weaver, "K", 0, 0));
    EXPECT_EQ(Commands(), 2u);
}

// A new object never lands hidden under a gate label or another object of
// its phase: it takes the free spot nearest to where it would have stood.
TEST_F(CreationCommandsTest, NewChecksActionsAndUnlinkersLandClear) {
    Phase* phase = PhaseAt(weaver, "P", 100, 200);
    Select(phase);
    const auto overlap = [](const EditorObject& a, const ScreenRect& b) {
        const ScreenRect r = a.GetScreenRect(0, 0, 1.0f);
        return r.left < b.right && b.left < r.right && r.top < b.bottom && b.top < r.bottom;
    };
    // The label of the output gate at y 275 runs from x 302 to 448.
    const ScreenRect outputLabel{302, 257, 448, 273};
    for (int i = 0; i < 5; ++i)
        ActionOf(weaver, *phase, "Pilot", "Property" + std::to_string(i));
    // The sixth action would stand at (500, 250), over the label.
    dialogs.QueueOutcome(true, Typed("Ammo"));
    dialogs.QueueOutcome(true);
    weaver.AddRuleAction();
    const Action& ammo = *As<Action>(weaver.objects.back().get());
    EXPECT_FALSE(overlap(ammo, outputLabel));
    EXPECT_EQ(ammo.posX, 500);
    EXPECT_LE(std::abs(ammo.posY - 250), 30);

    // The first check would stand at (166, 372), where an action already is.
    Action* inTheWay = ActionOf(weaver, *phase, "Pilot", "Skin");
    inTheWay->posX = 166;
    inTheWay->posY = 372;
    weaver.AddCheck(CheckFree);
    const Check& check = *As<Check>(weaver.objects.back().get());
    EXPECT_FALSE(overlap(check, inTheWay->GetScreenRect(0, 0, 1.0f)));
    EXPECT_LE(std::abs(check.posY - 372) + std::abs(check.posX - 166), 60);

    // The unlinker would stand at (100, 50), where an action already is.
    Action* above = ActionOf(weaver, *phase, "Pilot", "Country");
    above->posX = 100;
    above->posY = 50;
    dialogs.QueueOutcome(true, [&](DialogCall& call) {
        Unlinker& unlinker = *As<Unlinker>(call.object);
        unlinker.phaseId = phase->id;
        unlinker.posX = 100;
        unlinker.posY = 50;
        unlinker.inputGates = {"in"};
    });
    weaver.AddUnlinker();
    const Unlinker& unlinker = *As<Unlinker>(weaver.objects.back().get());
    EXPECT_FALSE(overlap(unlinker, above->GetScreenRect(0, 0, 1.0f)));
}

// A phase dialog gives the phase its block's gates anew, all open; the links
// must then close those they use again, also after an undo or a redo.
TEST_F(CreationCommandsTest, APhaseEditKeepsItsLinkedGatesMarkedAsUsed) {
    Phase* a = PhaseAt(weaver, "A", 0, 0);
    Phase* b = PhaseAt(weaver, "B", 500, 0);
    weaver.links.push_back(Link{false, a->id, "out", b->id, "in"});
    weaver.RefreshGateMarks();
    const auto reopenGates = [](DialogCall& call) {
        Phase& phase = *As<Phase>(call.object);
        phase.inputs = {GateSlot{"in"}};
        phase.outputs = {GateSlot{"out"}};
    };
    dialogs.QueueOutcome(true, reopenGates);
    weaver.EditObjectProperties(a);
    EXPECT_FALSE(a->outputs[0].openMark);
    a->outputs[0].openMark = true;
    weaver.Undo();
    EXPECT_FALSE(a->outputs[0].openMark);
    a->outputs[0].openMark = true;
    weaver.Redo();
    EXPECT_FALSE(a->outputs[0].openMark);
}
