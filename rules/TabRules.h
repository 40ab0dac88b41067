// The geometry of the coloured tab control: the widened page area, the grown rectangle of a
// tab that is not selected, where a tab's text goes without an image, and the square its image
// is scaled into (inset by 3 device-independent pixels) with the text after it.
#pragma once

namespace kiv::rules {

struct TabBox
{
    int left, top, right, bottom;
};

// Half away from zero, then truncated.
constexpr int RoundHalfAway(float value) noexcept
{
    return static_cast<int>(value < 0 ? value - 0.5f : value + 0.5f);
}

// The page area, widened so that its fill meets the tabs: sideways for tabs on top, up and
// down for tabs at the bottom.
constexpr TabBox WidenPageArea(TabBox page, bool bottomTabs) noexcept
{
    if (bottomTabs)
    {
        page.top -= 2;
        page.bottom += 3;
    }
    else
    {
        page.left -= 2;
        page.right += 3;
    }
    return page;
}

// A tab that is not selected reaches into the page: 3 pixels down on top, 2 left at the bottom.
constexpr TabBox GrowNormalTab(TabBox tab, bool bottomTabs) noexcept
{
    if (bottomTabs)
        tab.left -= 2;
    else
        tab.bottom += 3;
    return tab;
}

struct TabPoint
{
    int x, y;
};

constexpr TabPoint TextWithoutImage(TabBox item, int edgeHeight) noexcept
{
    return {item.left + 5, item.top + 2 + edgeHeight};
}

struct TabImage
{
    float x, y, width, height;
};

// The image's square: the tab's smaller side, inset by 3 pixels at 96 dots per inch.
constexpr TabImage ImageSquare(TabBox tab, float scaleX, float scaleY) noexcept
{
    int width = tab.right - tab.left;
    int height = tab.bottom - tab.top;
    float side = static_cast<float>(width < height ? width : height);
    return {static_cast<float>(tab.left) + 3 * scaleX, static_cast<float>(tab.top) + 3 * scaleY, side - 2 * 3 * scaleX,
            side - 2 * 3 * scaleY};
}

// Where the text of a tab with an image starts. `item` has its left edge already advanced by
// one space; `space` is the width of a space.
constexpr TabPoint TextAfterImage(TabBox item, TabImage image, bool bottomTabs, float scaleX, float scaleY, int space,
                                  int edgeHeight) noexcept
{
    if (bottomTabs)
    {
        item.top += 5 + static_cast<int>(image.width);
        item.left += RoundHalfAway(image.height);
        return {item.left, item.top + 3};
    }
    item.left += RoundHalfAway(static_cast<float>(RoundHalfAway(3 * scaleX)) + image.width) + space;
    item.top += edgeHeight;
    return {item.left, item.top + 6 + RoundHalfAway(3 * scaleY)};
}

}  // namespace kiv::rules
