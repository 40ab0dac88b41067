// Frame windows: menu bar, command routing to the application, menu command updates and the
// layout of docked control bars.
#include "afximpl_.h"
#include "afxext.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_SIZE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_INITMENUPOPUP()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd()
{
    if (CTypedHandleMap<CWnd>::OwnsHandle(this))
        DestroyWindow();
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCTA& cs)
{
    if (cs.lpszClass == nullptr)
    {
        AfxRegisterRuntimeClasses();
        cs.lpszClass = kAfxFrameClass;
    }
    return TRUE;
}

BOOL CFrameWnd::Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       LPCSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext)
{
    HMENU hMenu = nullptr;
    if (lpszMenuName != nullptr)
    {
        HINSTANCE hInst = AfxFindResourceHandle(lpszMenuName, (LPCSTR)RT_MENU);
        hMenu = ::LoadMenuA(hInst, lpszMenuName);
        if (hMenu == nullptr)
            return FALSE;
    }
    m_strTitle = lpszWindowName;
    BOOL bDefault = ::EqualRect(&rect, &rectDefault);
    int x = bDefault ? CW_USEDEFAULT : rect.left;
    int y = bDefault ? CW_USEDEFAULT : rect.top;
    int cx = bDefault ? CW_USEDEFAULT : rect.right - rect.left;
    int cy = bDefault ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (!CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, x, y, cx, cy, pParentWnd->GetSafeHwnd(), hMenu,
                  (LPVOID)pContext))
    {
        if (hMenu != nullptr)
            ::DestroyMenu(hMenu);
        return FALSE;
    }
    m_hMenuDefault = hMenu;
    return TRUE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext)
{
    // The title is the first line of the frame's string.
    CString strFull;
    strFull.LoadString(nIDResource);
    int nEnd = strFull.Find('\n');
    CString strTitle = nEnd >= 0 ? strFull.Left(nEnd) : strFull;
    LPCSTR lpszResource = MAKEINTRESOURCEA(nIDResource);
    if (!::FindResourceA(AfxFindResourceHandle(lpszResource, (LPCSTR)RT_MENU), lpszResource, (LPCSTR)RT_MENU))
        lpszResource = nullptr;
    if (!Create(nullptr, strTitle, dwDefaultStyle & ~FWS_ADDTOTITLE, rectDefault, pParentWnd, lpszResource, 0,
                pContext))
        return FALSE;
    LPCSTR lpszAccel = MAKEINTRESOURCEA(nIDResource);
    m_hAccelTable = ::LoadAcceleratorsA(AfxFindResourceHandle(lpszAccel, (LPCSTR)RT_ACCELERATOR), lpszAccel);
    return TRUE;
}

void CFrameWnd::AddControlBar(CControlBar* pBar)
{
    m_listControlBars.Add(pBar);
}

void CFrameWnd::RemoveControlBar(CControlBar* pBar)
{
    for (INT_PTR i = 0; i < m_listControlBars.GetSize(); ++i)
        if (m_listControlBars[i] == pBar)
        {
            m_listControlBars.RemoveAt(i);
            return;
        }
}

CControlBar* CFrameWnd::GetControlBar(UINT nID)
{
    for (INT_PTR i = 0; i < m_listControlBars.GetSize(); ++i)
    {
        CControlBar* pBar = static_cast<CControlBar*>(m_listControlBars[i]);
        if ((UINT)pBar->GetDlgCtrlID() == nID)
            return pBar;
    }
    return nullptr;
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay)
{
    pBar->ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
    if (!bDelay)
        RecalcLayout();
}

void CFrameWnd::DockControlBar(CControlBar* pBar, UINT nDockBarID, LPCRECT)
{
    // Docking means: at the edge the bar's style or the given side names, laid out now.
    static const struct
    {
        UINT nID;
        DWORD dwAlign;
    } kSides[] = {{AFX_IDW_CONTROLBAR_FIRST + 27, CBRS_ALIGN_TOP},
                  {AFX_IDW_CONTROLBAR_FIRST + 28, CBRS_ALIGN_LEFT},
                  {AFX_IDW_CONTROLBAR_FIRST + 29, CBRS_ALIGN_RIGHT},
                  {AFX_IDW_CONTROLBAR_FIRST + 30, CBRS_ALIGN_BOTTOM}};
    for (const auto& side : kSides)
        if (side.nID == nDockBarID)
            pBar->m_dwStyle = (pBar->m_dwStyle & ~CBRS_ALIGN_ANY) | side.dwAlign;
    RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_hWnd != nullptr)
        RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST && m_hAccelTable != nullptr)
        return ::TranslateAcceleratorA(m_hWnd, m_hAccelTable, pMsg);
    return FALSE;
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    // The frame first, then the application.
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* pApp = AfxGetApp();
    return pApp != nullptr && pApp->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return CWnd::OnCommand(wParam, lParam);
}

void CFrameWnd::PostNcDestroy()
{
    // Frames live on the heap and go with their window.
    delete this;
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::OnClose()
{
    DestroyWindow();
}

void CFrameWnd::OnDestroy()
{
    CWnd::OnDestroy();
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu)
{
    if (bSysMenu)
        return;
    // Each command item asks its update handler; without one, an item with no command
    // handler is disabled.
    CCmdUI state;
    state.m_pMenu = pPopupMenu;
    state.m_nIndexMax = pPopupMenu->GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        state.m_nID = pPopupMenu->GetMenuItemID((int)state.m_nIndex);
        if (state.m_nID == 0 || state.m_nID == (UINT)-1)
            continue;  // separators and popups
        state.m_pSubMenu = nullptr;
        state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < 0xF000);
        state.m_nIndexMax = pPopupMenu->GetMenuItemCount();
    }
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM)
{
    return 0;
}

LRESULT CFrameWnd::OnKickIdle(WPARAM, LPARAM)
{
    return 0;
}
