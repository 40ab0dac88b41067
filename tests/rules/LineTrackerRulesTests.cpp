#include "LineTrackerRules.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

using namespace kiv::rules;

namespace {

// The band of coordinates around a line at 100 that hit it, scanned from 80 to 120.
std::vector<int> HitBand(int dotsPerInch)
{
    std::vector<int> band;
    for (int y = 80; y <= 120; ++y)
        if (TrackerHit(y, 100, TrackerScale(dotsPerInch)))
            band.push_back(y);
    return band;
}

}  // namespace

TEST(LineTrackerRules, ScaleIsDotsPerInchOver96)
{
    EXPECT_EQ(1.0f, TrackerScale(96));
    EXPECT_EQ(2.0f, TrackerScale(192));
    EXPECT_EQ(1.25f, TrackerScale(120));
}

TEST(LineTrackerRules, HitBandAt96DpiIsTwoPixelsEachSide)
{
    EXPECT_EQ((std::vector<int>{98, 99, 100, 101, 102}), HitBand(96));
}

TEST(LineTrackerRules, HitBandAt192DpiIsFourPixelsEachSide)
{
    EXPECT_EQ((std::vector<int>{96, 97, 98, 99, 100, 101, 102, 103, 104}), HitBand(192));
}

TEST(LineTrackerRules, HitBandAt144DpiRoundsItsUpperEdgeAndTruncatesItsLower)
{
    // t = 3: a miss when (c + 3.5) truncated is below 100, a hit when (c - 3) is at most 100.
    EXPECT_EQ((std::vector<int>{97, 98, 99, 100, 101, 102, 103}), HitBand(144));
}

TEST(LineTrackerRules, HitBandAtZeroReachesOnePixelFurtherBelowAsTruncationGoesTowardZero)
{
    // -3 + 2.5 truncates to 0, which is not below the line.
    EXPECT_TRUE(TrackerHit(-3, 0, 1.0f));
    EXPECT_FALSE(TrackerHit(-4, 0, 1.0f));
    EXPECT_TRUE(TrackerHit(2, 0, 1.0f));
    EXPECT_FALSE(TrackerHit(3, 0, 1.0f));
}

TEST(LineTrackerRules, HitAtTheEndsOfIntIsDefined)
{
    // The sums leave int and truncate to INT_MIN.
    EXPECT_FALSE(TrackerHit(INT_MAX, 100, 1.0f));
    EXPECT_FALSE(TrackerHit(INT_MIN, 100, 1.0f));
    EXPECT_TRUE(TrackerHit(INT_MIN, INT_MIN, 1.0f));
}

TEST(LineTrackerRules, TruncationOutsideIntGivesIntMin)
{
    EXPECT_EQ(2, TruncateToInt(2.9f));
    EXPECT_EQ(-2, TruncateToInt(-2.9f));
    EXPECT_EQ(INT_MIN, TruncateToInt(-2147483648.0f));
    EXPECT_EQ(2147483520, TruncateToInt(2147483520.0f));
    EXPECT_EQ(INT_MIN, TruncateToInt(2147483648.0f));
    EXPECT_EQ(INT_MIN, TruncateToInt(-1e20f));
    EXPECT_EQ(INT_MIN, TruncateToInt(std::nanf("")));
}

TEST(LineTrackerRules, PenWidthScalesOnlyAbove96Dpi)
{
    EXPECT_EQ(0, TrackerPenWidth(0, 1.0f));
    EXPECT_EQ(3, TrackerPenWidth(3, 1.0f));
    EXPECT_EQ(2, TrackerPenWidth(1, TrackerScale(192)));  // a width-1 pen draws 2 pixels at 192 dpi
    EXPECT_EQ(2, TrackerPenWidth(0, 2.0f));               // at least one pixel, scaled
    EXPECT_EQ(5, TrackerPenWidth(3, 1.5f));               // 4.5 rounded
    EXPECT_EQ(1, TrackerPenWidth(1, 1.25f));              // 1.75 truncated
    EXPECT_EQ(3, TrackerPenWidth(3, 0.75f));
    EXPECT_EQ(-4, TrackerPenWidth(-4, 1.0f));
    EXPECT_EQ(INT_MIN, TrackerPenWidth(INT_MAX, 2.0f));
}

