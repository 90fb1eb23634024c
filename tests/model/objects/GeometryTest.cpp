#include "objects/Action.h"
#include "objects/Case.h"
#include "objects/Check.h"
#include "objects/Link.h"
#include "objects/ObjectsGroup.h"
#include "objects/Phase.h"
#include "objects/Switch.h"
#include "objects/Unlinker.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace lw;

namespace {

template <typename T> std::unique_ptr<T> Placed(int x, int y) {
    auto object = std::make_unique<T>(1);
    object->posX = x;
    object->posY = y;
    return object;
}

ScreenRect Rect(int left, int top, int right, int bottom) {
    return ScreenRect{left, top, right, bottom};
}

std::unique_ptr<Phase> PhaseWithInputs(int count) {
    auto phase = Placed<Phase>(0, 0);
    for (int i = 0; i < count; ++i)
        phase->inputs.push_back(GateSlot{"in" + std::to_string(i), true});
    return phase;
}

} // namespace

TEST(ScreenRectTest, EachKindHasItsExtentAboutItsPosition) {
    EXPECT_EQ(Placed<Phase>(0, 0)->GetScreenRect(0, 0, 1.0f), Rect(0, 0, 200, 150));
    EXPECT_EQ(Placed<Case>(0, 0)->GetScreenRect(0, 0, 1.0f), Rect(-40, -40, 40, 40));
    EXPECT_EQ(Placed<Switch>(0, 0)->GetScreenRect(0, 0, 1.0f), Rect(-50, -50, 50, 50));
    EXPECT_EQ(Placed<Check>(10, 20)->GetScreenRect(0, 0, 1.0f), Rect(-5, 5, 25, 35));
    EXPECT_EQ(Placed<Action>(0, 0)->GetScreenRect(5, 0, 1.0f), Rect(-75, -15, 85, 15));
    EXPECT_EQ(Placed<Unlinker>(0, 0)->GetScreenRect(0, 0, 2.0f), Rect(-40, -40, 40, 40));
}

TEST(ScreenRectTest, ScaledEdgesTruncateTowardZero) {
    // -21 * 0.5 = -10.5 becomes -10, not -11; 21 * 0.5 = 10.5 becomes 10.
    const auto check = Placed<Check>(-6, 6);
    EXPECT_EQ(check->GetScreenRect(0, 0, 0.5f), Rect(-10, -4, 4, 10));
    const auto shifted = Placed<Case>(100, 0);
    EXPECT_EQ(shifted->GetScreenRect(-161, 0, 0.5f), Rect(-50, -20, -10, 20));
}

TEST(PhaseGatesTest, GatesSpreadOverTheHeightInIntegerSteps) {
    EXPECT_EQ(PhaseWithInputs(1)->GateScreenPoint("in0", true, 1.0f, 0, 0).y, 75);
    const auto two = PhaseWithInputs(2);
    EXPECT_EQ(two->GateScreenPoint("in0", true, 1.0f, 0, 0).y, 50);
    EXPECT_EQ(two->GateScreenPoint("in1", true, 1.0f, 0, 0).y, 100);
    const auto four = PhaseWithInputs(4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(four->GateScreenPoint("in" + std::to_string(i), true, 1.0f, 0, 0).y,
                  30 * (i + 1));
    // From 150 gates on the step is 0: every gate is level with the top edge.
    const auto many = PhaseWithInputs(150);
    EXPECT_EQ(many->GateScreenPoint("in149", true, 1.0f, 0, 7).y, 7);
}

TEST(PhaseGatesTest, InputsStandLeftAndOutputsRightOfTheBox) {
    const auto phase = Placed<Phase>(100, 10);
    phase->inputs = {GateSlot{"go", true}};
    phase->outputs = {GateSlot{"done", true}, GateSlot{"done", true}};
    EXPECT_EQ(phase->GateScreenPoint("go", true, 1.0f, 0, 0).x, -50);
    EXPECT_EQ(phase->GateScreenPoint("done", false, 2.0f, 0, 0).x, 900);
    // A name that stands twice answers for the first; an unknown one is (0, 0).
    EXPECT_EQ(phase->GateScreenPoint("done", false, 1.0f, 0, 0).y, 60);
    const ScreenPoint none = phase->GateScreenPoint("go", false, 1.0f, 5, 5);
    EXPECT_EQ(none.x, 0);
    EXPECT_EQ(none.y, 0);

    phase->MarkGateUsed("done", false);
    EXPECT_FALSE(phase->outputs[0].openMark);
    EXPECT_TRUE(phase->outputs[1].openMark);
    phase->MarkGateUsed("done", true);
    EXPECT_TRUE(phase->inputs[0].openMark);
}

TEST(PhaseTest, ChecksStackBelowTheBox) {
    const auto phase = Placed<Phase>(10, 20);
    std::int32_t x = 0;
    std::int32_t y = 0;
    phase->NextCheckPoint(x, y);
    EXPECT_EQ(x, 76);
    EXPECT_EQ(y, 192);
    phase->AddCheckId(7);
    phase->AddCheckId(7);
    phase->AddCheckId(8);
    EXPECT_EQ(phase->checkIds, (std::vector<std::int32_t>{7, 8}));
    phase->NextCheckPoint(x, y);
    EXPECT_EQ(y, 20 + 172 + 66);
    phase->RemoveCheckId(9);
    phase->RemoveCheckId(7);
    EXPECT_EQ(phase->checkIds, std::vector<std::int32_t>{8});
}

TEST(ObjectsGroupTest, BoundsAreTheUnionOfTheMembers) {
    ViewTransform view;
    ObjectsGroup group;
    const auto single = Placed<Case>(100, 100);
    group.Add(single.get());
    group.Recalculate();
    EXPECT_EQ(group.bounds, ScreenRect{});

    group.view = &view;
    group.Recalculate();
    EXPECT_EQ(group.GetScreenRect(0, 0, 1.0f), Rect(60, 60, 140, 140));
    EXPECT_EQ(group.posX, 100);

    const auto phase = Placed<Phase>(0, 0);
    const auto check = Placed<Check>(300, 0);
    group.Clear();
    group.Add(phase.get());
    group.Add(check.get());
    group.Add(phase.get());
    EXPECT_EQ(group.members.size(), 2u);
    group.Recalculate();
    EXPECT_EQ(group.bounds, Rect(0, -15, 315, 150));
    EXPECT_EQ(group.posX, 157);
    EXPECT_EQ(group.posY, 67);

    // The stored bounds answer until the next recalculation.
    view.viewX = 50;
    EXPECT_EQ(group.GetScreenRect(50, 0, 2.0f), Rect(0, -15, 315, 150));
    group.Clear();
    EXPECT_EQ(group.posX, 0);
    EXPECT_EQ(group.posY, 0);
}
