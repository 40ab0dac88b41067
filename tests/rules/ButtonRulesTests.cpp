#include "ButtonRules.h"

#include <gtest/gtest.h>

using namespace kiv::rules;

TEST(ButtonRules, PressedOutranksHoverAndFocus)
{
    EXPECT_EQ(kButtonPressed, PushButtonState(kPushedBit | kFocusBit, true, true));
    EXPECT_EQ(kButtonPressed, PushButtonState(kPushedBit, false, false));
}

TEST(ButtonRules, HoverOutranksFocus)
{
    EXPECT_EQ(kButtonHover, PushButtonState(kFocusBit, true, true));
}

TEST(ButtonRules, DisabledButtonWithHoverFlagAnswersHover)
{
    EXPECT_EQ(kButtonHover, PushButtonState(0, true, false));
    EXPECT_EQ(kButtonDisabled, PushButtonState(kFocusBit, false, false));
}

TEST(ButtonRules, EnabledButtonIsFocusedOnlyWithTheFocusBit)
{
    EXPECT_EQ(kButtonFocused, PushButtonState(kFocusBit, false, true));
    EXPECT_EQ(kButtonNormal, PushButtonState(0, false, true));
    // The check bits of BM_GETSTATE do not count.
    EXPECT_EQ(kButtonNormal, PushButtonState(0x0003, false, true));
}

TEST(ButtonRules, CheckBoxStateTable)
{
    const int expected[3][5] = {
        // push state: 1, 2, 3, 4, 5
        {1, 2, 3, 4, 1},    // unchecked
        {5, 6, 7, 8, 5},    // checked
        {9, 10, 11, 12, 9}  // mixed
    };
    for (int check = 0; check < 3; ++check)
        for (int push = 1; push <= 5; ++push)
            EXPECT_EQ(expected[check][push - 1], CheckBoxState(check, push)) << check << "," << push;
}

TEST(ButtonRules, CheckedHotIsSixAndMixedDisabledIsTwelve)
{
    EXPECT_EQ(6, CheckBoxState(kChecked, kButtonHover));
    EXPECT_EQ(12, CheckBoxState(kIndeterminate, kButtonDisabled));
}

TEST(ButtonRules, UnknownCheckValueCountsAsUnchecked)
{
    EXPECT_EQ(2, CheckBoxState(3, kButtonHover));
    EXPECT_EQ(1, CheckBoxState(-1, 0));
}

TEST(ButtonRules, ColorButtonLooksByState)
{
    for (int state : {kButtonNormal, kButtonPressed, kButtonFocused})
    {
        ButtonLook look = ColorButtonLook(state);
        EXPECT_FALSE(look.hoverBrush);
        EXPECT_EQ(0xFFFFFFu, look.text);
        EXPECT_EQ(0xAC824Eu, look.textBackground);
    }
    ButtonLook hover = ColorButtonLook(kButtonHover);
    EXPECT_TRUE(hover.hoverBrush);
    EXPECT_EQ(0x000000u, hover.text);
    EXPECT_EQ(0xF4EBDDu, hover.textBackground);
    ButtonLook disabled = ColorButtonLook(kButtonDisabled);
    EXPECT_FALSE(disabled.hoverBrush);
    EXPECT_EQ(0xD1C0A5u, disabled.text);
    EXPECT_EQ(0xAC824Eu, disabled.textBackground);
}

TEST(ButtonRules, NarrowUnicodeButtonNeverShowsHoverWhenDisabled)
{
    ButtonLook look = NarrowUnicodeButtonLook(kButtonHover, false);
    EXPECT_FALSE(look.hoverBrush);
    EXPECT_EQ(0xD1C0A5u, look.text);
    EXPECT_TRUE(NarrowUnicodeButtonLook(kButtonHover, true).hoverBrush);
    EXPECT_EQ(0xFFFFFFu, NarrowUnicodeButtonLook(kButtonPressed, true).text);
}

TEST(ButtonRules, CentreOffsetTruncatesTowardZero)
{
    EXPECT_EQ(5, CentreOffset(20, 10));
    EXPECT_EQ(2, CentreOffset(15, 10));
    EXPECT_EQ(-2, CentreOffset(10, 15));  // a block larger than its room moves up and left
}

TEST(ButtonRules, PushButtonLayoutKeepsTheWholeRectangle)
{
    UnicodeButtonLayout l = LayoutUnicodeButton(0, {0, 0, 100, 30});
    EXPECT_EQ(kPartPushButton, l.part);
    EXPECT_FALSE(l.checkState);
    EXPECT_EQ(0, l.text.left);
    EXPECT_EQ(100, l.text.right);
}

TEST(ButtonRules, CheckMarkIsASquareAtTheLeftEnd)
{
    for (unsigned style : {2u, 3u})
    {
        UnicodeButtonLayout l = LayoutUnicodeButton(style, {10, 5, 200, 25});
        EXPECT_EQ(kPartCheckBox, l.part);
        EXPECT_TRUE(l.checkState);
        EXPECT_EQ(10, l.mark.left);
        EXPECT_EQ(30, l.mark.right);
        EXPECT_EQ(30, l.text.left);
        EXPECT_EQ(200, l.text.right);
    }
    for (unsigned style : {4u, 9u})
        EXPECT_EQ(kPartRadioButton, LayoutUnicodeButton(style, {0, 0, 50, 16}).part);
}

TEST(ButtonRules, PushButtonWithFurtherStyleBitsGetsNoBackground)
{
    EXPECT_EQ(0, LayoutUnicodeButton(1, {0, 0, 80, 24}).part);       // default push button
    EXPECT_EQ(0, LayoutUnicodeButton(0x2000, {0, 0, 80, 24}).part);  // multi-line
    EXPECT_EQ(0, LayoutUnicodeButton(0x0300, {0, 0, 80, 24}).part);  // centred
    EXPECT_EQ(0, LayoutUnicodeButton(0x0103, {0, 0, 80, 24}).part);  // check box with an alignment bit
}

TEST(ButtonRules, CaptionCentredOnlyOnAPlainPushButtonWithRoom)
{
    CaptionOrigin centred = PlaceUnicodeCaption(0, {0, 0, 100, 30}, 40.0f, 10.0f);
    EXPECT_FLOAT_EQ(30.0f, centred.x);
    EXPECT_FLOAT_EQ(10.0f, centred.y);
    CaptionOrigin wide = PlaceUnicodeCaption(0, {0, 0, 100, 30}, 140.0f, 10.0f);
    EXPECT_FLOAT_EQ(0.0f, wide.x);
    CaptionOrigin defaulted = PlaceUnicodeCaption(1, {0, 0, 100, 30}, 40.0f, 10.0f);
    EXPECT_FLOAT_EQ(0.0f, defaulted.x);
    CaptionOrigin check = PlaceUnicodeCaption(3, {20, 0, 100, 20}, 40.0f, 13.0f);
    EXPECT_FLOAT_EQ(20.0f, check.x);
    EXPECT_FLOAT_EQ(3.5f, check.y);
}