TEST(LineTrackerRules, HalfBandIsOneUpTo287Dpi)
{
    EXPECT_EQ(1, TrackerHalfBand(TrackerScale(96)));
    EXPECT_EQ(1, TrackerHalfBand(TrackerScale(192)));
    EXPECT_EQ(1, TrackerHalfBand(TrackerScale(287)));
    EXPECT_EQ(2, TrackerHalfBand(TrackerScale(288)));
    EXPECT_EQ(0, TrackerHalfBand(TrackerScale(47)));
}

TEST(LineTrackerRules, CursorsByDirection)
{
    EXPECT_EQ(2000, TrackerHoverCursor(0));
    EXPECT_EQ(2001, TrackerDragCursor(kTrackerSolid));
    EXPECT_EQ(2002, TrackerHoverCursor(kTrackerVertical));
    EXPECT_EQ(2003, TrackerDragCursor(kTrackerVertical | kTrackerDotted));
}

TEST(LineTrackerRules, CursorsIgnoreEveryBitButVertical)
{
    EXPECT_EQ(2002, TrackerHoverCursor(0xFFFFFFFFu));
    EXPECT_EQ(2003, TrackerDragCursor(0xFFFFFFFFu));
    EXPECT_EQ(2000, TrackerHoverCursor(0xFFFFFFBFu));
    EXPECT_EQ(2001, TrackerDragCursor(0xFFFFFFBFu));
}

TEST(LineTrackerRules, OnlyStylesWithADrawingBitAreDrawn)
{
    EXPECT_FALSE(TrackerIsDrawn(0));
    EXPECT_FALSE(TrackerIsDrawn(kTrackerVertical));
    EXPECT_TRUE(TrackerIsDrawn(kTrackerSolid));
    EXPECT_TRUE(TrackerIsDrawn(kTrackerDotted | kTrackerVertical));
}

namespace {

// A line at 100 being dragged, recording its hooks as text: "adjust 105 bits 0",
// "old 100 bits 2", ... with the state bits at the moment of the call.
class Drag
{
public:
    int position = 100;
    std::vector<std::string> steps;
    std::function<void(int&)> adjust = [](int&) {};
    std::function<void(TrackerDrag::Step)> onStep = [](TrackerDrag::Step) {};
    TrackerDrag drag{position};

private:
    void Record(const char* name, int value)
    {
        steps.push_back(std::string(name) + " " + std::to_string(value) + " bits " + std::to_string(drag.State()));
    }
    auto Adjust()
    {
        return [this](int& proposed) {
            Record("adjust", proposed);
            adjust(proposed);
        };
    }
    auto Hook()
    {
        return [this](TrackerDrag::Step step, int value) {
            static const char* const names[] = {"old", "changed", "new", "cancel"};
            Record(names[step], value);
            onStep(step);
        };
    }

public:
    bool Move(int y) { return drag.Mouse(y, false, Adjust(), Hook()); }
    bool Release(int y) { return drag.Mouse(y, true, Adjust(), Hook()); }
    void Cancel() { drag.Cancel(Hook()); }
};

using Steps = std::vector<std::string>;

}  // namespace

TEST(LineTrackerRules, FirstMoveIsToldAndDrawnWithoutAPreviousPass)
{
    Drag d;
    EXPECT_FALSE(d.Move(105));
    EXPECT_EQ(105, d.position);
    EXPECT_EQ((Steps{"adjust 105 bits 0", "changed 100 bits 0", "new 105 bits 0"}), d.steps);
    EXPECT_TRUE(d.drag.Moved());
}

TEST(LineTrackerRules, EveryLaterMoveHasThePreviousPassBeforeOnChanged)
{
    Drag d;
    d.Move(105);
    d.steps.clear();
    EXPECT_FALSE(d.Move(110));
    EXPECT_EQ((Steps{"adjust 110 bits 0", "old 105 bits 2", "changed 105 bits 2", "new 110 bits 0"}), d.steps);
}

