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
