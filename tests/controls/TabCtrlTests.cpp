// CUnicodeTabCtrl and CMfcColoredTabCtrl: owner-drawn tabs, their fills and captions, read
// back from real tab controls.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include "PixelProbe.h"
#include "SolidImageList.h"
#include "WindowingTest.h"

#include <new>

namespace {

using kivtest::PixelProbe;

constexpr COLORREF kSteelBlue = RGB(78, 130, 172);
constexpr COLORREF kPaleBlueGrey = RGB(165, 192, 209);
constexpr COLORREF kDarkBlue = RGB(48, 83, 109);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class TabTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(kivtest::CreateTopLevel(m_parent, 360, 220)); }
    void TearDown() override
    {
        if (m_parent.m_hWnd != nullptr)
            m_parent.DestroyWindow();
    }
    // A tab control with three tabs, in the dialog font.
    void CreateTabs(CTabCtrl& tabs, DWORD style = 0)
    {
        ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 330, 170), &m_parent, 100));
        tabs.SendMessage(WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
        tabs.InsertItem(0, "First");
        tabs.InsertItem(1, "Second");
        tabs.InsertItem(2, "Third");
    }
    static CRect ItemRect(CTabCtrl& tabs, int item)
    {
        CRect rect;
        tabs.GetItemRect(item, &rect);
        return rect;
    }
    CWnd m_parent;
};

// Notes the rectangle each tab is drawn into, as the control receives it.
class RecordingColoredTabs : public CMfcColoredTabCtrl
{
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        m_drawn[lpDrawItemStruct->itemID] = lpDrawItemStruct->rcItem;
        CMfcColoredTabCtrl::DrawItem(lpDrawItemStruct);
    }
    CRect m_drawn[3];
};

// The tab control as a subclassing host attaches it: created plain, then subclassed.
void AttachColoured(CMfcColoredTabCtrl& coloured, CWnd& parent, DWORD style = 0)
{
    HWND hWnd = ::CreateWindowExA(0, WC_TABCONTROLA, "", WS_CHILD | WS_VISIBLE | style, 10, 10, 320, 160, parent.m_hWnd,
                                  (HMENU)101, nullptr, nullptr);
    ::SendMessageA(hWnd, WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
    coloured.SubclassWindow(hWnd);
    for (int i = 0; i < 3; ++i)
    {
        const char* names[] = {"First", "Second", "Third"};
        coloured.InsertItem(i, names[i]);
    }
}

}  // namespace

TEST_F(TabTest, UnicodeTabCtrlSetUnicodeOnALiveControlMakesItsTabsOwnerDrawn)
{
    CUnicodeTabCtrl tabs;
    CreateTabs(tabs);
    EXPECT_FALSE(tabs.GetStyle() & TCS_OWNERDRAWFIXED);
    CStringW texts[3] = {L"\x03A0\x03C1\x03CE\x03C4\x03BF", L"\x0394\x03B5\x03CD\x03C4\x03B5\x03C1\x03BF",
                         L"\x03A4\x03C1\x03AF\x03C4\x03BF"};
    tabs.SetUnicode(texts, 3);
    EXPECT_TRUE(tabs.GetStyle() & TCS_OWNERDRAWFIXED);
}

TEST_F(TabTest, UnicodeTabCtrlSetUnicodeBeforeTheWindowOnlyKeepsTheTexts)
{
    CUnicodeTabCtrl tabs;
    CStringW texts[3] = {L"a", L"b", L"c"};
    tabs.SetUnicode(texts, 3);
    CreateTabs(tabs);
    EXPECT_FALSE(tabs.GetStyle() & TCS_OWNERDRAWFIXED);
}

