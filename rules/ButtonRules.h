// What the owner-drawn buttons decide before they paint: the state number of a push button,
// the look of each state, the visual-style state of a check box or radio button, and where a
// caption goes. Plain values in, plain values out; the button classes make the platform calls.
#pragma once

#include "Palette.h"

namespace kiv::rules {

// Push-button states, numbered as the visual-style push-button states.
enum ButtonState : int
{
    kButtonNormal = 1,
    kButtonHover = 2,
    kButtonPressed = 3,
    kButtonDisabled = 4,
    kButtonFocused = 5,
};

// Bits of BM_GETSTATE and values of BM_GETCHECK that the rules read.
inline constexpr unsigned kPushedBit = 0x0004;  // BST_PUSHED
inline constexpr unsigned kFocusBit = 0x0008;   // BST_FOCUS
inline constexpr int kChecked = 1;              // BST_CHECKED
inline constexpr int kIndeterminate = 2;        // BST_INDETERMINATE

// Pressed outranks hover, hover outranks focus; a disabled button with the hover flag set
// still answers hover.
constexpr int PushButtonState(unsigned buttonState, bool overControl, bool enabled) noexcept
{
    if (buttonState & kPushedBit)
        return kButtonPressed;
    if (overControl)
        return kButtonHover;
    if (enabled)
        return (buttonState & kFocusBit) ? kButtonFocused : kButtonNormal;
    return kButtonDisabled;
}

// The visual-style check-box (and radio-button) state for a check and a push state:
// 1-4 unchecked, 5-8 checked, 9-12 mixed, each as normal, hot, pressed, disabled.
constexpr int CheckBoxState(int check, int pushState) noexcept
{
    int base = check == kChecked ? 4 : check == kIndeterminate ? 8 : 0;
    switch (pushState)
    {
    case kButtonHover:
        return base + 2;
    case kButtonPressed:
        return base + 3;
    case kButtonDisabled:
        return base + 4;
    default:
        return base + 1;
    }
}

// How a push button in the blue scheme fills its face and draws its text.
struct ButtonLook
{
    bool hoverBrush;  // the light hover brush, else the steel-blue one
    Colour text;
    Colour textBackground;
};

inline constexpr ButtonLook kHoverLook = {true, kBlack, kLightBlue};
inline constexpr ButtonLook kNormalLook = {false, kWhite, kSteelBlue};
inline constexpr ButtonLook kDisabledLook = {false, kPaleBlueGrey, kSteelBlue};

// The colour button: pressed and focused look exactly like normal.
constexpr ButtonLook ColorButtonLook(int state) noexcept
{
    if (state == kButtonHover)
        return kHoverLook;
    if (state == kButtonDisabled)
        return kDisabledLook;
    return kNormalLook;
}

// The wide-text button in narrow mode: a disabled button never shows the hover look.
constexpr ButtonLook NarrowUnicodeButtonLook(int state, bool enabled) noexcept
{
    if (!enabled)
        return kDisabledLook;
    return state == kButtonHover ? kHoverLook : kNormalLook;
}

// The offset that centres a measured extent in an outer one; signed, truncating toward zero.
constexpr int CentreOffset(int outer, int measured) noexcept
{
    return (outer - measured) / 2;
}

struct Box
{
    int left, top, right, bottom;
};

// Visual-style parts of the button class.
inline constexpr int kPartPushButton = 1;   // BP_PUSHBUTTON
inline constexpr int kPartRadioButton = 2;  // BP_RADIOBUTTON
inline constexpr int kPartCheckBox = 3;     // BP_CHECKBOX

// What the wide-text button draws for the low word of its style: a themed part (0 for none),
// whether its state is a check-box state, the square of a check mark and the caption's box.
struct UnicodeButtonLayout
{
    int part;
    bool checkState;
    Box mark;
    Box text;
};

// The whole low word decides: a push button with any further style bit (default push button,
// multi-line, alignment) gets no background at all.
constexpr UnicodeButtonLayout LayoutUnicodeButton(unsigned styleLowWord, Box rect) noexcept
{
    UnicodeButtonLayout layout{0, false, rect, rect};
    if (styleLowWord == 4 || styleLowWord == 9)
        layout.part = kPartRadioButton;
    else if (styleLowWord == 2 || styleLowWord == 3)
        layout.part = kPartCheckBox;
    else if (styleLowWord == 0)
        layout.part = kPartPushButton;
    if (layout.part == kPartRadioButton || layout.part == kPartCheckBox)
    {
        layout.checkState = true;
        int side = rect.bottom - rect.top;
        layout.mark.right = rect.left + side;
        layout.text.left = rect.left + side;
    }
    return layout;
}

struct CaptionOrigin
{
    float x, y;
};

// Where the one-line caption starts: centred vertically always, horizontally only for a
// plain push button that is wider than the caption.
constexpr CaptionOrigin PlaceUnicodeCaption(unsigned styleLowWord, Box text, float width, float height) noexcept
{
    CaptionOrigin origin{static_cast<float>(text.left),
                         static_cast<float>(text.top) + (static_cast<float>(text.bottom - text.top) - height) * 0.5f};
    float room = static_cast<float>(text.right - text.left);
    if (styleLowWord == 0 && room > width)
        origin.x = static_cast<float>(text.left) + (room - width) * 0.5f;
    return origin;
}

}  // namespace kiv::rules
