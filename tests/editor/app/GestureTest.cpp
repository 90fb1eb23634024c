#include "GestureFixture.h"
#include "canvas/RecordingSurface.h"
#include "document/TemplateDesc.h"
#include "undo/UR_DeleteLinksCmd.h"
#include "undo/UR_EditPhaseCmd.h"
#include "undo/UR_MoveObjectsCmd.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace lw;
using namespace lw::test;

namespace {

using Members = std::vector<EditorObject*>;

class GestureTest : public GestureFixture {
protected:
    // What a click at the point would pick: the link's source phase, or the
    // phase whose geometry line it is.
    std::int32_t PickedLinkSource(int x, int y) {
        weaver.selectedLink = Link{};
        weaver.PickLinkAt(x, y);
        return weaver.selectedLink.fromPhaseId;
    }
    std::int32_t PickedGeometryPhase(int x, int y) {
        weaver.pickedGeometryPhase = 0;
        weaver.PickLinkAt(x, y);
        return static_cast<std::int32_t>(weaver.pickedGeometryPhase);
    }
    void AddLink(const Phase& from, const Phase& to) {
        weaver.links.push_back(Link{false, from.id, "out", to.id, "in"});
        weaver.RefreshGateMarks();
    }
};

} // namespace

// A link from A through B to C, and A's primary geometry line to T, which
// crosses B 25 pixels above the link.
TEST_F(GestureTest, DeleteTakesThePickedLinkThenThePickedGeometryLineThenTheSelection) {
    weaver.options.DrawInputOutputs = true;
    weaver.options.DrawGeometry = true;
    Phase* a = PhaseAt(weaver, "A", 0, 0);
    AddLink(*a, *PhaseAt(weaver, "C", 800, 0));
    const std::int32_t b = PhaseAt(weaver, "B", 400, 0)->id;
    const std::int32_t t = PhaseAt(weaver, "T", 1000, 50)->id;
    a->primaryLinkId = t;

    // A press anywhere drops what was picked before.
    ClickAt(380, 75);
    EXPECT_EQ(weaver.selectedLink.fromPhaseId, a->id);
    ClickAt(500, 120);
    EXPECT_EQ(weaver.selectedLink.fromPhaseId, 0);

    ClickAt(500, 75);
    EXPECT_EQ(Selected(), Members{weaver.FindObject(b)});
    input.Key(CanvasKey::Delete);
    EXPECT_TRUE(weaver.links.empty());
    EXPECT_TRUE(a->outputs[0].openMark);
    EXPECT_TRUE(HistoryEndsWith<UR_DeleteLinksCmd>(1));
    EXPECT_EQ(a->primaryLinkId, t);
    EXPECT_EQ(Selected().size(), 1u);

    ClickAt(500, 50);
    EXPECT_EQ(weaver.pickedGeometryPhase, static_cast<std::uint32_t>(a->id));
    input.Key(CanvasKey::Delete);
    EXPECT_EQ(a->primaryLinkId, 0);
    EXPECT_TRUE(HistoryEndsWith<UR_EditPhaseCmd>(2));
    EXPECT_NE(weaver.FindObject(b), nullptr);

    input.Key(CanvasKey::Delete);
    EXPECT_EQ(weaver.FindObject(b), nullptr);
    EXPECT_EQ(Commands(), 3u);
    for (int i = 0; i < 3; ++i)
        weaver.Undo();
    EXPECT_NE(weaver.FindObject(b), nullptr);
    EXPECT_EQ(a->primaryLinkId, t);
    EXPECT_EQ(weaver.links.size(), 1u);
}

// A line is hit within six pixels, so that a thin link is no game of skill.
TEST_F(GestureTest, LinesArePickedWithinSixPixelsAndPastTheirEndsByTheDistanceToTheEnd) {
    weaver.options.DrawInputOutputs = true;
    weaver.options.DrawGeometry = true;
    // A slanted link from (350, 75) to (450, 375).
    Phase* a = PhaseAt(weaver, "A", 0, 0);
    AddLink(*a, *PhaseAt(weaver, "C", 600, 300));
    EXPECT_EQ(PickedLinkSource(406, 225), a->id); // 18 / sqrt(10), about 5.7 pixels
    EXPECT_EQ(PickedLinkSource(407, 225), 0);     // 21 / sqrt(10), about 6.6 pixels

    // A level link from (350, 1075) to (650, 1075); past an end, the
    // distance is the one to the end, not to the line drawn on.
    Phase* d = PhaseAt(weaver, "D", 0, 1000);
    AddLink(*d, *PhaseAt(weaver, "E", 800, 1000));
    EXPECT_EQ(PickedLinkSource(500, 1080), d->id);
    EXPECT_EQ(PickedLinkSource(500, 1081), 0);
    EXPECT_EQ(PickedLinkSource(655, 1075), d->id);
    EXPECT_EQ(PickedLinkSource(656, 1075), 0);
    EXPECT_EQ(PickedLinkSource(345, 1075), d->id);
    EXPECT_EQ(PickedLinkSource(344, 1075), 0);
    // A link wins over a geometry line as near: Q's starts at (500, 1075).
    Phase* q = PhaseAt(weaver, "Q", 434, 1025);
    q->primaryLinkId = PhaseAt(weaver, "R", 500, 1500)->id;
    weaver.pickedGeometryPhase = 0;
    EXPECT_EQ(PickedLinkSource(500, 1076), d->id);
    EXPECT_EQ(weaver.pickedGeometryPhase, 0u);

    // Geometry lines of every phase count, a server phase's too.
    Phase* g = PhaseAt(weaver, "G", 0, 2000);
    g->generationType = GenerationServerSetPos;
    g->primaryLinkId = PhaseAt(weaver, "H", 1000, 2050)->id; // (66, 2050) to (1000, 2050)
    g->secondaryLinkId = PhaseAt(weaver, "J", 66, 2600)->id; // (66, 2050) to (66, 2600)
    EXPECT_EQ(PickedGeometryPhase(500, 2056), 0);
    EXPECT_EQ(PickedGeometryPhase(500, 2055), g->id);
    EXPECT_TRUE(weaver.pickedIsPrimary);
    EXPECT_EQ(PickedGeometryPhase(67, 2300), g->id);
    EXPECT_FALSE(weaver.pickedIsPrimary);

    weaver.options.DrawInputOutputs = false;
    weaver.options.DrawGeometry = false;
    EXPECT_EQ(PickedLinkSource(500, 1075), 0);
    EXPECT_EQ(PickedGeometryPhase(500, 2050), 0);
}

