// Window operations that take more than one platform call, command updates of child
// controls, control-bar layout and the modal loop.
#include "afximpl_.h"

namespace {

// nStyleOffset is GWL_STYLE or GWL_EXSTYLE; nFlags (SWP_FRAMECHANGED, say) make the window take
// the change.
BOOL ModifyStyleAt(HWND hWnd, int nStyleOffset, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    DWORD dwStyle = (DWORD)::GetWindowLongPtrA(hWnd, nStyleOffset);
    DWORD dwNewStyle = (dwStyle & ~dwRemove) | dwAdd;
    if (dwStyle == dwNewStyle)
        return FALSE;
    ::SetWindowLongPtrA(hWnd, nStyleOffset, (LONG_PTR)dwNewStyle);
    if (nFlags != 0)
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

}  // namespace

BOOL PASCAL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleAt(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL PASCAL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleAt(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyle(m_hWnd, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleEx(m_hWnd, dwRemove, dwAdd, nFlags);
}

void CWnd::GetWindowText(CString& rString) const
{
    int nLen = ::GetWindowTextLengthA(m_hWnd);
    ::GetWindowTextA(m_hWnd, rString.GetBufferSetLength(nLen), nLen + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    HWND hWnd = ::GetDlgItem(m_hWnd, nID);
    if (hWnd != nullptr)
    {
        int nLen = ::GetWindowTextLengthA(hWnd);
        ::GetWindowTextA(hWnd, rString.GetBufferSetLength(nLen), nLen + 1);
        rString.ReleaseBuffer();
    }
    return rString.GetLength();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    ::SendMessageA(m_hWnd, WM_SETFONT, (WPARAM)pFont->GetSafeHandle(), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle((HFONT)::SendMessageA(m_hWnd, WM_GETFONT, 0, 0));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu());
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, (LPPOINT)lpRect, 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, (LPPOINT)lpRect, 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), (LPPOINT)lpRect, 2);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    // A child centres in its parent's client area; a popup on its owner, or on the work area
    // of its monitor, and stays inside that work area.
    DWORD dwStyle = GetStyle();
    HWND hWndCenter = pAlternateOwner->GetSafeHwnd();
    if (hWndCenter == nullptr)
        hWndCenter = (dwStyle & WS_CHILD) ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    CRect rcDlg;
    GetWindowRect(&rcDlg);
    CRect rcArea;
    CRect rcCenter;
    if (dwStyle & WS_CHILD)
    {
        HWND hWndParent = ::GetParent(m_hWnd);
        ::GetClientRect(hWndParent, &rcArea);
        ::GetClientRect(hWndCenter, &rcCenter);
        ::MapWindowPoints(hWndCenter, hWndParent, (LPPOINT)&rcCenter, 2);
        ::MapWindowPoints(nullptr, hWndParent, (LPPOINT)&rcDlg, 2);
    }
    else
    {
        MONITORINFO mi = {};
        mi.cbSize = sizeof(mi);
        HMONITOR hMonitor = ::MonitorFromWindow(hWndCenter ? hWndCenter : m_hWnd, MONITOR_DEFAULTTOPRIMARY);
        ::GetMonitorInfoA(hMonitor, &mi);
        rcArea = mi.rcWork;
        if (hWndCenter != nullptr && ::IsWindowVisible(hWndCenter) && !::IsIconic(hWndCenter))
            ::GetWindowRect(hWndCenter, &rcCenter);
        else
            rcCenter = rcArea;
    }
    int x = (rcCenter.left + rcCenter.right) / 2 - rcDlg.Width() / 2;
    int y = (rcCenter.top + rcCenter.bottom) / 2 - rcDlg.Height() / 2;
    if (x + rcDlg.Width() > rcArea.right)
        x = rcArea.right - rcDlg.Width();
    if (x < rcArea.left)
        x = rcArea.left;
    if (y + rcDlg.Height() > rcArea.bottom)
        y = rcArea.bottom - rcDlg.Height();
    if (y < rcArea.top)
        y = rcArea.top;
    ::SetWindowPos(m_hWnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, (HRGN)prgnUpdate->GetSafeHandle(), flags);
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, (HRGN)prgnClip->GetSafeHandle(), flags));
}

