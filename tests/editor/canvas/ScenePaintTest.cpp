#include "canvas/CanvasPaint.h"
#include "canvas/RecordingSurface.h"
#include "canvas/ScenePainter.h"
#include "document/TemplateDesc.h"
#include "support/SampleEditor.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace lw;
using ::testing::ElementsAre;
using Calls = std::vector<std::string>;

namespace {

// Whether `run` appears in `calls` as one unbroken stretch.
bool HasRun(const Calls& calls, const Calls& run) {
    return std::search(calls.begin(), calls.end(), run.begin(), run.end()) != calls.end();
}

std::ptrdiff_t IndexOf(const Calls& calls, const std::string& call) {
    return std::find(calls.begin(), calls.end(), call) - calls.begin();
}

std::size_t CountStarting(const Calls& calls, const std::string& prefix) {
    return std::count_if(calls.begin(), calls.end(),
                         [&](const std::string& call) { return call.rfind(prefix, 0) == 0; });
}

std::string Listing(const Calls& calls) {
    std::string text;
    for (const std::string& call : calls)
        text += "\n  " + call;
    return text;
}

class ScenePaintTest : public ::testing::Test {
protected:
    ScenePaintTest() { ShowLayers(true); }

    void ShowLayers(bool shown) {
        EditorOptions& o = weaver.options;
        o.DrawInputOutputs = o.DrawSwitchAndCases = o.DrawChecks = o.DrawActions = o.DrawGeometry =
            shown;
    }

    // A phase that needs no geometry link, so that its outline is black.
    Phase* AddPhase(int x, int y, std::int32_t type = GenerationServerSetPos) {
        Phase* phase = Placed(weaver.NewPhase(), x, y);
        phase->generationType = type;
        return phase;
    }

    template <typename T> static T* Placed(T* object, int x, int y) {
        object->posX = x;
        object->posY = y;
        return object;
    }

    Calls Paint(float scale = 1.0f, int viewX = 0, int viewY = 0) const {
        RecordingSurface dc;
        weaver.PaintScene(dc, viewX, viewY, scale);
        return dc.calls;
    }

    test::SampleEditor editor;
    Weaver& weaver = editor.weaver;
};

} // namespace

TEST_F(ScenePaintTest, PhaseOutlineTellsAMissingMandatoryLinkAndSelectionHidesItsColour) {
    ShowLayers(false);
    Phase* phase = AddPhase(100, 50, GenerationRandom);
    phase->name = "Raid";
    phase->colorIndex = 4;
    EXPECT_THAT(Paint(),
                ElementsAre("pen solid 2 255,0,0", "brush 255,150,155", "rectangle 100,50,300,200",
                            "text \"Raid\" 105,55,295,195 centre noclip"));

    // The insets of the text stay five pixels at any zoom.
    phase->primaryLinkId = 7;
    EXPECT_THAT(Paint(0.5f, 10, -20),
                ElementsAre("pen solid 1 0,0,0", "brush 255,150,155", "rectangle 55,15,155,90",
                            "text \"Raid\" 60,20,150,85 centre noclip"));

    phase->generationType = GenerationFractal;
    EXPECT_EQ(Paint()[0], "pen solid 2 255,0,0") << "a fractal phase needs a secondary link too";
    phase->generationType = GenerationServerWaypoint;
    phase->primaryLinkId = 0;
    EXPECT_EQ(Paint()[0], "pen solid 1 0,0,0");

    weaver.selection.Add(phase);
    EXPECT_EQ(Paint()[1], "brush 248,244,178");
}

