#include "DialogRules.h"

#include <gtest/gtest.h>

using namespace kiv::rules;

namespace {
constexpr DialogRect kScreen = {0, 0, 1280, 1024};
}

TEST(DialogRules, CentresOnTheReference)
{
    DialogPoint at = CentreDialog({100, 100, 700, 500}, 200, 100, kScreen);
    EXPECT_EQ(300, at.x);
    EXPECT_EQ(250, at.y);
}

TEST(DialogRules, NegativeCoordinatesBecomeZero)
{
    DialogPoint at = CentreDialog({0, 0, 100, 100}, 400, 300, kScreen);
    EXPECT_EQ(0, at.x);
    EXPECT_EQ(0, at.y);
}

TEST(DialogRules, DialogPastTheRightAndBottomIsPulledBack)
{
    DialogPoint at = CentreDialog({1100, 900, 1280, 1024}, 400, 300, kScreen);
    EXPECT_EQ(880, at.x);
    EXPECT_EQ(724, at.y);
}

TEST(DialogRules, DialogWiderThanTheScreenWithNegativeCentreIsPlacedAtZero)
{
    DialogPoint at = CentreDialog(kScreen, 2000, 100, kScreen);
    EXPECT_EQ(0, at.x);  // 640 - 1000 < 0; the right edge stays past the screen
}

TEST(DialogRules, DialogWiderThanTheScreenWithNonNegativeCentreMayEndNegative)
{
    DialogPoint at = CentreDialog({1200, 0, 1280, 100}, 1400, 50, kScreen);
    // 1240 - 700 = 540, not negative; 540 + 1400 > 1280, so x = 1280 - 1400.
    EXPECT_EQ(-120, at.x);
}

TEST(DialogRules, CentringTruncatesTowardZero)
{
    DialogPoint at = CentreDialog({0, 0, 101, 101}, 51, 51, kScreen);
    EXPECT_EQ(50 - 25, at.x);
    DialogPoint negative = CentreDialog({-101, -101, 0, 0}, 10, 10, {-2000, -2000, 2000, 2000});
    EXPECT_EQ(0, negative.x);  // -50 - 5 is negative: clamped to 0
}

TEST(DialogRules, GripSquareIsAScrollBarWideInTheLowerRightCorner)
{
    DialogRect grip = GripSquare({10, 20, 410, 320}, 17, 17);
    EXPECT_EQ(393, grip.left);
    EXPECT_EQ(303, grip.top);
    EXPECT_TRUE(Contains(grip, {400, 310}));
    EXPECT_FALSE(Contains(grip, {392, 310}));
    EXPECT_FALSE(Contains(grip, {410, 310}));  // the right edge is outside
}

TEST(DialogRules, FlatComboUnderlineAndArrow)
{
    ComboLook look = FlatCombo({0, 0, 150, 20});
    EXPECT_EQ(2, look.lineFrom.x);
    EXPECT_EQ(20, look.lineFrom.y);
    EXPECT_EQ(132, look.lineTo.x);
    EXPECT_EQ(132, look.arrow.left);
    EXPECT_EQ(3, look.arrow.top);
    EXPECT_EQ(20, look.arrow.right);   // width of the copy
    EXPECT_EQ(20, look.arrow.bottom);  // height: the client's
}

TEST(DialogRules, RowsAlternateFromPaleBlueAtRowZero)
{
    EXPECT_EQ(0xF4EBDDu, AlternatingRows(kStageSubItemPrePaint, 0, kNewFont).background);
    EXPECT_EQ(0xFFFFFFu, AlternatingRows(kStageSubItemPrePaint, 1, kNewFont).background);
    EXPECT_EQ(0xF4EBDDu, AlternatingRows(kStageSubItemPrePaint, 2, kNewFont).background);
    EXPECT_EQ(0xFFFFFFu, AlternatingRows(kStageSubItemPrePaint, 0x100000003ull, kNewFont).background);
}

TEST(DialogRules, StageAnswers)
{
    EXPECT_EQ(0x20, AlternatingRows(kStagePrePaint, 0, kNewFont).result);
    EXPECT_EQ(0x20, AlternatingRows(kStageItemPrePaint, 5, kNewFont).result);
    EXPECT_FALSE(AlternatingRows(kStageItemPrePaint, 5, kNewFont).setsBackground);
    EXPECT_EQ(0x02, AlternatingRows(kStageSubItemPrePaint, 5, kNewFont).result);
    EXPECT_EQ(0, AlternatingRows(kStageSubItemPrePaint, 5, kDoDefault).result);
    EXPECT_EQ(0, AlternatingRows(0x00010002, 5, kNewFont).result);  // item post-paint
    EXPECT_EQ(0, AlternatingRows(0x00000004, 5, kNewFont).result);
}
