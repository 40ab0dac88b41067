// What a line tracker decides over plain numbers: the scale of the screen, its pen width, the
// band in which a point is on the line, the cursors it shows, and the drag's state machine
// (which hooks a mouse message leads to, in which order).
#pragma once

#include <climits>

namespace kiv::rules {

inline constexpr unsigned kTrackerSolid = 0x01;
inline constexpr unsigned kTrackerDotted = 0x02;  // takes precedence: the pen style is style & 2
inline constexpr unsigned kTrackerVertical = 0x40;
inline constexpr int kTrackerTolerance = 2;
inline constexpr int kTrackerHoverCursorBase = 0xFA00;
inline constexpr int kTrackerDragCursorBase = 0xFA20;

// Truncation toward zero; a value outside int (or not a number) gives INT_MIN, as the
// processor's conversion does, where a plain cast would be undefined.
constexpr int TruncateToInt(float value) noexcept
{
    if (!(value > -2147483904.0f && value < 2147483648.0f))
        return INT_MIN;
    return static_cast<int>(value);
}

constexpr float TrackerScale(int dotsPerInch) noexcept
{
    return static_cast<float>(dotsPerInch) / 96.0f;
}

constexpr bool TrackerIsDrawn(unsigned style) noexcept
{
    return (style & (kTrackerSolid | kTrackerDotted)) != 0;
}

// The stored width, except on a screen finer than 96 dots per inch, where at least one pixel
// is scaled and rounded.
constexpr int TrackerPenWidth(int width, float scale) noexcept
{
    if (!(scale > 1.0f))
        return width;
    return TruncateToInt(static_cast<float>(width > 1 ? width : 1) * scale + 0.5f);
}

// Whether a coordinate across the line (y of a horizontal one, x of a vertical one) is on it.
constexpr bool TrackerHit(int coordinate, int position, float scale) noexcept
{
    float tolerance = static_cast<float>(kTrackerTolerance) * scale;
    if (TruncateToInt(static_cast<float>(coordinate) + tolerance + 0.5f) < position)
        return false;
    return TruncateToInt(static_cast<float>(coordinate) - tolerance) <= position;
}

// Half the width of the band invalidated around the line while it is dragged.
constexpr int TrackerHalfBand(float scale) noexcept
{
    return TruncateToInt(scale * 0.5f + 0.5f);
}

// Cursor resources: 2000/2001 for a horizontal line, 2002/2003 for a vertical one.
constexpr int TrackerCursor(unsigned style, int base) noexcept
{
    return static_cast<int>(((style & kTrackerVertical) | static_cast<unsigned>(base)) >> 5);
}
constexpr int TrackerHoverCursor(unsigned style) noexcept
{
    return TrackerCursor(style, kTrackerHoverCursorBase);
}
constexpr int TrackerDragCursor(unsigned style) noexcept
{
    return TrackerCursor(style, kTrackerDragCursorBase);
}

// The drag of a line, message by message, over the line's own position (a hook that moves
// the line moves it for the drag too). The two state bits tell the drawing hook which pass it
// is in: bit 0 the drag is ending, bit 1 the pass for the previous position.
class TrackerDrag
{
public:
    enum Step
    {
        kDrawOld,     // drawing pass for the previous position (bit 1 set)
        kChanged,     // told of the change, with the position before it
        kDrawNew,     // drawing at the new position
        kDrawCancel,  // drawing when a moved drag is cancelled (both bits set)
    };
    static constexpr unsigned kEnding = 0x1;
    static constexpr unsigned kPreviousPass = 0x2;

    explicit TrackerDrag(int& position) noexcept : m_position(position), m_start(position) {}

    int Start() const noexcept { return m_start; }
    unsigned State() const noexcept { return m_state; }
    bool Moved() const noexcept { return m_moved; }

    // A move or the button's release at `proposed`. `adjust` may change the position; `hook`
    // is told each step with the position it concerns. Answers true when the loop ends.
    template <typename Adjust, typename Hook> bool Mouse(int proposed, bool release, Adjust&& adjust, Hook&& hook)
    {
        int old = m_position;
        m_position = proposed;
        adjust(m_position);
        m_state = release ? (m_state | kEnding) : (m_state & ~kEnding);
        if (m_position != old || (m_state & kEnding))
        {
            if (m_moved)
            {
                m_state |= kPreviousPass;
                hook(kDrawOld, old);
            }
            hook(kChanged, old);
            if (!release)
                m_moved = true;
        }
        if (m_state & kEnding)
            return true;
        if (m_position != old)
        {
            m_state &= ~kPreviousPass;
            hook(kDrawNew, m_position);
        }
        return false;
    }

    // Escape or the right button: a moved drag is drawn once more with both bits, and the
    // position goes back to the start.
    template <typename Hook> void Cancel(Hook&& hook)
    {
        if (m_moved)
        {
            m_state = kEnding | kPreviousPass;
            hook(kDrawCancel, m_position);
        }
        m_position = m_start;
    }

    // The end of the loop: an unmoved drag keeps its start; both bits clear. True when the
    // position changed.
    bool Finish() noexcept
    {
        if (!m_moved)
            m_position = m_start;
        m_state = 0;
        return m_position != m_start;
    }

private:
    int& m_position;
    int m_start;
    unsigned m_state = 0;
    bool m_moved = false;
};

}  // namespace kiv::rules