TEST_F(ScenePaintTest, GatesAreStubsWithLabelsAndArrowheadsPointingRight) {
    ShowLayers(false);
    weaver.options.DrawInputOutputs = true;
    Phase* phase = AddPhase(0, 0);
    phase->inputs = {GateSlot{"start", true}, GateSlot{"abort", false}};
    phase->outputs = {GateSlot{"done", false}};
    const Calls calls = Paint();
    EXPECT_THAT(Calls(calls.begin() + 4, calls.end()),
                ElementsAre(
                    // Open inputs are red; two inputs stand at 50 and 100.
                    "pen solid 2 255,0,0", "line -150,50 0,50",
                    "text \"start\" -148,32,-2,48 bottom singleline noclip", "line -15,40 0,50",
                    "line -15,60 0,50", "pen solid 1 0,0,0", "line -150,100 0,100",
                    "text \"abort\" -148,82,-2,98 bottom singleline noclip", "line -15,90 0,100",
                    "line -15,110 0,100",
                    // The output's tip is at the box, its barbs inside it.
                    "pen solid 1 0,0,0", "line 200,75 350,75",
                    "text \"done\" 202,57,348,73 right bottom singleline noclip",
                    "line 185,65 200,75", "line 185,85 200,75"))
        << Listing(calls);

    // Six gates step by 150 / 7 = 21 units; the label insets do not scale.
    phase->inputs.assign(6, GateSlot{"in", false});
    EXPECT_TRUE(HasRun(Paint(2.0f), {"pen solid 1 0,0,0", "line -300,42 0,42",
                                     "text \"in\" -298,24,-2,40 bottom singleline noclip",
                                     "line -30,22 0,42", "line -30,62 0,42"}));
}

TEST_F(ScenePaintTest, LinksJoinTheFarEndsOfGatesAndThePickedLinkIsDrawnLast) {
    ShowLayers(false);
    weaver.options.DrawInputOutputs = true;
    Phase* from = AddPhase(0, 0);
    from->outputs = {GateSlot{"go", false}};
    Phase* to = AddPhase(1000, 0);
    to->inputs = {GateSlot{"in", false}};
    const Link objectLink{true, from->id, "go", to->id, "in"};
    weaver.links = {objectLink, Link{false, from->id, "renamed", to->id, "in"}};
    weaver.selectedLink = objectLink;
    const Calls calls = Paint();
    EXPECT_THAT(Calls(calls.end() - 6, calls.end()),
                ElementsAre("pen dash 1 150,200,150", "line 350,75 850,75",
                            // A gate that no longer exists sends its link to the corner.
                            "pen solid 1 0,0,255", "line 0,0 850,75", "pen solid 2 10,255,10",
                            "line 350,75 850,75"))
        << Listing(calls);
}

TEST_F(ScenePaintTest, GeometryShowsTypeParametersAndLinksWithAThickLastTenth) {
    ShowLayers(false);
    weaver.options.DrawGeometry = true;
    const Phase* target = AddPhase(1000, 0);
    const Phase* second = AddPhase(0, 1000);
    Phase* line = AddPhase(0, 0, GenerationLine);
    line->geoParams = {"30", "500", "12", "7", "9"};
    line->primaryLinkId = target->id;
    line->secondaryLinkId = second->id;
    Calls calls = Paint();
    EXPECT_TRUE(HasRun(calls, {"textcolour 0,0,200",
                               "text \"line(30,500)\" 5,5,195,145 centre vcentre singleline noclip",
                               "textcolour 200,0,0",
                               "text \"12; 7; 9\" 5,5,195,145 centre bottom singleline noclip",
                               "textcolour 0,0,0", "pen solid 1 0,0,255", "line 66,50 1000,0",
                               "pen solid 3 0,0,255", "line 1000,0 907,5", "pen solid 1 255,0,0",
                               "line 66,50 0,1000", "pen solid 2 255,0,0", "line 0,1000 6,905"}))
        << Listing(calls);
    EXPECT_TRUE(HasRun(calls, {"text \"server_setpos()\" 1005,5,1195,145 centre vcentre "
                               "singleline noclip",
                               "textcolour 0,0,0", "pen solid 1 0,0,0"}))
        << "a server_setpos phase shows no parameter and no link" << Listing(calls);

    // A server_waypoint phase needs no link but shows the one it has.
    Phase* waypoint = AddPhase(2000, 0, GenerationServerWaypoint);
    waypoint->geoParams = {"in_2"};
    waypoint->primaryLinkId = target->id;
    weaver.pickedGeometryPhase = static_cast<std::uint32_t>(line->id);
    weaver.pickedIsPrimary = false;
    calls = Paint();
    EXPECT_THAT(Calls(calls.end() - 8, calls.end()),
                ElementsAre("text \"server_waypoint(in_2)\" 2005,5,2195,145 centre vcentre "
                            "singleline noclip",
                            "textcolour 0,0,0", "pen solid 1 0,0,255", "line 2066,50 1000,0",
                            "pen solid 3 0,0,255", "line 1000,0 1106,5",
                            // The picked link, after all phases.
                            "pen solid 2 10,255,10", "line 66,50 0,1000"))
        << Listing(calls);
}

