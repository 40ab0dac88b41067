#include "TabRules.h"

#include <gtest/gtest.h>

using namespace kiv::rules;

TEST(TabRules, PageAreaWidensSidewaysForTopTabs)
{
    TabBox page = WidenPageArea({10, 30, 200, 150}, false);
    EXPECT_EQ(8, page.left);
    EXPECT_EQ(203, page.right);
    EXPECT_EQ(30, page.top);
    EXPECT_EQ(150, page.bottom);
}

TEST(TabRules, PageAreaWidensUpAndDownForBottomTabs)
{
    TabBox page = WidenPageArea({10, 30, 200, 150}, true);
    EXPECT_EQ(10, page.left);
    EXPECT_EQ(28, page.top);
    EXPECT_EQ(153, page.bottom);
}

TEST(TabRules, NormalTabGrowsThreeDownOnTopAndTwoLeftAtTheBottom)
{
    TabBox top = GrowNormalTab({50, 2, 100, 22}, false);
    EXPECT_EQ(25, top.bottom);
    EXPECT_EQ(50, top.left);
    TabBox bottom = GrowNormalTab({50, 2, 100, 22}, true);
    EXPECT_EQ(48, bottom.left);
    EXPECT_EQ(22, bottom.bottom);
}

TEST(TabRules, TextWithoutImageIsFiveRightAndTwoPlusEdgeDown)
{
    TabPoint at = TextWithoutImage({40, 4, 90, 24}, 2);
    EXPECT_EQ(45, at.x);
    EXPECT_EQ(8, at.y);
}

TEST(TabRules, ImageInsetIsThreePixelsAt96Dpi)
{
    TabImage image = ImageSquare({40, 4, 120, 24}, 1.0f, 1.0f);
    EXPECT_FLOAT_EQ(43.0f, image.x);
    EXPECT_FLOAT_EQ(7.0f, image.y);
    EXPECT_FLOAT_EQ(14.0f, image.width);  // the smaller side, 20, less 6
    EXPECT_FLOAT_EQ(14.0f, image.height);
}

TEST(TabRules, ImageInsetIsFourAndAHalfPixelsAt144Dpi)
{
    TabImage image = ImageSquare({40, 4, 120, 34}, 1.5f, 1.5f);
    EXPECT_FLOAT_EQ(44.5f, image.x);
    EXPECT_FLOAT_EQ(8.5f, image.y);
    EXPECT_FLOAT_EQ(21.0f, image.width);
}

TEST(TabRules, TextFollowsTheImageOnTopTabs)
{
    TabImage image = ImageSquare({40, 4, 120, 24}, 1.0f, 1.0f);
    // left 40 + space 4 already, then round(round(3) + 14) + space 4; top + edge 2; y + 6 + 3.
    TabPoint at = TextAfterImage({44, 4, 120, 24}, image, false, 1.0f, 1.0f, 4, 2);
    EXPECT_EQ(44 + 17 + 4, at.x);
    EXPECT_EQ(4 + 2 + 6 + 3, at.y);
}

TEST(TabRules, TextFollowsTheImageOnBottomTabs)
{
    TabImage image = ImageSquare({40, 4, 120, 24}, 1.0f, 1.0f);
    TabPoint at = TextAfterImage({44, 4, 120, 24}, image, true, 1.0f, 1.0f, 4, 2);
    EXPECT_EQ(44 + 14, at.x);
    EXPECT_EQ(4 + 5 + 14 + 3, at.y);
}

TEST(TabRules, RoundingGoesHalfAwayFromZero)
{
    EXPECT_EQ(5, RoundHalfAway(4.5f));
    EXPECT_EQ(-5, RoundHalfAway(-4.5f));
    EXPECT_EQ(4, RoundHalfAway(4.49f));
}
