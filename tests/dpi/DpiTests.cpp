// What scales with the screen's dots per inch, read back from real windows on a finer screen:
// the line tracker's hit band and pen width, and the inset of a coloured tab's image. The
// program runs once per resolution, in a Wine prefix whose desktop was given that setting.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include "PixelProbe.h"
#include "SolidImageList.h"
#include "TrackerTest.h"
#include "WindowingTest.h"

#include <cmath>

namespace {

using kivtest::kRed;
using kivtest::kSolid;
using kivtest::kVertical;
using kivtest::PixelProbe;

constexpr COLORREF kPaleBlueGrey = RGB(165, 192, 209);
constexpr COLORREF kImage = RGB(200, 0, 0);

// The setting the prefix was made with; none in the build's own prefix.
int ExpectedDpi()
{
    DWORD value = 0;
    DWORD size = sizeof(value);
    if (::RegGetValueA(HKEY_CURRENT_USER, "Control Panel\\Desktop", "LogPixels", RRF_RT_REG_DWORD, nullptr, &value,
                       &size) != ERROR_SUCCESS)
        return 0;
    return static_cast<int>(value);
}

int ScreenDpi()
{
    HDC screen = ::GetDC(nullptr);
    int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return dpi;
}

// Every test first checks that the screen is the one it was started for: run at 96 dots per
// inch it would prove nothing.
#define ASSERT_FINER_SCREEN()                                                                                          \
    do                                                                                                                 \
    {                                                                                                                  \
        ASSERT_GT(ExpectedDpi(), 96) << "run by ./kiv test, in the prefix of a finer screen";                          \
        ASSERT_EQ(ExpectedDpi(), ScreenDpi());                                                                         \
    } while (false)

class LineTracker : public kivtest::TrackerWindowTest
{};

}  // namespace

TEST(Screen, HasTheDotsPerInchOfItsPrefix)
{
    ASSERT_FINER_SCREEN();
    HDC screen = ::GetDC(nullptr);
    EXPECT_EQ(ExpectedDpi(), ::GetDeviceCaps(screen, LOGPIXELSX));
    ::ReleaseDC(nullptr, screen);
}

TEST_F(LineTracker, HitBandScalesWithTheScreen)
{
    ASSERT_FINER_SCREEN();
    const int band = 2 * ExpectedDpi() / 96;  // 3 pixels each side at 144, 4 at 192
    mfcCLineTracker horizontal(100, kSolid, 1, kRed);
    mfcCLineTracker vertical(100, kSolid | kVertical, 1, kRed);
    for (int c = 90; c <= 110; ++c)
    {
        bool on = c >= 100 - band && c <= 100 + band;
        EXPECT_EQ(on, horizontal.HitTest(CPoint(500, c), &m_wnd) != 0) << c;
        EXPECT_EQ(on, vertical.HitTest(CPoint(c, 500), &m_wnd) != 0) << c;
    }
}

TEST_F(LineTracker, PenOfWidthOneDrawsAtLeastTwoPixelsOnAFinerScreen)
{
    ASSERT_FINER_SCREEN();
    mfcCLineTracker tracker(60, kSolid, 1, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow(m_wnd);
    int rows = 0;
    for (int y = 50; y <= 70; ++y)
        rows += RowCount(probe, y, kRed) == probe.Width() ? 1 : 0;
    EXPECT_EQ(2, rows);  // 1 * 1.5 or 1 * 2, rounded
}

TEST_F(LineTracker, PenWidthIsScaledAndRounded)
{
    ASSERT_FINER_SCREEN();
    mfcCLineTracker tracker(70, kSolid | kVertical, 3, kRed);
    DrawNow(tracker);
    PixelProbe probe = ReadNow(m_wnd);
    int columns = 0;
    for (int x = 55; x <= 85; ++x)
        columns += ColumnCount(probe, x, kRed) == probe.Height() ? 1 : 0;
    EXPECT_EQ(static_cast<int>(3.0f * ExpectedDpi() / 96.0f + 0.5f), columns);  // 5 at 144, 6 at 192
}

TEST_F(LineTracker, DragBandStaysOnePixelEachSide)
{
    ASSERT_FINER_SCREEN();
    kivtest::RecordingTracker tracker(100, kSolid);
    Post(WM_MOUSEMOVE, MK_LBUTTON, 10, 120);
    Post(WM_LBUTTONUP, 0, 10, 120);
    EXPECT_EQ(1, Track(tracker, CPoint(10, 100)));
    // The band's half is the scale halved and rounded down after adding a half: 1 up to 2.
    EXPECT_EQ((std::vector<int>{99, 100, 119, 120}), UpdatedRows(m_wnd, 90, 130));
}

namespace {

class RecordingColoredTabs : public CMfcColoredTabCtrl
{
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        if (lpDrawItemStruct->itemID < 2)
            m_drawn[lpDrawItemStruct->itemID] = lpDrawItemStruct->rcItem;
        CMfcColoredTabCtrl::DrawItem(lpDrawItemStruct);
    }
    CRect m_drawn[2];
};

class ColoredTabCtrl : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(kivtest::CreateTopLevel(m_parent, 520, 320)); }
    void TearDown() override
    {
        if (m_parent.m_hWnd != nullptr)
            m_parent.DestroyWindow();
    }
    // Two tabs, the second with a solid 16-pixel image, subclassed as a host attaches it.
    void CreateTabsWithImage(RecordingColoredTabs& tabs)
    {
        HWND hWnd = ::CreateWindowExA(0, WC_TABCONTROLA, "", WS_CHILD | WS_VISIBLE, 10, 10, 480, 240, m_parent.m_hWnd,
                                      (HMENU)101, nullptr, nullptr);
        ::SendMessageA(hWnd, WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT), FALSE);
        tabs.SubclassWindow(hWnd);
        tabs.InsertItem(0, "First");
        tabs.InsertItem(1, "Second");
        kivtest::MakeSolidImageList(m_images, 16, kImage);
        tabs.SetImageList(&m_images);
        TCITEMA item = {};
        item.mask = TCIF_IMAGE;
        item.iImage = 0;
        tabs.SetItem(1, &item);
        tabs.SetCurSel(0);
    }
    CWnd m_parent;
    CImageList m_images;
};

}  // namespace

TEST_F(ColoredTabCtrl, ImageInsetScalesWithTheScreen)
{
    ASSERT_FINER_SCREEN();
    RecordingColoredTabs tabs;
    CreateTabsWithImage(tabs);
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    CRect rect = tabs.m_drawn[1];
    rect.bottom += 3;                                  // the grown rectangle of a tab that is not selected
    const float inset = 3.0f * ExpectedDpi() / 96.0f;  // 4.5 pixels at 144, 6 at 192
    const int side = std::min(rect.Width(), rect.Height());
    const int outside = static_cast<int>(std::floor(inset)) - 1;  // still the tab's fill
    const int inside = static_cast<int>(std::ceil(inset)) + 1;    // the image, past any blended edge
    ASSERT_GT(side - 2 * inside, 2);
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.left + outside, rect.top + inside)) << "left margin";
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.left + inside, rect.top + outside)) << "top margin";
    EXPECT_EQ(kImage, probe.Pixel(rect.left + inside, rect.top + inside));
    EXPECT_EQ(kImage, probe.Pixel(rect.left + side - inside - 1, rect.top + side - inside - 1));
    EXPECT_EQ(kPaleBlueGrey, probe.Pixel(rect.left + side - outside - 1, rect.top + inside)) << "right margin";
    tabs.SetImageList(nullptr);
}