TEST_F(ScenePaintTest, CasesSwitchesChecksActionsAndUnlinkersLeadToTheirPhase) {
    const Phase* phase = AddPhase(0, 0);
    Case* item = Placed(weaver.NewCase(), -300, 0);
    item->phaseIds = {phase->id, 999};
    Switch* choice = Placed(weaver.NewSwitch(), -600, 0);
    choice->number = 1;
    choice->caseIds = {item->id, 998};
    Check* check = Placed(weaver.NewCheck(), 66, 172);
    check->phaseId = phase->id;
    check->type = CheckRange;
    weaver.selection.Add(check);
    Action* action = Placed(weaver.NewAction(), 66, -22);
    action->phaseId = phase->id;
    action->name = "Weather";
    Unlinker* unlinker = Placed(weaver.NewUnlinker(), 300, 300);
    unlinker->phaseId = 999;
    const Calls calls = Paint();

    // An unknown phase sends its line to the corner; an unknown case draws
    // nothing. A case's name stands right of its circle, so that one case can
    // be told from another.
    EXPECT_TRUE(HasRun(calls, {"pen solid 1 0,0,0", "brush 255,255,255", "ellipse -340,-40,-260,40",
                               "text \"case_2\" -256,-40,-256,40 vcentre singleline noclip",
                               "pen solid 1 0,0,255", "line -300,0 66,50", "line -300,0 0,0"}))
        << Listing(calls);
    EXPECT_TRUE(
        HasRun(calls, {"pen solid 1 255,0,0", "brush 255,255,255", "ellipse -650,-50,-550,50",
                       "line -600,0 -300,0", "pen solid 1 0,0,0",
                       "text \"1 of 2\" -650,-50,-550,50 centre vcentre singleline noclip"}))
        << Listing(calls);
    // The check's type starts right of its box and runs out of it.
    EXPECT_TRUE(
        HasRun(calls, {"pen solid 1 0,0,0", "brush 248,244,178", "roundrect 51,157,81,187 15,15",
                       "pen solid 1 150,200,150", "line 66,172 66,50",
                       "text \"range\" 83,157,113,187 vcentre singleline noclip"}))
        << Listing(calls);
    EXPECT_TRUE(
        HasRun(calls, {"pen solid 1 0,0,0", "brush 255,255,255", "roundrect -14,-37,146,-7 15,15",
                       "pen solid 1 150,200,150", "line 66,-22 66,50",
                       "text \"*:Weather\" -14,-37,146,-7 centre vcentre singleline "
                       "noclip"}))
        << Listing(calls);
    EXPECT_THAT(Calls(calls.end() - 6, calls.end()),
                ElementsAre("pen solid 1 0,0,0", "brush 255,255,255", "rectangle 280,280,320,320",
                            "line 280,320 320,280", "line 280,280 320,320", "line 300,300 0,0"));
}

