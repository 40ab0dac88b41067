// mfcCPropertyPage in a property sheet: tooltips from its "_TIPTEXT" resource, command
// updates once initialised, colour push buttons beside the ones the page owns, the white
// scheme, and what it releases when its window goes.
#include "DialogsTest.h"

namespace dialogs_tests {

namespace {

// A page whose protected state the tests read: Open has a command handler; Owned can be
// attached through the page's own data exchange, which can also be made to fail.
class TestPage : public Hooked<::mfcCPropertyPage>
{
public:
    explicit TestPage(UINT nIDTemplate) : Hooked(nIDTemplate, 0) {}

    using ::mfcCPropertyPage::m_bInitialized;
    using ::mfcCPropertyPage::m_bmpComboArrow;
    using ::mfcCPropertyPage::m_bmpComboArrowDisabled;
    using ::mfcCPropertyPage::m_brBackground;
    using ::mfcCPropertyPage::m_colorButtons;
    using ::mfcCPropertyPage::m_pToolTip;
    using ::mfcCPropertyPage::OnCommand;

    BOOL m_bOwnButton = FALSE;
    BOOL m_bFailExchange = FALSE;
    CButton m_owned;
    int m_nOpened = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        if (m_bOwnButton)
            DDX_Control(pDX, IDC_OWNED, m_owned);
        if (m_bFailExchange && !pDX->m_bSaveAndValidate)
            pDX->Fail();
    }
    afx_msg void OnOpen() { ++m_nOpened; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestPage, Hooked<::mfcCPropertyPage>)
    ON_BN_CLICKED(IDC_OPEN, &TestPage::OnOpen)
END_MESSAGE_MAP()

// A modeless sheet showing the page.
class PageSheet
{
public:
    explicit PageSheet(TestPage& page) : m_sheet("Sheet")
    {
        m_sheet.AddPage(&page);
        m_bCreated = m_sheet.Create();
    }
    ~PageSheet()
    {
        if (m_sheet.m_hWnd != nullptr)
            m_sheet.DestroyWindow();
    }
    PageSheet(const PageSheet&) = delete;
    PageSheet& operator=(const PageSheet&) = delete;

    BOOL Created() const { return m_bCreated; }
    void Close() { m_sheet.DestroyWindow(); }

private:
    CPropertySheet m_sheet;
    BOOL m_bCreated = FALSE;
};

}  // namespace

TEST_F(mfcCPropertyPage, PageWithTipTextShowsTheTipsOfItsControls)
{
    TestPage page(IDD_PAGE);
    PageSheet sheet(page);
    ASSERT_TRUE(sheet.Created());
    ASSERT_NE(nullptr, page.m_pToolTip);
    HWND hTip = page.m_pToolTip->m_hWnd;
    EXPECT_EQ(std::vector<std::string>{"1003:Open"}, TipTexts(hTip));
    EXPECT_TRUE(::GetWindowLongPtrA(hTip, GWL_STYLE) & TTS_ALWAYSTIP);
    EXPECT_EQ(32767, ::SendMessageA(hTip, TTM_GETMAXTIPWIDTH, 0, 0));
    EXPECT_TRUE(RelaysMouseMessages(page, hTip, Item(page, IDC_OPEN)));
}

TEST_F(mfcCPropertyPage, PageWithoutTipTextHasNoTooltipAndRelaysNothing)
{
    TestPage page(IDD_PAGE_PLAIN);
    PageSheet sheet(page);
    ASSERT_TRUE(sheet.Created());
    EXPECT_EQ(nullptr, page.m_pToolTip);
    MSG msg = {Item(page, IDC_OPEN), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3), 0, {0, 0}};
    EXPECT_FALSE(page.PreTranslateMessage(&msg));  // the sheet does its pages' translation
}

TEST_F(mfcCPropertyPage, CommandUpdatesTheControlsOnlyOnceInitialised)
{
    TestPage page(IDD_PAGE);
    BOOL bOrphanEnabledBeforeInit = FALSE;
    page.m_beforeInit = [&] {
        ClickFrom(page, IDC_OPEN);
        bOrphanEnabledBeforeInit = OrphanEnabled(page);
    };
    PageSheet sheet(page);
    ASSERT_TRUE(sheet.Created());
    EXPECT_EQ(1, page.m_nOpened);
    EXPECT_TRUE(bOrphanEnabledBeforeInit);
    EXPECT_TRUE(page.m_bInitialized);
    EXPECT_FALSE(OrphanEnabled(page));
    EXPECT_TRUE(ClickDisablesTheOrphanAgain(page));
    EXPECT_EQ(2, page.m_nOpened);
}

