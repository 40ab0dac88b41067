// The sample host driven as a person would use it: menus, bar, dialog and sheet.
#include "MessageSpy.h"
#include "ModalDriver.h"
#include "PixelProbe.h"
#include "SampleHost.h"
#include "WindowingTest.h"

using kivtest::Expected;
using kivtest::ModalDriver;

namespace {

// Starts the application for one test and closes it afterwards.
class SampleHost : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(theApp.InitInstance());
        m_pFrame = theApp.Frame();
        ASSERT_NE(nullptr, m_pFrame);
    }
    void TearDown() override
    {
        if (theApp.m_pMainWnd != nullptr)
        {
            theApp.m_pMainWnd->DestroyWindow();
            theApp.Run();  // takes the quit message the closing main window posts
        }
    }
    BOOL Enabled(CWnd& parent, int nID) { return ::IsWindowEnabled(::GetDlgItem(parent.m_hWnd, nID)); }
    CMainFrame* m_pFrame = nullptr;
};

}  // namespace

TEST_F(SampleHost, ApplicationNamesItselfAndShowsItsMainFrame)
{
    EXPECT_EQ(&theApp, AfxGetApp());
    EXPECT_STREQ("Sample Host", AfxGetAppName());
    EXPECT_STREQ("Sample Host", theApp.m_pszAppName);
    EXPECT_EQ(m_pFrame, AfxGetMainWnd());
    CString title;
    m_pFrame->GetWindowText(title);
    EXPECT_STREQ("Sample Host", title);
    EXPECT_TRUE(m_pFrame->IsWindowVisible());
    CMenu* pMenu = m_pFrame->GetMenu();
    ASSERT_NE(nullptr, pMenu);
    EXPECT_EQ(2u, pMenu->GetMenuItemCount());
}

TEST_F(SampleHost, DialogBarIsDockedAlongTheTopOfTheFrame)
{
    CDialogBar& bar = m_pFrame->m_wndBar;
    ASSERT_NE(nullptr, bar.m_hWnd);
    EXPECT_EQ(&bar, m_pFrame->GetControlBar(AFX_IDW_DIALOGBAR));
    EXPECT_EQ(m_pFrame, bar.m_pDockSite);
    CRect client, rect;
    m_pFrame->GetClientRect(&client);
    bar.GetWindowRect(&rect);
    m_pFrame->ScreenToClient(&rect);
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(0, rect.top);
    EXPECT_EQ(client.Width(), rect.Width());
    EXPECT_EQ(bar.m_sizeDefault.cy, rect.Height());
    m_pFrame->SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    m_pFrame->GetClientRect(&client);
    bar.GetWindowRect(&rect);
    EXPECT_EQ(client.Width(), rect.Width());
}

TEST_F(SampleHost, IdleUpdateDisablesTheBarButtonThatNoOneHandles)
{
    CDialogBar& bar = m_pFrame->m_wndBar;
    theApp.OnIdle(0);
    EXPECT_TRUE(Enabled(bar, IDC_BAR_GO));
    EXPECT_FALSE(Enabled(bar, IDC_BAR_OFF));
    EXPECT_TRUE(Enabled(bar, IDC_BAR_CHECK));
}

TEST_F(SampleHost, BarButtonCommandReachesTheFrame)
{
    kivtest::ModalDriver::Click(m_pFrame->m_wndBar.m_hWnd, IDC_BAR_GO);
    EXPECT_EQ(1, m_pFrame->m_nGo);
}

