// Menus: the handle map, owned menus and owner-drawn items.
#include "afximpl_.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

__attribute__((noinline)) HMENU AFXAPI AfxGetSafeHmenu(const CMenu* pMenu)
{
    return pMenu == nullptr ? nullptr : pMenu->m_hMenu;
}

CMenu::~CMenu()
{
    DestroyMenu();
}

AFX_IMPLEMENT_FROMHANDLE(CMenu, HMENU)
AFX_IMPLEMENT_FROMHANDLEPERMANENT(CMenu, HMENU)
AFX_IMPLEMENT_DELETETEMPMAP(CMenu)
AFX_IMPLEMENT_ATTACH_DETACH(CMenu, HMENU)

BOOL CMenu::DestroyMenu()
{
    if (m_hMenu == nullptr)
        return FALSE;
    return ::DestroyMenu(Detach());
}

BOOL CMenu::LoadMenu(LPCSTR lpszResourceName)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, (LPCSTR)RT_MENU);
    return Attach(::LoadMenuA(hInst, lpszResourceName));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    int nLen = ::GetMenuStringA(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (nLen <= 0)
    {
        rString.Empty();
        return 0;
    }
    ::GetMenuStringA(m_hMenu, nIDItem, rString.GetBufferSetLength(nLen), nLen + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    // The window's owner-drawn measuring looks in the menu being tracked.
    AfxThreadState* pState = AfxGetThreadState();
    HWND hWndOld = pState->m_hTrackingWindow;
    HMENU hMenuOld = pState->m_hTrackingMenu;
    pState->m_hTrackingWindow = pWnd->GetSafeHwnd();
    pState->m_hTrackingMenu = m_hMenu;
    BOOL bResult = ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
    pState->m_hTrackingWindow = hWndOld;
    pState->m_hTrackingMenu = hMenuOld;
    return bResult;
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