TEST_F(TabTest, UnicodeTabCtrlFillsTheSelectedTabSteelBlueAndTheOthersPale)
{
    CUnicodeTabCtrl tabs;
    CreateTabs(tabs);
    CStringW texts[3] = {L"One", L"Two", L"Three"};
    tabs.SetUnicode(texts, 3);
    tabs.SetCurSel(1);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect selected = ItemRect(tabs, 1);
    CRect normal = ItemRect(tabs, 0);
    EXPECT_EQ(kSteelBlue, probe.Pixel(selected.CenterPoint().x, selected.CenterPoint().y));
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(normal.CenterPoint().x, normal.CenterPoint().y));
}

TEST_F(TabTest, UnicodeTabCtrlCaptionBrushIsTransparentSoOnlyTheFillShows)
{
    CUnicodeTabCtrl tabs;
    CreateTabs(tabs);
    CStringW texts[3] = {L"WWWWWW", L"MMMMMM", L"XXXXXX"};
    tabs.SetUnicode(texts, 3);
    tabs.SetCurSel(0);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    // The middle of each tab, where a caption would be, holds the fill colour only.
    for (int item = 0; item < 3; ++item)
    {
        CRect rect = ItemRect(tabs, item);
        CRect middle(rect.left + 4, rect.top + 4, rect.right - 4, rect.bottom - 4);
        COLORREF fill = item == 0 ? kSteelBlue : kPaleBlueGrey;
        EXPECT_EQ(middle.Width() * middle.Height(), probe.Count(fill, middle)) << item;
    }
}

TEST_F(TabTest, UnicodeTabCtrlSetUnicodeWithZeroTextsKeepsAnEmptyArray)
{
    CUnicodeTabCtrl tabs;
    CreateTabs(tabs);
    tabs.SetUnicode(nullptr, 0);
    EXPECT_TRUE(tabs.GetStyle() & TCS_OWNERDRAWFIXED);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);  // no caption is read past the array
    for (int item = 0; item < 3; ++item)
    {
        CRect rect = ItemRect(tabs, item);
        COLORREF fill = item == tabs.GetCurSel() ? kSteelBlue : kPaleBlueGrey;
        EXPECT_EQ(fill, probe.Pixel(rect.CenterPoint().x, rect.CenterPoint().y)) << item;
    }
}

TEST_F(TabTest, UnicodeTabCtrlWithFewerCaptionsThanTabsPaintsOnlyFillsPastThem)
{
    CUnicodeTabCtrl tabs;
    CreateTabs(tabs);
    CStringW texts[1] = {L"WWWWWW"};
    tabs.SetUnicode(texts, 1);
    tabs.SetCurSel(0);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect rect = ItemRect(tabs, 2);
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.CenterPoint().x, rect.CenterPoint().y));
}

TEST_F(TabTest, UnicodeTabCtrlSetUnicodeWithANegativeCountFailsInTheAllocationAndKeepsTheCaptions)
{
    CUnicodeTabCtrl tabs;
    CreateTabs(tabs);
    CStringW texts[3] = {L"One", L"Two", L"Three"};
    tabs.SetUnicode(texts, 3);
    EXPECT_THROW(tabs.SetUnicode(texts, -5), std::bad_alloc);
    tabs.SetCurSel(1);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);  // still paints its three tabs
    CRect selected = ItemRect(tabs, 1);
    EXPECT_EQ(kSteelBlue, probe.Pixel(selected.CenterPoint().x, selected.CenterPoint().y));
}

TEST_F(TabTest, ColoredTabCtrlSubclassingMakesTheTabsOwnerDrawn)
{
    CMfcColoredTabCtrl tabs;
    AttachColoured(tabs, m_parent);
    EXPECT_TRUE(tabs.GetStyle() & TCS_OWNERDRAWFIXED);
}

TEST_F(TabTest, ColoredTabCtrlSelectedTabIsSteelBlueWithWhiteText)
{
    CMfcColoredTabCtrl tabs;
    AttachColoured(tabs, m_parent);
    tabs.SetCurSel(0);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect rect = ItemRect(tabs, 0);
    EXPECT_EQ(kSteelBlue, probe.Pixel(rect.right - 2, rect.top + 2));
    EXPECT_GT(probe.Count(kWhite, rect), 5);
}

