#include "MainFrame.h"

#include "DetailsDialog.h"
#include "GalleryText.h"
#include "GalleryTour.h"
#include "MainDialog.h"
#include "SettingsSheet.h"
#include "resource.h"

namespace {

constexpr UINT_PTR kTourTimer = 1;
constexpr UINT kTourTickMs = 100;
// The frame's size at 96 dots per inch; it grows with the screen's resolution.
constexpr int kFrameWidth = 760;
constexpr int kFrameHeight = 560;

}  // namespace

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_TIMER()
    ON_MESSAGE(WM_GALLERY_OPEN_MENU, &CMainFrame::OnOpenMenu)
    ON_COMMAND(ID_FILE_EXIT, &CMainFrame::OnFileExit)
    ON_COMMAND(ID_VIEW_MAIN, &CMainFrame::OnViewMain)
    ON_COMMAND(IDC_OPEN_MAIN, &CMainFrame::OnViewMain)
    ON_COMMAND(ID_VIEW_SETTINGS, &CMainFrame::OnViewSettings)
    ON_COMMAND(ID_VIEW_DETAILS, &CMainFrame::OnViewDetails)
    ON_COMMAND(ID_VIEW_MESSAGE, &CMainFrame::OnViewMessage)
    ON_COMMAND(ID_VIEW_RULERS, &CMainFrame::OnViewRulers)
    ON_UPDATE_COMMAND_UI(ID_VIEW_RULERS, &CMainFrame::OnUpdateViewRulers)
    ON_COMMAND(ID_HELP_ABOUT, &CMainFrame::OnHelpAbout)
END_MESSAGE_MAP()

CMainFrame::CMainFrame() = default;

CMainFrame::~CMainFrame() = default;

BOOL CMainFrame::PreCreateWindow(CREATESTRUCTA& cs)
{
    HDC hScreen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(hScreen, LOGPIXELSX);
    ::ReleaseDC(nullptr, hScreen);
    cs.x = 0;
    cs.y = 0;
    cs.cx = ::MulDiv(kFrameWidth, dpi, 96);
    cs.cy = ::MulDiv(kFrameHeight, dpi, 96);
    return CFrameWnd::PreCreateWindow(cs);
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!m_bar.Create(this, IDD_BAR, CBRS_TOP, AFX_IDW_DIALOGBAR))
        return -1;
    TranslateFrame();
    return 0;
}

// The title and every menu item in the current language; the menu draws them as wide text.
void CMainFrame::TranslateFrame()
{
    CString title;
    GetWindowText(title);
    gallery::SetWideText(m_hWnd, gallery::Translate(title, "Caption", gallery::Section(IDR_MAINFRAME)));
    m_menu.Attach(::GetMenu(m_hWnd));
    m_menu.TranslateMenu(&m_menu, gallery::Section(IDR_MAINFRAME), 1, m_hWnd);
    DrawMenuBar();
}

void CMainFrame::OnDestroy()
{
    KillTimer(kTourTimer);
    m_menu.Detach();
    CFrameWnd::OnDestroy();
}

void CMainFrame::OnPaint()
{
    CPaintDC dc(this);
    CRect client, bar;
    GetClientRect(&client);
    m_bar.GetWindowRect(&bar);
    client.top += bar.Height();
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_APPWORKSPACE));
    client.DeflateRect(client.Width() / 8, client.Height() / 3);
    CFont* pOldFont = dc.SelectObject(m_bar.GetFont());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(RGB(255, 255, 255));
    strStringW hint(IDS_FRAME_HINT);
    ::DrawTextW(dc.m_hDC, hint, hint.GetLength(), &client, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
    dc.SelectObject(pOldFont);
}

void CMainFrame::StartTour(const CString& folder)
{
    m_tour = std::make_unique<CGalleryTour>(this, folder);
    SetTimer(kTourTimer, kTourTickMs, nullptr);
}

void CMainFrame::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == kTourTimer && m_tour != nullptr)
        m_tour->Tick();
}

// A drop-down menu of the menu bar, opened under its item as a click would open it.
LRESULT CMainFrame::OnOpenMenu(WPARAM wParam, LPARAM)
{
    HMENU hBar = ::GetMenu(m_hWnd);
    RECT item = {};
    if (!::GetMenuItemRect(m_hWnd, hBar, (UINT)wParam, &item))
        return 0;
    ::HiliteMenuItem(m_hWnd, hBar, (UINT)wParam, MF_BYPOSITION | MF_HILITE);
    ::TrackPopupMenu(::GetSubMenu(hBar, (int)wParam), TPM_LEFTALIGN | TPM_TOPALIGN, item.left, item.bottom, 0, m_hWnd,
                     nullptr);
    ::HiliteMenuItem(m_hWnd, hBar, (UINT)wParam, MF_BYPOSITION | MF_UNHILITE);
    return 0;
}

void CMainFrame::OnFileExit()
{
    PostMessage(WM_CLOSE);
}

void CMainFrame::OnViewMain()
{
    CMainDialog dialog(this);
    dialog.DoModal();
}

void CMainFrame::OnViewSettings()
{
    CSettingsSheet sheet(this);
    sheet.DoModal();
}

void CMainFrame::OnViewDetails()
{
    CDetailsDialog dialog(this);
    dialog.DoModal();
}

void CMainFrame::OnViewMessage()
{
    LocalizationManager::Get()->ShowMessageBox(IDS_SAVED, MB_ICONINFORMATION);
}

void CMainFrame::OnViewRulers()
{
    m_bRulers = !m_bRulers;
}

void CMainFrame::OnUpdateViewRulers(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(m_bRulers);
}

void CMainFrame::OnHelpAbout()
{
    LocalizationManager::Get()->ShowMessageBox(IDS_ABOUT, MB_ICONINFORMATION);
}
