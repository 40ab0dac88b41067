#include "LineTrackerRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace kiv::rules;

TEST(LineTrackerRules, HitBandAt96DpiIsTwoPixelsEachSide)
{
    for (int y = 95; y <= 105; ++y)
        EXPECT_EQ(y >= 98 && y <= 102, TrackerHit(y, 100, TrackerScale(96))) << y;
}

TEST(LineTrackerRules, HitBandAt192DpiIsFourPixelsEachSide)
{
    for (int y = 93; y <= 107; ++y)
        EXPECT_EQ(y >= 96 && y <= 104, TrackerHit(y, 100, TrackerScale(192))) << y;
}

TEST(LineTrackerRules, PenWidthScalesOnlyAbove96Dpi)
{
    EXPECT_EQ(0, TrackerPenWidth(0, 1.0f));
    EXPECT_EQ(3, TrackerPenWidth(3, 1.0f));
    EXPECT_EQ(2, TrackerPenWidth(1, 2.0f));  // a width-1 pen draws 2 pixels at 192 dpi
    EXPECT_EQ(2, TrackerPenWidth(0, 2.0f));  // at least one pixel, scaled
    EXPECT_EQ(5, TrackerPenWidth(3, 1.5f));  // 4.5 rounded
    EXPECT_EQ(3, TrackerPenWidth(3, 0.75f));
}

TEST(LineTrackerRules, HalfBandIsOneUpTo287Dpi)
{
    EXPECT_EQ(1, TrackerHalfBand(TrackerScale(96)));
    EXPECT_EQ(1, TrackerHalfBand(TrackerScale(287)));
    EXPECT_EQ(2, TrackerHalfBand(TrackerScale(288)));
}

TEST(LineTrackerRules, CursorsByDirection)
{
    EXPECT_EQ(2000, TrackerHoverCursor(0));
    EXPECT_EQ(2001, TrackerDragCursor(kTrackerSolid));
    EXPECT_EQ(2002, TrackerHoverCursor(kTrackerVertical));
    EXPECT_EQ(2003, TrackerDragCursor(kTrackerVertical | kTrackerDotted));
}

TEST(LineTrackerRules, OnlyStylesWithADrawingBitAreDrawn)
{
    EXPECT_FALSE(TrackerIsDrawn(0));
    EXPECT_FALSE(TrackerIsDrawn(kTrackerVertical));
    EXPECT_TRUE(TrackerIsDrawn(kTrackerSolid));
    EXPECT_TRUE(TrackerIsDrawn(kTrackerDotted | kTrackerVertical));
}

namespace {

// Records the hooks of a drag as text: "adjust 105", "old 100 bits 2", ...
struct Recorder
{
    std::vector<std::string> steps;
    TrackerDrag* drag = nullptr;
    auto Hook()
    {
        return [this](TrackerDrag::Step step, int position) {
            const char* names[] = {"adjust", "old", "changed", "new", "cancel"};
            steps.push_back(std::string(names[step]) + " " + std::to_string(position) + " bits " +
                            std::to_string(drag->State()));
        };
    }
};

auto NoAdjust()
{
    return [](int&) {};
}

}  // namespace

TEST(LineTrackerRules, MovesCallTheHooksInTheirOrder)
{
    TrackerDrag drag(100);
    Recorder r;
    r.drag = &drag;
    EXPECT_FALSE(drag.Mouse(105, false, NoAdjust(), r.Hook()));
    EXPECT_FALSE(drag.Mouse(110, false, NoAdjust(), r.Hook()));
    EXPECT_TRUE(drag.Mouse(110, true, NoAdjust(), r.Hook()));
    EXPECT_TRUE(drag.Finish());
    EXPECT_EQ(110, drag.Position());
    EXPECT_EQ((std::vector<std::string>{"changed 100 bits 0", "new 105 bits 0", "old 105 bits 2", "changed 105 bits 2",
                                        "new 110 bits 0", "old 110 bits 3", "changed 110 bits 3"}),
              r.steps);
    EXPECT_EQ(0u, drag.State());
}

TEST(LineTrackerRules, PressAndReleaseWithoutMovingChangesNothing)
{
    TrackerDrag drag(100);
    Recorder r;
    r.drag = &drag;
    EXPECT_TRUE(drag.Mouse(100, true, NoAdjust(), r.Hook()));
    EXPECT_FALSE(drag.Finish());
    EXPECT_EQ(100, drag.Position());
    EXPECT_EQ((std::vector<std::string>{"changed 100 bits 1"}), r.steps);
}

TEST(LineTrackerRules, CancelAfterMovingRestoresTheStart)
{
    TrackerDrag drag(100);
    Recorder r;
    r.drag = &drag;
    drag.Mouse(120, false, NoAdjust(), r.Hook());
    drag.Cancel(r.Hook());
    EXPECT_FALSE(drag.Finish());
    EXPECT_EQ(100, drag.Position());
    EXPECT_EQ("cancel 120 bits 3", r.steps.back());
}

TEST(LineTrackerRules, CancelWithoutMovingDrawsNothing)
{
    TrackerDrag drag(100);
    Recorder r;
    r.drag = &drag;
    drag.Cancel(r.Hook());
    EXPECT_TRUE(r.steps.empty());
    EXPECT_EQ(100, drag.Position());
}

TEST(LineTrackerRules, AdjustThatKeepsTheOldPositionMakesMovesNoOps)
{
    TrackerDrag drag(100);
    Recorder r;
    r.drag = &drag;
    int kept = 100;
    auto keep = [&](int& position) { position = kept; };
    drag.Mouse(130, false, keep, r.Hook());
    drag.Mouse(140, false, keep, r.Hook());
    EXPECT_TRUE(r.steps.empty());
    EXPECT_TRUE(drag.Mouse(150, true, keep, r.Hook()));
    EXPECT_EQ((std::vector<std::string>{"changed 100 bits 1"}), r.steps);
    EXPECT_FALSE(drag.Finish());
}