TEST_F(TabTest, ColoredTabCtrlNormalTabIsPaleWithDarkBlueTextAndGrowsThreeDown)
{
    RecordingColoredTabs tabs;
    AttachColoured(tabs, m_parent);
    tabs.SetCurSel(0);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect rect = tabs.m_drawn[1];
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.right - 2, rect.top + 1));
    EXPECT_GT(probe.Count(kDarkBlue, rect), 5);
    // Below the rectangle it was given, the tab's fill goes on (the system's frame line may
    // cover the third row).
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.CenterPoint().x, rect.bottom));
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.CenterPoint().x, rect.bottom + 1));
}

TEST_F(TabTest, ColoredTabCtrlBottomTabGrowsTwoToTheLeft)
{
    RecordingColoredTabs tabs;
    AttachColoured(tabs, m_parent, TCS_BOTTOM);
    tabs.SetCurSel(0);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect rect = tabs.m_drawn[2];
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.left - 1, rect.CenterPoint().y));
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.left - 2, rect.CenterPoint().y));
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.CenterPoint().x, rect.bottom - 1));
}

TEST_F(TabTest, ColoredTabCtrlTextWithoutImageStartsFiveRightAndTwoPlusEdgeDown)
{
    RecordingColoredTabs tabs;
    AttachColoured(tabs, m_parent);
    tabs.SetCurSel(0);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect rect = tabs.m_drawn[1];
    int left = rect.right, top = rect.bottom;
    for (int y = rect.top; y < rect.bottom; ++y)
        for (int x = rect.left; x < rect.right; ++x)
            if (probe.Pixel(x, y) == kDarkBlue)
            {
                left = std::min(left, x);
                top = std::min(top, y);
            }
    // The text cell starts there; its first ink lies at or a little after that point.
    EXPECT_GE(left, rect.left + 5);
    EXPECT_LE(left, rect.left + 8);
    EXPECT_GE(top, rect.top + 2 + ::GetSystemMetrics(SM_CYEDGE));
}

TEST_F(TabTest, ColoredTabCtrlPageAreaIsWhite)
{
    CMfcColoredTabCtrl tabs;
    AttachColoured(tabs, m_parent);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect client;
    tabs.GetClientRect(&client);
    EXPECT_EQ(kWhite, probe.Pixel(client.CenterPoint().x, client.CenterPoint().y));
    EXPECT_EQ(kWhite, probe.Pixel(client.right - 3, client.bottom - 3));
}

TEST_F(TabTest, ColoredTabCtrlDrawsTheImageInsetByThreePixels)
{
    RecordingColoredTabs tabs;
    AttachColoured(tabs, m_parent);
    CImageList images;
    kivtest::MakeSolidImageList(images, 16, RGB(200, 0, 0));
    tabs.SetImageList(&images);
    TCITEMA item = {};
    item.mask = TCIF_IMAGE;
    item.iImage = 0;
    tabs.SetItem(1, &item);
    tabs.SetCurSel(0);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect rect = tabs.m_drawn[1];
    rect.bottom += 3;  // the grown rectangle of a tab that is not selected
    int side = std::min(rect.Width(), rect.Height());
    // Inside the inset square the image; in the 3-pixel margin the tab's fill.
    EXPECT_EQ(RGB(200, 0, 0), probe.Pixel(rect.left + 3 + (side - 6) / 2, rect.top + 3 + (side - 6) / 2));
    EXPECT_EQ(RGB(200, 0, 0), probe.Pixel(rect.left + 4, rect.top + 4));
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.left + 1, rect.top + 1));
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.left + 3 + side - 6 + 1, rect.top + 4));
    tabs.SetImageList(nullptr);
}