TEST(LineTrackerRules, ReleaseAfterMovingEndsWithBothBitsAndNoNewDrawing)
{
    Drag d;
    d.Move(110);
    d.steps.clear();
    EXPECT_TRUE(d.Release(110));
    EXPECT_EQ((Steps{"adjust 110 bits 0", "old 110 bits 3", "changed 110 bits 3"}), d.steps);
    EXPECT_TRUE(d.drag.Finish());
    EXPECT_EQ(110, d.position);
    EXPECT_EQ(0u, d.drag.State());
}

TEST(LineTrackerRules, ReleaseElsewhereAfterMovingTakesThatPosition)
{
    Drag d;
    d.Move(110);
    d.steps.clear();
    EXPECT_TRUE(d.Release(130));
    EXPECT_EQ((Steps{"adjust 130 bits 0", "old 110 bits 3", "changed 110 bits 3"}), d.steps);
    EXPECT_TRUE(d.drag.Finish());
    EXPECT_EQ(130, d.position);
}

TEST(LineTrackerRules, MoveToTheSamePositionCallsOnlyAdjust)
{
    Drag d;
    EXPECT_FALSE(d.Move(100));
    EXPECT_EQ((Steps{"adjust 100 bits 0"}), d.steps);
    EXPECT_FALSE(d.drag.Moved());
}

TEST(LineTrackerRules, PressAndReleaseWithoutMovingChangesNothing)
{
    Drag d;
    EXPECT_TRUE(d.Release(100));
    EXPECT_EQ((Steps{"adjust 100 bits 0", "changed 100 bits 1"}), d.steps);
    EXPECT_FALSE(d.drag.Finish());
    EXPECT_EQ(100, d.position);
}

TEST(LineTrackerRules, ReleaseElsewhereWithoutAMoveKeepsTheStart)
{
    Drag d;
    EXPECT_TRUE(d.Release(140));
    EXPECT_EQ((Steps{"adjust 140 bits 0", "changed 100 bits 1"}), d.steps);
    EXPECT_FALSE(d.drag.Finish());
    EXPECT_EQ(100, d.position);
}

TEST(LineTrackerRules, CancelAfterMovingDrawsWithBothBitsAndRestoresTheStart)
{
    Drag d;
    d.Move(120);
    d.steps.clear();
    d.Cancel();
    EXPECT_EQ((Steps{"cancel 120 bits 3"}), d.steps);
    EXPECT_EQ(100, d.position);
    EXPECT_FALSE(d.drag.Finish());
    EXPECT_EQ(0u, d.drag.State());
}

TEST(LineTrackerRules, CancelWithoutMovingDrawsNothing)
{
    Drag d;
    d.Cancel();
    EXPECT_TRUE(d.steps.empty());
    EXPECT_EQ(100, d.position);
}

TEST(LineTrackerRules, AdjustThatKeepsTheOldPositionMakesMovesNoOps)
{
    Drag d;
    d.adjust = [](int& proposed) { proposed = 100; };
    d.Move(130);
    d.Move(140);
    EXPECT_TRUE(d.Release(150));
    EXPECT_EQ((Steps{"adjust 130 bits 0", "adjust 140 bits 0", "adjust 150 bits 0", "changed 100 bits 1"}), d.steps);
    EXPECT_FALSE(d.drag.Finish());
}

TEST(LineTrackerRules, AdjustedPositionIsTheOneTaken)
{
    Drag d;
    d.adjust = [](int& proposed) { proposed -= proposed % 10; };
    d.Move(127);
    EXPECT_EQ(120, d.position);
    EXPECT_EQ("new 120 bits 0", d.steps.back());
}

TEST(LineTrackerRules, AHookThatMovesTheLineBackSkipsTheNewDrawing)
{
    Drag d;
    d.onStep = [&](TrackerDrag::Step step) {
        if (step == TrackerDrag::kChanged)
            d.position = 100;
    };
    EXPECT_FALSE(d.Move(120));
    EXPECT_EQ((Steps{"adjust 120 bits 0", "changed 100 bits 0"}), d.steps);
    EXPECT_TRUE(d.drag.Moved());
}
