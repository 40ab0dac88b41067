// What the dialog classes decide over plain numbers: where a dialog is centred and how it is
// kept on the primary screen, the size-grip square, the flat combo box's underline and arrow
// picture, and the alternating rows of report lists.
#pragma once

#include <cstdint>

namespace kiv::rules {

struct DialogRect
{
    int left, top, right, bottom;
};

struct DialogPoint
{
    int x, y;
};

// Centred on the reference rectangle, then clamped: a negative coordinate becomes 0, and only
// a non-negative one is pulled back from the screen's right or bottom edge (which may make it
// negative for a dialog larger than the screen; it is kept so).
constexpr DialogPoint CentreDialog(DialogRect reference, int width, int height, DialogRect screen) noexcept
{
    int x = (reference.left + reference.right) / 2 - width / 2;
    int y = (reference.top + reference.bottom) / 2 - height / 2;
    if (x < 0)
        x = 0;
    else if (x + width > screen.right)
        x = screen.right - width;
    if (y < 0)
        y = 0;
    else if (y + height > screen.bottom)
        y = screen.bottom - height;
    return {x, y};
}

// The grip square in the lower right corner of a rectangle, a scroll bar's width and height.
constexpr DialogRect GripSquare(DialogRect rect, int scrollWidth, int scrollHeight) noexcept
{
    return {rect.right - scrollWidth, rect.bottom - scrollHeight, rect.right, rect.bottom};
}

constexpr bool Contains(DialogRect rect, DialogPoint point) noexcept
{
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

// A flat combo box: the underline runs along the client area's bottom, from 2 pixels in to
// 18 pixels short of the right; the arrow picture is copied 20 wide at the right, 3 down.
struct ComboLook
{
    DialogPoint lineFrom, lineTo;
    DialogRect arrow;  // left, top, width, height of the copy
};

constexpr ComboLook FlatCombo(DialogRect client) noexcept
{
    return {{client.left + 2, client.bottom},
            {client.left + client.right - 18, client.bottom},
            {(client.right - client.left) - 18, client.top + 3, 20, client.bottom - client.top}};
}

inline constexpr std::uint32_t kComboUnderline = 0xAC824E;
inline constexpr std::uint32_t kComboUnderlineDisabled = 0x808080;
inline constexpr std::uint32_t kRowBackgroundEven = 0xF4EBDD;
inline constexpr std::uint32_t kRowBackgroundOdd = 0xFFFFFF;

// Custom-draw stages of a report list and the answers.
inline constexpr std::uint32_t kStagePrePaint = 0x00000001;
inline constexpr std::uint32_t kStageItemPrePaint = 0x00010001;
inline constexpr std::uint32_t kStageSubItemPrePaint = 0x00030001;
inline constexpr long kNotifyItemDraw = 0x20;  // CDRF_NOTIFYITEMDRAW, CDRF_NOTIFYSUBITEMDRAW
inline constexpr long kNewFont = 0x02;
inline constexpr long kDoDefault = 0;

struct RowPaint
{
    long result;
    bool setsBackground;
    std::uint32_t background;
};

// Rows alternate pale blue (even, row 0 included) and white (odd) in every column. The
// dialogs answer the sub-item stage with a new font, the list control with the default.
constexpr RowPaint AlternatingRows(std::uint32_t stage, std::uint64_t row, long subItemAnswer) noexcept
{
    if (stage == kStagePrePaint || stage == kStageItemPrePaint)
        return {kNotifyItemDraw, false, 0};
    if (stage == kStageSubItemPrePaint)
    {
        bool odd = (static_cast<std::uint32_t>(row) & 1u) != 0;
        return {subItemAnswer, true, odd ? kRowBackgroundOdd : kRowBackgroundEven};
    }
    return {kDoDefault, false, 0};
}

}  // namespace kiv::rules