int CWnd::ReleaseDC(CDC* pDC)
{
    return ::ReleaseDC(m_hWnd, pDC->GetSafeHdc());
}

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const
{
    HWND hWnd = m_hWnd;
    for (HWND hParent; (::GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_CHILD) && (hParent = ::GetParent(hWnd)) != nullptr;)
        hWnd = hParent;
    return FromHandle(hWnd);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    for (HWND hWnd = ::GetParent(m_hWnd); hWnd != nullptr; hWnd = ::GetParent(hWnd))
    {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd != nullptr && pWnd->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
            return static_cast<CFrameWnd*>(pWnd);
    }
    return nullptr;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    for (HWND hChild = ::GetTopWindow(m_hWnd); hChild != nullptr; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
    {
        if (!bOnlyPerm)
            ::SendMessageA(hChild, message, wParam, lParam);
        else if (CWnd* pWnd = FromHandlePermanent(hChild))
            AfxCallWndProc(pWnd, hChild, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(hChild) != nullptr)
            FromHandle(hChild)->SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

int CWnd::MessageBox(LPCSTR lpszText, LPCSTR lpszCaption, UINT nType)
{
    if (lpszCaption == nullptr)
        lpszCaption = AfxGetAppName();
    return ::MessageBoxA(m_hWnd, lpszText, lpszCaption, nType);
}

// Command updates of child controls

namespace {

// Check boxes, radio buttons and group boxes that the system toggles keep their state.
BOOL IsDisabledWithoutHandler(HWND hWnd)
{
    if ((::SendMessageA(hWnd, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0)
        return FALSE;
    switch (::GetWindowLongPtrA(hWnd, GWL_STYLE) & 0x0F)
    {
    case BS_AUTOCHECKBOX:
    case BS_AUTO3STATE:
    case BS_GROUPBOX:
    case BS_AUTORADIOBUTTON:
        return FALSE;
    default:
        return TRUE;
    }
}

}  // namespace

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    CCmdUI state;
    CWnd wndTemp;
    for (HWND hChild = ::GetTopWindow(m_hWnd); hChild != nullptr; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
    {
        wndTemp.m_hWnd = hChild;
        state.m_nID = (UINT)::GetDlgCtrlID(hChild);
        state.m_pOther = &wndTemp;
        // A control's own reflected update handler comes first, then the parent's.
        if (CWnd* pChild = FromHandlePermanent(hChild))
            if (pChild->CWnd::OnCmdMsg(0, (int)MAKELONG(0xFFFF, WM_COMMAND + WM_REFLECT_BASE), &state, nullptr))
                continue;
        if (CWnd::OnCmdMsg(state.m_nID, (int)CN_UPDATE_COMMAND_UI, &state, nullptr))
            continue;
        state.DoUpdate(pTarget, bDisableIfNoHndler && IsDisabledWithoutHandler(hChild));
    }
    wndTemp.m_hWnd = nullptr;
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch)
{
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr)
        layout.rect = *lpRectClient;
    else
        ::GetClientRect(m_hWnd, &layout.rect);
    if (nFlag != reposQuery)
        layout.hDWP = ::BeginDeferWindowPos(8);
    HWND hWndLeftOver = nullptr;
    for (HWND hChild = ::GetTopWindow(m_hWnd); hChild != nullptr; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
    {
        UINT nID = (UINT)::GetDlgCtrlID(hChild);
        if (nID == nIDLeftOver)
            hWndLeftOver = hChild;
        else if (nID >= nIDFirst && nID <= nIDLast && FromHandlePermanent(hChild) != nullptr)
            ::SendMessageA(hChild, WM_SIZEPARENT, 0, (LPARAM)&layout);
    }
    if (nFlag == reposQuery)
    {
        if (lpRectParam != nullptr)
            *lpRectParam = layout.rect;
        return;
    }
    if (hWndLeftOver != nullptr && !(nFlag & reposNoPosLeftOver))
    {
        CRect rect(layout.rect);
        if (layout.hDWP != nullptr)
            layout.hDWP = ::DeferWindowPos(layout.hDWP, hWndLeftOver, nullptr, rect.left, rect.top, rect.Width(),
                                           rect.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
    }
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
}

// Dialog data

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    CDataExchange dx(this, bSaveAndValidate);
    DoDataExchange(&dx);
    return !dx.m_bFailed;
}

BOOL CWnd::ExecuteDlgInit(LPCSTR lpszResourceName)
{
    // Combo and list box strings of a dialog template: records of control id, message,
    // length and data, ending with a zero id.
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, MAKEINTRESOURCEA(240));
    HRSRC hRsrc = ::FindResourceA(hInst, lpszResourceName, MAKEINTRESOURCEA(240));
    if (hRsrc == nullptr)
        return TRUE;
    const BYTE* p = (const BYTE*)::LockResource(::LoadResource(hInst, hRsrc));
    const BYTE* pEnd = p + ::SizeofResource(hInst, hRsrc);
    while (p + 8 <= pEnd)
    {
        WORD nIDC = *(const WORD*)p;
        WORD nMsg = *(const WORD*)(p + 2);
        DWORD dwLen = *(const DWORD*)(p + 4);
        if (nIDC == 0)
            break;
        p += 8;
        // The resource keeps the 16-bit message numbers.
        if (nMsg == 0x0401)
            ::SendDlgItemMessageA(m_hWnd, nIDC, LB_ADDSTRING, 0, (LPARAM)p);
        else if (nMsg == 0x0403)
            ::SendDlgItemMessageA(m_hWnd, nIDC, CB_ADDSTRING, 0, (LPARAM)p);
        p += dwLen;
    }
    return TRUE;
}

// Modal loops

int CWnd::RunModalLoop(DWORD dwFlags)
{
    BOOL bShowIdle = (dwFlags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE);
    HWND hWndParent = ::GetParent(m_hWnd);
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    LONG lIdleCount = 0;
    MSG msg;
    while (ContinueModal())
    {
        if (!::PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE))
        {
            // Idle: show the window the first time, tell the owner, then wait.
            if (bShowIdle)
            {
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                bShowIdle = FALSE;
            }
            if (!(dwFlags & MLF_NOIDLEMSG) && hWndParent != nullptr && lIdleCount == 0)
                ::SendMessageA(hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, (LPARAM)m_hWnd);
            if (!(dwFlags & MLF_NOKICKIDLE))
                SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, lIdleCount);
            ++lIdleCount;
            if (!ContinueModal())
                break;
            ::WaitMessage();
            continue;
        }
        if (!AfxPumpMessage())
        {
            AfxPostQuitMessage(0);  // the quit belongs to the outer loop
            m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
            return -1;
        }
        lIdleCount = 0;
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if (m_nFlags & WF_CONTINUEMODAL)
    {
        m_nFlags &= ~WF_CONTINUEMODAL;
        ::PostMessageA(nullptr, WM_NULL, 0, 0);  // wakes the loop
    }
}