TEST_F(ScenePaintTest, LayersGoInTheirOrderBetweenTheBandAndTheGestureLine) {
    // Made in the reverse of the layer order, so that list order cannot pass for it.
    Placed(weaver.NewUnlinker(), 300, 300);
    Placed(weaver.NewAction(), 66, -22);
    Placed(weaver.NewCheck(), 66, 172);
    Placed(weaver.NewSwitch(), -600, 0);
    Placed(weaver.NewCase(), -300, 0);
    Phase* phase = AddPhase(0, 0);
    phase->outputs = {GateSlot{"go", false}};
    weaver.links = {Link{true, phase->id, "go", phase->id, "go"}};
    weaver.bandActive = true;
    weaver.bandRect = ScreenRect{10, 20, 110, 120};
    weaver.selection.Add(phase);
    weaver.selection.Recalculate();
    // The gesture starts from a type that has the link, then the phase is
    // drawn as a server-placed one again.
    phase->generationType = GenerationRandom;
    weaver.StartGeometryLink(true);
    phase->generationType = GenerationServerSetPos;
    ASSERT_EQ(weaver.pendingPhase, phase);
    weaver.pointerX = 500;
    weaver.pointerY = 400;

    Calls calls = Paint();
    const std::vector<std::string> order = {
        "rectangle 10,20,110,120",        "rectangle 0,0,200,150",
        "pen dash 1 150,200,150",         "ellipse -340,-40,-260,40",
        "ellipse -650,-50,-550,50",       "roundrect 51,157,81,187 15,15",
        "roundrect -14,-37,146,-7 15,15", "rectangle 280,280,320,320",
        "bumpedge 10,20,110,120"};
    for (std::size_t i = 1; i < order.size(); ++i)
        EXPECT_LT(IndexOf(calls, order[i - 1]), IndexOf(calls, order[i])) << order[i];
    EXPECT_EQ(calls[0], "brush 235,240,255") << "the band is filled with the pen the surface holds";
    EXPECT_THAT(Calls(calls.end() - 2, calls.end()),
                ElementsAre("pen solid 1 0,0,255", "line 66,50 500,400"));

    weaver.EscapeKey();
    phase->generationType = GenerationFractal;
    weaver.StartGeometryLink(false);
    phase->generationType = GenerationServerSetPos;
    EXPECT_EQ(Paint().end()[-2], "pen solid 1 255,0,0");
    // At rest the gesture fields paint nothing.
    weaver.EscapeKey();
    weaver.bandActive = false;
    calls = Paint();
    EXPECT_EQ(calls.front(), "pen solid 1 0,0,0");
    EXPECT_EQ(calls.back(), "line 300,300 0,0");
}

TEST_F(ScenePaintTest, EachOptionHidesItsLayersAndUnlinkersGoWithActions) {
    editor.Open("scg\\sample_rich.mt");
    ShowLayers(true);
    std::size_t phases = 0, gates = 0, actions = 0, checks = 0, unlinkers = 0;
    for (const auto& object : weaver.objects) {
        if (const Phase* phase = As<Phase>(object.get())) {
            ++phases;
            gates += phase->inputs.size() + phase->outputs.size();
        }
        actions += As<Action>(object.get()) != nullptr;
        checks += As<Check>(object.get()) != nullptr;
        unlinkers += As<Unlinker>(object.get()) != nullptr;
    }
    ASSERT_GT(unlinkers, 0u);
    ASSERT_GT(gates, 0u);
    const Calls all = Paint();
    EXPECT_EQ(CountStarting(all, "ellipse"), 6u);
    EXPECT_EQ(CountStarting(all, "roundrect"), actions + checks);
    EXPECT_EQ(CountStarting(all, "rectangle"), phases + unlinkers);

    weaver.options.DrawActions = false;
    EXPECT_EQ(CountStarting(Paint(), "roundrect"), checks);
    EXPECT_EQ(CountStarting(Paint(), "rectangle"), phases);
    ShowLayers(true);
    weaver.options.DrawChecks = false;
    EXPECT_EQ(CountStarting(Paint(), "roundrect"), actions);
    ShowLayers(true);
    weaver.options.DrawSwitchAndCases = false;
    EXPECT_EQ(CountStarting(Paint(), "ellipse"), 0u);
    ShowLayers(true);
    weaver.options.DrawInputOutputs = false;
    EXPECT_EQ(CountStarting(Paint(), "pen dash"), 0u);
    EXPECT_EQ(CountStarting(all, "text") - CountStarting(Paint(), "text"), gates)
        << "one label a gate";
    ShowLayers(true);
    weaver.options.DrawGeometry = false;
    EXPECT_EQ(CountStarting(Paint(), "textcolour"), 0u);

    ShowLayers(false);
    EXPECT_EQ(Paint().size(), phases * 4) << "each phase alone: pen, brush, box and name";
}