TEST_F(GestureTest, EscapeEndsPlacingsButNotBands) {
    dialogs.QueueOutcome(true, [](DialogCall& call) {
        As<Phase>(call.object)->blocks["main"] = "scg\\0\\blocks\\air\\patrol.group";
    });
    weaver.AddPhase();
    ASSERT_EQ(weaver.interactionState(), InteractionState::StatePlacePhase);
    input.Key(CanvasKey::Escape);
    EXPECT_EQ(weaver.pendingPhase, nullptr);
    EXPECT_EQ(weaver.currentCursor, CanvasCursor::Arrow);
    Phase* member = PhaseAt(weaver, "M", 0, 1000);
    Select(member);
    dialogs.QueueOutcome(
        true, [](DialogCall& call) { As<Case>(call.object)->phaseIds = call.firstMembers; });
    weaver.AddCase();
    ASSERT_EQ(weaver.interactionState(), InteractionState::StatePlaceCase);
    input.Key(CanvasKey::Escape);
    weaver.selection.Clear();
    Select(CaseAt(weaver, "C", 0, 1400));
    dialogs.QueueOutcome(true, [](DialogCall& call) {
        As<Switch>(call.object)->caseIds = call.firstMembers;
        As<Switch>(call.object)->number = 1;
    });
    weaver.AddSwitch();
    ASSERT_EQ(weaver.interactionState(), InteractionState::StatePlaceSwitch);
    input.Key(CanvasKey::Escape);
    EXPECT_EQ(weaver.pendingCase, nullptr);
    EXPECT_EQ(weaver.pendingSwitch, nullptr);
    EXPECT_EQ(weaver.objects.size(), 2u) << "only the case's phase and the switch's case";
    EXPECT_EQ(Commands(), 0u);

    input.LeftDown(600, 600, kLeftButton);
    input.Key(CanvasKey::Escape);
    EXPECT_EQ(weaver.interactionState(), InteractionState::StateRubberBand);
    EXPECT_TRUE(weaver.bandActive);
}

// S, a fractal phase, already leads its secondary link to X; Y overlaps X and
// comes after it in the list.
TEST_F(GestureTest, AHandDrawnLinkSkipsTheSourceTheEmptyCanvasAndTheOtherLinksTarget) {
    Phase* source = PhaseAt(weaver, "S", 0, 0);
    source->generationType = GenerationFractal;
    const std::int32_t x = PhaseAt(weaver, "X", 400, 0)->id;
    const std::int32_t y = PhaseAt(weaver, "Y", 450, 50)->id;
    source->secondaryLinkId = x;
    Select(source);
    weaver.StartGeometryLink(true);
    for (const auto& [px, py] : {Point{50, 50}, Point{300, 600}, Point{420, 20}}) {
        ClickAt(px, py);
        EXPECT_EQ(weaver.interactionState(), InteractionState::StatePrimaryLink) << px << "," << py;
        EXPECT_EQ(weaver.pendingPhase, source);
    }
    EXPECT_EQ(Commands(), 0u);

    ClickAt(500, 100);
    EXPECT_EQ(source->primaryLinkId, y);
    EXPECT_EQ(source->secondaryLinkId, x);
    EXPECT_EQ(weaver.interactionState(), InteractionState::StateIdle);
    EXPECT_EQ(weaver.pendingPhase, nullptr);
    EXPECT_TRUE(HistoryEndsWith<UR_EditPhaseCmd>(1));
    weaver.Undo();
    EXPECT_EQ(source->primaryLinkId, 0);
    EXPECT_EQ(source->secondaryLinkId, x);
}

// The link under a resting pointer is shown, so that the user sees what a
// click would pick; it is drawn with its own pen over the others.
TEST_F(GestureTest, TheLinkUnderTheRestingPointerIsHighlighted) {
    weaver.options.DrawInputOutputs = true;
    Phase* a = PhaseAt(weaver, "A", 0, 1000);
    AddLink(*a, *PhaseAt(weaver, "B", 800, 1000)); // from (350, 1075) to (650, 1075)
    const int repaints = e.host.repaints;
    input.Move(500, 1080, 0);
    EXPECT_EQ(weaver.hoveredLink.fromPhaseId, a->id);
    EXPECT_EQ(e.host.repaints, repaints + 1);
    RecordingSurface dc;
    weaver.PaintScene(dc, 0, 0, 1.0f);
    EXPECT_NE(std::find(dc.calls.begin(), dc.calls.end(), "pen solid 3 255,170,60"),
              dc.calls.end());
    input.Move(500, 1081, 0);
    EXPECT_EQ(weaver.hoveredLink.fromPhaseId, 0);
    // Nothing is highlighted while a gesture is under way.
    input.LeftDown(500, 500, kLeftButton);
    input.Move(500, 1080, kLeftButton);
    EXPECT_EQ(weaver.hoveredLink.fromPhaseId, 0);
}
