// mfcCDialogBar docked in a frame: tooltips from the template's "_TIPTEXT" resource, the
// second initialisation hook, the arrow pictures, the white erase and its destruction order.
#include "DialogsTest.h"

namespace dialogs_tests {

namespace {

constexpr UINT kBarId = AFX_IDW_DIALOGBAR;

// A bar whose protected state the tests read; it notes the tooltip window each run of
// OnInitDialogBar finds, and can refuse to initialise.
class TestBar : public DestroyHooked<::mfcCDialogBar>
{
public:
    using ::mfcCDialogBar::m_bmpComboArrow;
    using ::mfcCDialogBar::m_bmpComboArrowDisabled;
    using ::mfcCDialogBar::m_brBackground;
    using ::mfcCDialogBar::m_pToolTip;
    using ::mfcCDialogBar::UpdateTipText;

    BOOL m_bInitAnswer = TRUE;
    std::vector<HWND> m_tipsAtInit;

    HWND Tip() const { return m_pToolTip != nullptr ? m_pToolTip->m_hWnd : nullptr; }

protected:
    BOOL OnInitDialogBar() override
    {
        m_tipsAtInit.push_back(Tip());
        return m_bInitAnswer && ::mfcCDialogBar::OnInitDialogBar();
    }
};

// A frame of the test's own, on the heap as frames are; it goes with its window.
class BarFrame
{
public:
    BarFrame() : m_pFrame(new CFrameWnd)
    {
        if (!m_pFrame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 450)))
            m_pFrame = nullptr;
    }
    ~BarFrame()
    {
        if (m_pFrame != nullptr && ::IsWindow(m_pFrame->m_hWnd))
            m_pFrame->DestroyWindow();
    }
    BarFrame(const BarFrame&) = delete;
    BarFrame& operator=(const BarFrame&) = delete;

    CFrameWnd* operator->() const { return m_pFrame; }
    CFrameWnd* Get() const { return m_pFrame; }

private:
    CFrameWnd* m_pFrame;
};

// The tooltip windows owned by a window (a popup made for a child belongs to its top-level
// window).
int TooltipsOwnedBy(HWND hOwner)
{
    struct Search
    {
        HWND hOwner;
        int count;
    } search = {hOwner, 0};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND hWnd, LPARAM lParam) -> BOOL {
            auto* pSearch = reinterpret_cast<Search*>(lParam);
            char name[64] = {};
            ::GetClassNameA(hWnd, name, sizeof(name));
            if (::lstrcmpiA(name, TOOLTIPS_CLASSA) == 0 && ::GetWindow(hWnd, GW_OWNER) == pSearch->hOwner)
                ++pSearch->count;
            return TRUE;
        },
        (LPARAM)&search);
    return search.count;
}

}  // namespace

TEST_F(mfcCDialogBar, NamedTemplateWithoutTipTextHasNoTooltips)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), "TOOLBAR", CBRS_TOP, kBarId));
    EXPECT_EQ(nullptr, bar.m_pToolTip);
    EXPECT_EQ(1u, bar.m_tipsAtInit.size());
    EXPECT_EQ(0, TooltipsOwnedBy(frame->m_hWnd));
    EXPECT_EQ(&bar, frame->GetControlBar(kBarId));
}

TEST_F(mfcCDialogBar, NumericTemplateRunsOnInitDialogBarTwiceAndEndsWithOneTooltip)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), IDD_BAR, CBRS_TOP, kBarId));
    ASSERT_EQ(2u, bar.m_tipsAtInit.size());
    EXPECT_NE(nullptr, bar.m_tipsAtInit[0]);
    EXPECT_NE(bar.m_tipsAtInit[0], bar.m_tipsAtInit[1]);  // the second set replaced the first
    EXPECT_FALSE(::IsWindow(bar.m_tipsAtInit[0]));
    EXPECT_EQ(bar.m_tipsAtInit[1], bar.Tip());
    EXPECT_EQ(1, TooltipsOwnedBy(frame->m_hWnd));
}

TEST_F(mfcCDialogBar, NamedTemplateWithTipTextBuildsItsTooltipsOnce)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), "TIPBAR", CBRS_TOP, kBarId));
    EXPECT_EQ(1u, bar.m_tipsAtInit.size());
    ASSERT_NE(nullptr, bar.m_pToolTip);
    EXPECT_EQ(std::vector<std::string>{"1003:Open"}, TipTexts(bar.Tip()));
}