// Zoomed out so far that the canvas font cannot be read, the scene is a map
// rather than grey: phase names keep a readable size while their boxes can
// hold them, and gate labels are left out.
TEST_F(ScenePaintTest, CanvasTakesItsFontAndFrameFirstAndZoomedOutTheSceneIsAMap) {
    EXPECT_EQ(CanvasFontAt(1.0f, false), (CanvasFont{"Arial", 12, 400}));
    EXPECT_EQ(CanvasFontAt(1.0f, true).height, 14);
    EXPECT_EQ(CanvasFontAt(0.5f, true).height, 7);
    EXPECT_EQ(CanvasFontAt(0.09f, true).height, 1);

    ShowLayers(false);
    Phase* tiny = AddPhase(0, 0);
    tiny->name = "Tiny";
    tiny->inputs = {GateSlot{"in"}};
    tiny->outputs = {GateSlot{"out"}};
    const auto paintAt = [&](float scale) {
        RecordingSurface dc;
        PaintCanvas(dc, weaver, 640, 480, ViewTransform{0, 0, scale}, CanvasFontAt(scale, true));
        return dc.calls;
    };
    EXPECT_THAT(paintAt(0.05f),
                ElementsAre("font Arial 1 400", "rectangle 0,0,640,480", "pen solid 1 0,0,0",
                            "brush 255,255,255", "rectangle 0,0,10,7"));
    EXPECT_THAT(paintAt(0.3f),
                ElementsAre("font Arial 4 400", "rectangle 0,0,640,480", "pen solid 1 0,0,0",
                            "brush 255,255,255", "rectangle 0,0,60,45", "font Arial 12 400",
                            "text \"Tiny\" 5,5,55,40 centre noclip", "font Arial 4 400"));
    EXPECT_EQ(CountStarting(paintAt(0.5f), "text"), 1u);

    weaver.options.DrawInputOutputs = true;
    EXPECT_EQ(CountStarting(paintAt(0.3f), "text"), 1u) << "no gate label";
    EXPECT_EQ(CountStarting(paintAt(0.5f), "text"), 3u) << "the name and two labels";
}

// So far out that boxes are a few pixels wide, the scene is an overview: the
// boxes, circles and lines between them, without specks of gates, checks,
// actions and texts, so that a whole large template paints at once.
TEST_F(ScenePaintTest, AnOverviewShowsBoxesCirclesAndTheLinesBetweenThem) {
    ShowLayers(true);
    Phase* a = AddPhase(0, 0, GenerationRandom);
    a->outputs = {GateSlot{"out", false}};
    Phase* b = AddPhase(1000, 0, GenerationServerSetPos);
    b->inputs = {GateSlot{"in", false}, GateSlot{"more", true}};
    a->primaryLinkId = b->id;
    weaver.links.push_back(Link{false, a->id, "out", b->id, "in"});
    Check* check = Placed(weaver.NewCheck(), 66, 172);
    check->phaseId = a->id;
    Case* item = Placed(weaver.NewCase(), 500, 500);
    item->phaseIds = {b->id};

    // A link runs between its phases' stubs, half way down the boxes.
    EXPECT_THAT(Paint(0.1f),
                ElementsAre("pen solid 1 0,0,0", "brush 255,255,255", "rectangle 0,0,20,15",
                            "rectangle 100,0,120,15", "pen solid 1 0,0,255", "line 6,5 100,0",
                            "pen solid 1 0,0,255", "line 35,7 85,7", "pen solid 1 0,0,0",
                            "brush 255,255,255", "ellipse 46,46,54,54", "pen solid 1 0,0,255",
                            "line 50,50 106,5"));
    EXPECT_EQ(CountStarting(Paint(0.15f), "roundrect"), 1u) << "no overview at 0.15";
}
