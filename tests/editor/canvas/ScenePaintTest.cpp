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