TEST_F(mfcCDialogBar, TipShowsThePartAfterTheLineFeedAndStaysAboveAllWindows)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), IDD_BAR, CBRS_TOP, kBarId));
    ASSERT_NE(nullptr, bar.m_pToolTip);
    EXPECT_EQ(std::vector<std::string>{"1003:Open"}, TipTexts(bar.Tip()));
    EXPECT_TRUE(::GetWindowLongPtrA(bar.Tip(), GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_TRUE(::GetWindowLongPtrA(bar.Tip(), GWL_STYLE) & TTS_ALWAYSTIP);
    EXPECT_EQ(-1, ::SendMessageA(bar.Tip(), TTM_GETMAXTIPWIDTH, 0, 0));  // lines are not broken by width
    EXPECT_TRUE(RelaysMouseMessages(bar, bar.Tip(), Item(bar, IDC_OPEN)));
}

TEST_F(mfcCDialogBar, UpdateTipTextChangesTheTipOfAControl)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), "TIPBAR", CBRS_TOP, kBarId));
    bar.UpdateTipText("Opens a file", bar.GetDlgItem(IDC_OPEN), 0);
    EXPECT_EQ(std::vector<std::string>{"1003:Opens a file"}, TipTexts(bar.Tip()));
}

TEST_F(mfcCDialogBar, OnInitDialogBarFalseFailsCreateAndLoadsNoArrows)
{
    BarFrame frame;
    TestBar named, numbered;
    named.m_bInitAnswer = FALSE;
    numbered.m_bInitAnswer = FALSE;
    EXPECT_FALSE(named.Create(frame.Get(), "TIPBAR", CBRS_TOP, kBarId));
    EXPECT_FALSE(numbered.Create(frame.Get(), IDD_BAR, CBRS_BOTTOM, kBarId + 1));
    for (TestBar* bar : {&named, &numbered})
    {
        EXPECT_TRUE(::IsWindow(bar->m_hWnd));  // the window stays
        EXPECT_EQ(1u, bar->m_tipsAtInit.size());
        EXPECT_EQ(nullptr, bar->m_bmpComboArrow.GetSafeHandle());
        EXPECT_EQ(nullptr, bar->m_bmpComboArrowDisabled.GetSafeHandle());
    }
}

TEST_F(mfcCDialogBar, CreatedBarLoadsTheArrowsAndDrawsItsComboBoxesFlat)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), IDD_BAR, CBRS_TOP, kBarId));
    ASSERT_NE(nullptr, bar.m_bmpComboArrow.GetSafeHandle());
    ASSERT_NE(nullptr, bar.m_bmpComboArrowDisabled.GetSafeHandle());
    HWND hCombo = Item(bar, IDC_COMBO);
    CRect combo;
    ::GetClientRect(hCombo, &combo);
    PixelProbe picture = LibraryPicture(2012);
    EXPECT_TRUE(ShowsFlatCombo(PixelProbe::CaptureClient(hCombo), combo.right, combo.bottom, kSteelBlue, picture));
    EXPECT_TRUE(ShowsFlatCombo(CtlColorPixels(bar.m_hWnd, hCombo, WM_CTLCOLOREDIT), combo.right, combo.bottom,
                               kSteelBlue, picture));
    // Other controls are not drawn on.
    EXPECT_EQ(0, PaintedPixels(CtlColorPixels(bar.m_hWnd, Item(bar, IDC_OPEN), WM_CTLCOLORSTATIC)));
}

TEST_F(mfcCDialogBar, EraseFillsTheClipBoxWhite)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), IDD_BAR, CBRS_TOP, kBarId));
    PixelProbe probe(60, 30, kUnderlay);
    ::IntersectClipRect(probe.DC(), 10, 5, 40, 20);
    EXPECT_NE(0, bar.SendMessage(WM_ERASEBKGND, (WPARAM)probe.DC()));
    EXPECT_TRUE(AreaIs(probe, CRect(10, 5, 40, 20), kWhite));
    EXPECT_EQ(60 * 30 - 30 * 15, probe.Count(kUnderlay, CRect(0, 0, 60, 30)));
}

TEST_F(mfcCDialogBar, DestroyLeavesTheFrameBeforeDeletingTheTooltipAndKeepsTheBrush)
{
    BarFrame frame;
    TestBar bar;
    ASSERT_TRUE(bar.Create(frame.Get(), IDD_BAR, CBRS_TOP, kBarId));
    HGDIOBJ hArrow = bar.m_bmpComboArrow.GetSafeHandle();
    CFrameWnd* pDockSiteAtTipDestroy = frame.Get();
    CControlBar* pBarAtTipDestroy = &bar;
    DestroyWatch watch(bar.Tip(), [&] {
        pDockSiteAtTipDestroy = bar.m_pDockSite;
        pBarAtTipDestroy = frame->GetControlBar(kBarId);
    });
    bool checked = false;
    bar.m_afterDestroy = [&] {
        checked = true;
        EXPECT_EQ(nullptr, bar.m_pToolTip);
        EXPECT_EQ(nullptr, bar.m_bmpComboArrow.GetSafeHandle());
        EXPECT_EQ(0u, ::GetObjectType(hArrow));
        EXPECT_EQ((DWORD)OBJ_BRUSH, ::GetObjectType(bar.m_brBackground.GetSafeHandle()));
    };
    EXPECT_TRUE(bar.DestroyWindow());
    EXPECT_TRUE(checked);
    EXPECT_EQ(nullptr, pDockSiteAtTipDestroy);
    EXPECT_EQ(nullptr, pBarAtTipDestroy);
}

}  // namespace dialogs_tests