TEST_F(SampleHost, MenuPopupDisablesTheItemItsUpdateHandlerDisables)
{
    CMenu* pTools = m_pFrame->GetMenu()->GetSubMenu(1);
    m_pFrame->SendMessage(WM_INITMENUPOPUP, (WPARAM)pTools->m_hMenu, MAKELPARAM(1, FALSE));
    EXPECT_TRUE(pTools->GetMenuState(ID_TOOLS_DISABLED, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_FALSE(pTools->GetMenuState(ID_TOOLS_SETTINGS, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_FALSE(pTools->GetMenuState(ID_TOOLS_PROPERTIES, MF_BYCOMMAND) & MF_GRAYED);
}

TEST_F(SampleHost, RunPumpsWithPreTranslationUntilTheMainFrameCloses)
{
    HWND hGo = ::GetDlgItem(m_pFrame->m_wndBar.m_hWnd, IDC_BAR_GO);
    m_pFrame->PostMessage(WM_COMMAND, ID_FILE_OPEN_TEST);
    ::PostMessageA(hGo, WM_KEYDOWN, 'A', 0x001E0001);
    m_pFrame->PostMessage(WM_CLOSE);
    EXPECT_EQ(0, theApp.Run());
    EXPECT_EQ(nullptr, theApp.m_pMainWnd);
    EXPECT_EQ(nullptr, AfxGetMainWnd());
}

TEST_F(SampleHost, KeysOfTheBarControlsPassTheFramesPreTranslateMessage)
{
    HWND hGo = ::GetDlgItem(m_pFrame->m_wndBar.m_hWnd, IDC_BAR_GO);
    CMainFrame* pFrame = m_pFrame;
    ::PostMessageA(hGo, WM_KEYDOWN, 'A', 0x001E0001);
    pFrame->PostMessage(WM_COMMAND, ID_FILE_OPEN_TEST);
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE) && AfxPumpMessage())
    {}
    EXPECT_GE(pFrame->m_nKeysSeen, 1);
    EXPECT_EQ(1, pFrame->m_nOpened);
}

TEST_F(SampleHost, SettingsDialogExchangesDataAndDrawsItsSwatch)
{
    kivtest::MessageSpy spy;
    spy.Only({WM_ENABLE});
    spy.Watch(m_pFrame->m_hWnd);
    CString name;
    BOOL bApplyEnabled = TRUE, bOrphanEnabled = TRUE;
    COLORREF swatch = 0;
    ModalDriver driver([&](HWND hDlg) {
        name = ModalDriver::ItemText(hDlg, IDC_NAME);
        bApplyEnabled = ::IsWindowEnabled(::GetDlgItem(hDlg, IDC_APPLY));
        bOrphanEnabled = ::IsWindowEnabled(::GetDlgItem(hDlg, IDC_NOHANDLER));
        kivtest::PixelProbe probe = kivtest::PixelProbe::CaptureClient(::GetDlgItem(hDlg, IDC_OWNERDRAW));
        swatch = probe.Pixel(probe.Width() / 2, probe.Height() / 2);
        ::SetDlgItemTextA(hDlg, IDC_NAME, "Renamed");
        ::SetDlgItemTextA(hDlg, IDC_COUNT, "12");
        ModalDriver::Click(hDlg, IDOK);
    });
    m_pFrame->SendMessage(WM_COMMAND, ID_TOOLS_SETTINGS);
    EXPECT_EQ(IDOK, m_pFrame->m_nLastResult);
    EXPECT_STREQ("Initial", name);
    EXPECT_FALSE(bApplyEnabled);
    EXPECT_FALSE(bOrphanEnabled);
    EXPECT_EQ(kSwatchColour, swatch);
    EXPECT_STREQ("Renamed", m_pFrame->m_strName);
    EXPECT_EQ(12, m_pFrame->m_nCount);
    // The frame is disabled while its modal dialog runs, then enabled again.
    EXPECT_TRUE(spy.Matches({{WM_ENABLE, Expected::kWParam, FALSE}, {WM_ENABLE, Expected::kWParam, TRUE}}));
}

TEST_F(SampleHost, PropertiesSheetWithTwoPagesKeepsWhatWasApplied)
{
    CString path;
    ModalDriver driver([&](HWND hSheet) {
        HWND hPage = (HWND)::SendMessageA(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0);
        path = ModalDriver::ItemText(hPage, IDC_PAGE1_EDIT);
        ::SetDlgItemTextA(hPage, IDC_PAGE1_EDIT, "D:\\other");
        ::SendMessageA(hSheet, PSM_SETCURSEL, 1, 0);
        HWND hFlags = (HWND)::SendMessageA(hSheet, PSM_GETCURRENTPAGEHWND, 0, 0);
        ModalDriver::Click(hFlags, IDC_PAGE2_CHECK);
        ::SendMessageA(hSheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
    });
    m_pFrame->SendMessage(WM_COMMAND, ID_TOOLS_PROPERTIES);
    EXPECT_EQ(IDOK, m_pFrame->m_nLastResult);
    EXPECT_STREQ("C:\\data", path);
    EXPECT_STREQ("D:\\other", m_pFrame->m_strPath);
    EXPECT_EQ(1, m_pFrame->m_nFlag);
    EXPECT_TRUE(m_pFrame->IsWindowEnabled());
}

TEST_F(SampleHost, DisabledMenuCommandIsDroppedAndEnabledOneRuns)
{
    m_pFrame->SendMessage(WM_COMMAND, ID_FILE_OPEN_TEST);
    EXPECT_EQ(1, m_pFrame->m_nOpened);
    EXPECT_EQ(1, m_pFrame->SendMessage(WM_COMMAND, ID_TOOLS_DISABLED));
}