TEST_F(mfcCPropertyPage, CommandWithoutAWindowUpdatesNothing)
{
    StrayButton stray;
    TestPage page(IDD_PAGE);
    page.m_bInitialized = TRUE;  // as a page whose window has gone again
    EXPECT_TRUE(page.OnCommand(MAKEWPARAM(IDC_OPEN, BN_CLICKED), (LPARAM)stray.Handle()));
    EXPECT_EQ(1, page.m_nOpened);
    EXPECT_TRUE(stray.Enabled());
}

TEST_F(mfcCPropertyPage, CommandAfterThePageWasClosedUpdatesNothing)
{
    StrayButton stray;
    TestPage page(IDD_PAGE);
    {
        PageSheet sheet(page);
        ASSERT_TRUE(sheet.Created());
    }
    ASSERT_EQ(nullptr, page.m_hWnd);
    ASSERT_TRUE(page.m_bInitialized);
    page.OnCommand(MAKEWPARAM(IDC_OPEN, BN_CLICKED), (LPARAM)stray.Handle());
    EXPECT_TRUE(stray.Enabled());
}

TEST_F(mfcCPropertyPage, PushButtonThatThePageAttachedStaysAndTheOthersBecomeColorButtons)
{
    TestPage page(IDD_PAGE);
    page.m_bOwnButton = TRUE;
    PageSheet sheet(page);
    ASSERT_TRUE(sheet.Created());
    EXPECT_EQ(&page.m_owned, CWnd::FromHandlePermanent(Item(page, IDC_OWNED)));
    std::vector<int> ids;
    for (CColorButton* button : page.m_colorButtons)
    {
        ids.push_back(button->GetDlgCtrlID());
        EXPECT_EQ(button, CWnd::FromHandlePermanent(button->m_hWnd));
    }
    EXPECT_EQ((std::vector<int>{IDC_OPEN, IDC_ORPHAN}), ids);
}

// The runtime's CDialog::OnInitDialog answers TRUE even when the data exchange fails (MFC's
// answers FALSE then), so here the base's answer is recorded beside the page's.
TEST_F(mfcCPropertyPage, OnInitDialogAnswersTrueEvenWhenItsDataExchangeFails)
{
    TestPage page(IDD_PAGE);
    page.m_bFailExchange = TRUE;
    BOOL bBaseAnswer = -1;
    page.m_beforeInit = [&] { bBaseAnswer = page.CDialog::OnInitDialog(); };
    PageSheet sheet(page);
    ASSERT_TRUE(sheet.Created());
    EXPECT_EQ(TRUE, page.m_bInitResult);
    RecordProperty("BaseAnswer", bBaseAnswer);
}

TEST_F(mfcCPropertyPage, PaintsWhiteWithFlatCombos)
{
    TestPage page(IDD_PAGE);
    PageSheet sheet(page);
    ASSERT_TRUE(sheet.Created());
    CRect client;
    page.GetClientRect(&client);
    PixelProbe probe(client.Width(), client.Height(), kUnderlay);
    EXPECT_NE(0, page.SendMessage(WM_ERASEBKGND, (WPARAM)probe.DC()));
    EXPECT_TRUE(AreaIs(probe, client, kWhite));
    PixelProbe shown = PixelProbe::CaptureClient(page.m_hWnd);
    EXPECT_TRUE(AreaIs(shown, CRect(client.right - 30, client.bottom - 30, client.right, client.bottom), kWhite));
    HWND hCombo = Item(page, IDC_COMBO);
    CRect combo;
    ::GetClientRect(hCombo, &combo);
    EXPECT_TRUE(
        ShowsFlatCombo(PixelProbe::CaptureClient(hCombo), combo.right, combo.bottom, kSteelBlue, LibraryPicture(2012)));
}

TEST_F(mfcCPropertyPage, DestroyReleasesTooltipPicturesButtonsAndBrush)
{
    TestPage page(IDD_PAGE);
    LONG_PTR buttonProc = 0;
    page.m_beforeInit = [&] { buttonProc = ::GetWindowLongPtrA(Item(page, IDC_OPEN), GWLP_WNDPROC); };
    PageSheet sheet(page);
    ASSERT_TRUE(sheet.Created());
    SchemeHold held = HoldOf(page, Item(page, IDC_OPEN), buttonProc);
    ASSERT_NE(nullptr, held.hToolTip);
    testing::AssertionResult released = testing::AssertionFailure() << "WM_DESTROY did not come";
    page.m_afterDestroy = [&] { released = ReleasedAll(page, held); };
    sheet.Close();
    EXPECT_TRUE(released);
}

}  // namespace dialogs_tests
