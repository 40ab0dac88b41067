// Windows: handle maps, creation hooking, the window procedure, message dispatch and
// reflection to child objects.
#include "afximpl_.h"

// Signed coordinates packed in a message parameter.
#define GET_X_LPARAM(lp) ((int)(short)LOWORD(lp))
#define GET_Y_LPARAM(lp) ((int)(short)HIWORD(lp))

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_CTLCOLOR()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

CWnd::CWnd() = default;

CWnd::~CWnd()
{
    // An object that still owns its window takes it along.
    if (CTypedHandleMap<CWnd>::OwnsHandle(this))
        DestroyWindow();
}

__attribute__((noinline)) HWND AFXAPI AfxGetSafeHwnd(const CWnd* pWnd)
{
    return pWnd == nullptr ? nullptr : pWnd->m_hWnd;
}

// Handle maps

AFX_IMPLEMENT_FROMHANDLE(CWnd, HWND)
AFX_IMPLEMENT_FROMHANDLEPERMANENT(CWnd, HWND)
AFX_IMPLEMENT_DELETETEMPMAP(CWnd)
AFX_IMPLEMENT_ATTACH_DETACH(CWnd, HWND)

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    WNDPROC pfnOld = (WNDPROC)::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)AfxWndProc);
    if (pfnOld != AfxWndProc)
        m_pfnSuper = pfnOld;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    HWND hWndControl = ::GetDlgItem(pParent->GetSafeHwnd(), (int)nID);
    return hWndControl != nullptr && SubclassWindow(hWndControl);
}

HWND CWnd::UnsubclassWindow()
{
    if (m_pfnSuper != nullptr)
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, (LONG_PTR)m_pfnSuper);
    m_pfnSuper = nullptr;
    return Detach();
}

void CWnd::PreSubclassWindow() {}

// Creation

namespace {

BOOL IsImeWindow(HWND hWnd)
{
    char szClass[16] = {};
    ::GetClassNameA(hWnd, szClass, sizeof(szClass));
    return lstrcmpiA(szClass, "IME") == 0;
}

BOOL IsDialogWindow(HWND hWnd)
{
    char szClass[16] = {};
    ::GetClassNameA(hWnd, szClass, sizeof(szClass));
    return lstrcmpA(szClass, "#32770") == 0;
}

LRESULT CALLBACK CbtFilterHook(int code, WPARAM wParam, LPARAM lParam)
{
    AfxThreadState* pState = AfxGetThreadState();
    HHOOK hHook = pState->m_hHookCbt;
    if (code != HCBT_CREATEWND || pState->m_pWndInit == nullptr || IsImeWindow((HWND)wParam))
        return ::CallNextHookEx(hHook, code, wParam, lParam);
    // A dialog object waits for a dialog window, whatever else is made before it.
    if (pState->m_pWndInit->IsKindOf(RUNTIME_CLASS(CDialog)) && !IsDialogWindow((HWND)wParam))
        return ::CallNextHookEx(hHook, code, wParam, lParam);
    // The object takes the window before it sees WM_NCCREATE; one window per hook.
    CWnd* pWnd = pState->m_pWndInit;
    pState->m_pWndInit = nullptr;
    ::UnhookWindowsHookEx(hHook);
    pState->m_hHookCbt = nullptr;
    HWND hWnd = (HWND)wParam;
    pWnd->Attach(hWnd);
    pWnd->PreSubclassWindow();
    WNDPROC pfnOld = (WNDPROC)::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)AfxWndProc);
    if (pfnOld != AfxWndProc)
        pWnd->m_pfnSuper = pfnOld;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

void AFXAPI AfxHookWindowCreate(CWnd* pWnd)
{
    AfxThreadState* pState = AfxGetThreadState();
    if (pState->m_hHookCbt == nullptr)
        pState->m_hHookCbt = ::SetWindowsHookExA(WH_CBT, CbtFilterHook, nullptr, ::GetCurrentThreadId());
    pState->m_pWndInit = pWnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    AfxThreadState* pState = AfxGetThreadState();
    if (pState->m_hHookCbt != nullptr)
    {
        ::UnhookWindowsHookEx(pState->m_hHookCbt);
        pState->m_hHookCbt = nullptr;
    }
    if (pState->m_pWndInit != nullptr)
    {
        pState->m_pWndInit = nullptr;
        return FALSE;  // no window was created
    }
    return TRUE;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTA& cs)
{
    if (cs.lpszClass == nullptr)
    {
        AfxRegisterRuntimeClasses();
        cs.lpszClass = kAfxWndClass;
    }
    return TRUE;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    CREATESTRUCTA cs = {lpParam, AfxGetInstanceHandle(), nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
                        x,       (LONG)dwStyle,          lpszWindowName, lpszClassName, dwExStyle};
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    HWND hWnd = ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, (DWORD)cs.style, cs.x, cs.y, cs.cx, cs.cy,
                                  cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();  // the window never reached this object
    return hWnd != nullptr;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd->GetSafeHwnd(), (HMENU)(UINT_PTR)nID, lpParam);
}

BOOL CWnd::Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, CCreateContext* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, (LPVOID)pContext);
}

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATEA lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    if (hInst == nullptr)
        hInst = AfxGetResourceHandle();
    AfxHookWindowCreate(this);
    HWND hWnd = ::CreateDialogIndirectParamA(hInst, lpDialogTemplate, pParentWnd->GetSafeHwnd(), AfxDlgProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return hWnd != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    BOOL bPermanent = CTypedHandleMap<CWnd>::OwnsHandle(this);
    BOOL bResult = ::DestroyWindow(m_hWnd);
    // A permanent object was detached (and may be deleted) by WM_NCDESTROY.
    if (!bPermanent)
        Detach();
    return bResult;
}

void CWnd::OnNcDestroy()
{
    if (CWinThread* pThread = AfxGetThread())
    {
        if (pThread->m_pMainWnd == this)
        {
            AfxPostQuitMessage(0);  // the application ends with its main window
            pThread->m_pMainWnd = nullptr;
        }
        if (pThread->m_pActiveWnd == this)
            pThread->m_pActiveWnd = nullptr;
    }
    WNDPROC pfnOurs = (WNDPROC)::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC);
    Default();
    // Give the original procedure back unless someone subclassed over us meanwhile.
    if ((WNDPROC)::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC) == pfnOurs && m_pfnSuper != nullptr)
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, (LONG_PTR)m_pfnSuper);
    m_pfnSuper = nullptr;
    Detach();
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

// The window procedure

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (pWnd == nullptr || pWnd->m_hWnd != hWnd)
        return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(pWnd, hWnd, nMsg, wParam, lParam);
}

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    // Each message, nested ones included, is the current message while it is handled.
    AfxThreadState* pState = AfxGetThreadState();
    MSG oldMsg = pState->m_lastSentMsg;
    pState->m_lastSentMsg.hwnd = hWnd;
    pState->m_lastSentMsg.message = nMsg;
    pState->m_lastSentMsg.wParam = wParam;
    pState->m_lastSentMsg.lParam = lParam;
    LRESULT lResult = pWnd->WindowProc(nMsg, wParam, lParam);
    pState->m_lastSentMsg = oldMsg;
    return lResult;
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    AfxThreadState* pState = AfxGetThreadState();
    pState->m_lastSentMsg.time = (DWORD)::GetMessageTime();
    DWORD pos = ::GetMessagePos();
    pState->m_lastSentMsg.pt.x = GET_X_LPARAM(pos);
    pState->m_lastSentMsg.pt.y = GET_Y_LPARAM(pos);
    return &pState->m_lastSentMsg;
}

LRESULT CWnd::Default()
{
    const MSG& msg = AfxGetThreadState()->m_lastSentMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_pfnSuper != nullptr)
        return ::CallWindowProcA(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    if (!OnWndMsg(message, wParam, lParam, &lResult))
        lResult = DefWindowProc(message, wParam, lParam);
    return lResult;
}

namespace {

const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* pMap, UINT nMsg)
{
    for (; pMap != nullptr; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr)
        if (const AFX_MSGMAP_ENTRY* pEntry = AfxFindMessageEntry(pMap->lpEntries, nMsg, 0, 0))
            return pEntry;
    return nullptr;
}

// A device context or window wrapped for one call only, released without touching the handle.
class CDCWrap : public CDC
{
public:
    explicit CDCWrap(HDC hDC) { m_hDC = m_hAttribDC = hDC; }
    ~CDCWrap() override { m_hDC = m_hAttribDC = nullptr; }
};

}  // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = 0;
    if (message == WM_COMMAND)
    {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        lResult = 1;
    }
    else if (message == WM_NOTIFY)
    {
        NMHDR* pNMHDR = (NMHDR*)lParam;
        if (pNMHDR->hwndFrom == nullptr || !OnNotify(wParam, lParam, &lResult))
            return FALSE;
    }
    else if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC)
    {
        // Every control-colour message reaches the one merged handler.
        const AFX_MSGMAP_ENTRY* pEntry = FindEntry(GetMessageMap(), WM_CTLCOLOR);
        if (pEntry == nullptr)
            return FALSE;
        AFX_CTLCOLOR ctl = {(HWND)lParam, (HDC)wParam, message - WM_CTLCOLORMSGBOX};
        lResult = DispatchWindowMessage(pEntry, WM_CTLCOLOR, 0, (LPARAM)&ctl);
    }
    else
    {
        if (message == WM_INITMENUPOPUP)
        {
            AfxThreadState* pState = AfxGetThreadState();
            pState->m_hTrackingMenu = (HMENU)wParam;
            pState->m_hTrackingWindow = m_hWnd;
        }
        const AFX_MSGMAP_ENTRY* pEntry = FindEntry(GetMessageMap(), message);
        if (pEntry == nullptr)
            return FALSE;
        lResult = DispatchWindowMessage(pEntry, message, wParam, lParam);
    }
    if (pResult != nullptr)
        *pResult = lResult;
    return TRUE;
}

namespace {

template <class F> F WndHandler(AFX_PMSG pfn)
{
    return reinterpret_cast<F>(static_cast<AFX_PMSGW>(pfn));
}

}  // namespace

LRESULT CWnd::DispatchWindowMessage(const AFX_MSGMAP_ENTRY* pEntry, UINT message, WPARAM wParam, LPARAM lParam)
{
    AFX_PMSG pfn = pEntry->pfn;
    switch (pEntry->nSig)
    {
    case AfxSig_v_v:
        (this->*WndHandler<void (CWnd::*)()>(pfn))();
        return 0;
    case AfxSig_b_v:
        return (this->*WndHandler<BOOL (CWnd::*)()>(pfn))();
    case AfxSig_u_v:
        return (this->*WndHandler<UINT (CWnd::*)()>(pfn))();
    case AfxSig_l_w_l:
        return (this->*WndHandler<LRESULT (CWnd::*)(WPARAM, LPARAM)>(pfn))(wParam, lParam);
    case AfxSig_b_D:
        return (this->*WndHandler<BOOL (CWnd::*)(CDC*)>(pfn))(CDC::FromHandle((HDC)wParam));
    case AfxSig_h_D_W_u:
    {
        AFX_CTLCOLOR* pCtl = (AFX_CTLCOLOR*)lParam;
        CDCWrap dc(pCtl->hDC);
        CWnd wndTemp(pCtl->hWnd);
        CWnd* pWnd = FromHandlePermanent(pCtl->hWnd);
        HBRUSH hbr =
            (this->*WndHandler<HBRUSH (CWnd::*)(CDC*, CWnd*, UINT)>(pfn))(&dc, pWnd ? pWnd : &wndTemp, pCtl->nCtlType);
        wndTemp.m_hWnd = nullptr;
        return (LRESULT)hbr;
    }
    case AfxSig_h_D_u:
    {
        AFX_CTLCOLOR* pCtl = (AFX_CTLCOLOR*)lParam;
        CDCWrap dc(pCtl->hDC);
        return (LRESULT)(this->*WndHandler<HBRUSH (CWnd::*)(CDC*, UINT)>(pfn))(&dc, pCtl->nCtlType);
    }
    case AfxSig_l_p:
        return (this->*WndHandler<LRESULT (CWnd::*)(CPoint)>(pfn))(CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
    case AfxSig_v_u_p:
        (this->*WndHandler<void (CWnd::*)(UINT, CPoint)>(pfn))((UINT)wParam,
                                                               CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case AfxSig_v_W:
        (this->*WndHandler<void (CWnd::*)(CWnd*)>(pfn))(
            FromHandle(message == WM_CAPTURECHANGED ? (HWND)lParam : (HWND)wParam));
        return 0;
    case AfxSig_v_b:
        (this->*WndHandler<void (CWnd::*)(BOOL)>(pfn))((BOOL)wParam);
        return 0;
    case AfxSig_i_CREATE:
        return (LRESULT)(this->*WndHandler<int (CWnd::*)(LPCREATESTRUCT)>(pfn))((LPCREATESTRUCT)lParam);
    case AfxSig_v_u_i_i:
        (this->*WndHandler<void (CWnd::*)(UINT, int, int)>(pfn))((UINT)wParam, LOWORD(lParam), HIWORD(lParam));
        return 0;
    case AfxSig_v_i_DRAW:
        (this->*WndHandler<void (CWnd::*)(int, LPDRAWITEMSTRUCT)>(pfn))((int)wParam, (LPDRAWITEMSTRUCT)lParam);
        return TRUE;
    case AfxSig_v_i_MEASURE:
        (this->*WndHandler<void (CWnd::*)(int, LPMEASUREITEMSTRUCT)>(pfn))((int)wParam, (LPMEASUREITEMSTRUCT)lParam);
        return TRUE;
    case AfxSig_v_DRAW:
        (this->*WndHandler<void (CWnd::*)(LPDRAWITEMSTRUCT)>(pfn))((LPDRAWITEMSTRUCT)lParam);
        return TRUE;
    case AfxSig_v_MEASURE:
        (this->*WndHandler<void (CWnd::*)(LPMEASUREITEMSTRUCT)>(pfn))((LPMEASUREITEMSTRUCT)lParam);
        return TRUE;
    case AfxSig_v_up:
        (this->*WndHandler<void (CWnd::*)(UINT_PTR)>(pfn))((UINT_PTR)wParam);
        return 0;
    case AfxSig_b_W_u_u:
        return (this->*WndHandler<BOOL (CWnd::*)(CWnd*, UINT, UINT)>(pfn))(FromHandle((HWND)wParam), LOWORD(lParam),
                                                                           HIWORD(lParam));
    case AfxSig_v_u_u_u:
        (this->*WndHandler<void (CWnd::*)(UINT, UINT, UINT)>(pfn))((UINT)wParam, LOWORD(lParam), HIWORD(lParam));
        return 0;
    case AfxSig_v_b_u:
        (this->*WndHandler<void (CWnd::*)(BOOL, UINT)>(pfn))((BOOL)wParam, (UINT)lParam);
        return 0;
    case AfxSig_v_M_u_b:
        (this->*WndHandler<void (CWnd::*)(CMenu*, UINT, BOOL)>(pfn))(CMenu::FromHandle((HMENU)wParam), LOWORD(lParam),
                                                                     HIWORD(lParam));
        return 0;
    case AfxSig_v_W_p:
        (this->*WndHandler<void (CWnd::*)(CWnd*, CPoint)>(pfn))(FromHandle((HWND)wParam),
                                                                CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case AfxSig_v_MINMAX:
        (this->*WndHandler<void (CWnd::*)(MINMAXINFO*)>(pfn))((MINMAXINFO*)lParam);
        return 0;
    case AfxSig_v_u_l:
        (this->*WndHandler<void (CWnd::*)(UINT, LPARAM)>(pfn))((UINT)wParam, lParam);
        return 0;
    case AfxSig_v_POS:
        (this->*WndHandler<void (CWnd::*)(WINDOWPOS*)>(pfn))((WINDOWPOS*)lParam);
        return 0;
    case AfxSig_v_u_W_b:
        (this->*WndHandler<void (CWnd::*)(UINT, CWnd*, BOOL)>(pfn))(LOWORD(wParam), FromHandle((HWND)lParam),
                                                                    HIWORD(wParam));
        return 0;
    default:
        return 0;
    }
}

// Commands, notifications and reflection

namespace {

// Only asks whether a command is enabled.
class CProbeCmdUI : public CCmdUI
{
public:
    BOOL m_bEnabled = TRUE;
    void Enable(BOOL bOn) override
    {
        m_bEnabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCSTR) override {}
};

}  // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    UINT nID = LOWORD(wParam);
    HWND hWndCtrl = (HWND)lParam;
    int nCode = HIWORD(wParam);
    if (hWndCtrl == nullptr)
    {
        // A menu item or accelerator whose update handler disabled it does nothing.
        if (nID == 0)
            return FALSE;
        CProbeCmdUI state;
        state.m_nID = nID;
        OnCmdMsg(nID, (int)CN_UPDATE_COMMAND_UI, &state, nullptr);
        if (!state.m_bEnabled)
            return TRUE;
        nCode = CN_COMMAND;
    }
    else
    {
        if (ReflectLastMsg(hWndCtrl))
            return TRUE;  // the control's own object handled it
        if (nID == 0)
            return FALSE;
    }
    return OnCmdMsg(nID, nCode, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    NMHDR* pNMHDR = (NMHDR*)lParam;
    HWND hWndCtrl = pNMHDR->hwndFrom;
    if (ReflectLastMsg(hWndCtrl, pResult))
        return TRUE;
    AFX_NOTIFY notify = {pResult, pNMHDR};
    UINT nID = (UINT)::GetDlgCtrlID(hWndCtrl);
    return OnCmdMsg(nID, (int)MAKELONG(pNMHDR->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* pWnd = FromHandlePermanent(hWndChild);
    return pWnd != nullptr && pWnd->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG& msg = AfxGetThreadState()->m_lastSentMsg;
    return OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_COMPAREITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    case WM_COMMAND:
    {
        int nCode = HIWORD(wParam);
        if (CCmdTarget::OnCmdMsg(0, (int)MAKELONG(nCode, WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr))
        {
            if (pResult != nullptr)
                *pResult = 1;
            return TRUE;
        }
        return FALSE;
    }
    case WM_NOTIFY:
    {
        NMHDR* pNMHDR = (NMHDR*)lParam;
        AFX_NOTIFY notify = {pResult, pNMHDR};
        return CCmdTarget::OnCmdMsg(0, (int)MAKELONG(pNMHDR->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }
    default:
        break;
    }
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC)
    {
        // Handled only when the reflected handler gives a brush.
        AFX_CTLCOLOR ctl = {m_hWnd, (HDC)wParam, message - WM_CTLCOLORMSGBOX};
        LRESULT lResult = 0;
        if (CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, (LPARAM)&ctl, &lResult) && lResult != 0)
        {
            if (pResult != nullptr)
                *pResult = lResult;
            return TRUE;
        }
    }
    return FALSE;
}

namespace {

// The menu, searched from hMenu down, holding the owner-drawn item being measured.
HMENU FindMenuOfItem(HMENU hMenu, const MEASUREITEMSTRUCT* pMIS, int nDepth)
{
    if (hMenu == nullptr || !::IsMenu(hMenu) || nDepth > 16)
        return nullptr;
    int nCount = ::GetMenuItemCount(hMenu);
    for (int i = 0; i < nCount; ++i)
    {
        MENUITEMINFOA info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_DATA | MIIM_FTYPE | MIIM_SUBMENU;
        if (!::GetMenuItemInfoA(hMenu, i, TRUE, &info))
            continue;
        if ((info.fType & MFT_OWNERDRAW) && info.wID == pMIS->itemID && info.dwItemData == pMIS->itemData)
            return hMenu;
        if (HMENU hFound = FindMenuOfItem(info.hSubMenu, pMIS, nDepth + 1))
            return hFound;
    }
    return nullptr;
}

}  // namespace

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU)
    {
        if (CMenu* pMenu = CMenu::FromHandlePermanent((HMENU)lpDrawItemStruct->hwndItem))
        {
            pMenu->DrawItem(lpDrawItemStruct);
            return;
        }
    }
    else if (ReflectLastMsg(lpDrawItemStruct->hwndItem))
    {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType == ODT_MENU)
    {
        // The message names no menu: look in the menu being tracked, then in the menu bar.
        AfxThreadState* pState = AfxGetThreadState();
        HMENU hMenu = nullptr;
        if (pState->m_hTrackingWindow == m_hWnd)
            hMenu = FindMenuOfItem(pState->m_hTrackingMenu, lpMeasureItemStruct, 0);
        if (hMenu == nullptr)
            hMenu = FindMenuOfItem(::GetMenu(m_hWnd), lpMeasureItemStruct, 0);
        if (CMenu* pMenu = CMenu::FromHandlePermanent(hMenu))
        {
            pMenu->MeasureItem(lpMeasureItemStruct);
            return;
        }
    }
    else
    {
        HWND hWndChild = ::GetDlgItem(m_hWnd, (int)lpMeasureItemStruct->CtlID);
        if (hWndChild != nullptr && ReflectLastMsg(hWndChild))
            return;
    }
    Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT lResult = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&lResult))
        return (HBRUSH)lResult;
    return (HBRUSH)Default();
}

// Pre-translation

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = ::GetParent(hWnd))
    {
        if (CWnd* pWnd = FromHandlePermanent(hWnd))
            if (pWnd->PreTranslateMessage(pMsg))
                return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

// Default handlers: the message goes on to the previous procedure.

void CWnd::OnPaint()
{
    Default();
}
void CWnd::OnDestroy()
{
    Default();
}
void CWnd::OnClose()
{
    Default();
}
int CWnd::OnCreate(LPCREATESTRUCT)
{
    return (int)Default();
}
BOOL CWnd::OnEraseBkgnd(CDC*)
{
    return (BOOL)Default();
}
LRESULT CWnd::OnNcHitTest(CPoint)
{
    return Default();
}
void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}
void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}
void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}
void CWnd::OnCaptureChanged(CWnd*)
{
    Default();
}
void CWnd::OnSetFocus(CWnd*)
{
    Default();
}
void CWnd::OnKillFocus(CWnd*)
{
    Default();
}
void CWnd::OnEnable(BOOL)
{
    Default();
}
void CWnd::OnSize(UINT, int, int)
{
    Default();
}
void CWnd::OnTimer(UINT_PTR)
{
    Default();
}
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return (BOOL)Default();
}
void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}
void CWnd::OnShowWindow(BOOL, UINT)
{
    Default();
}
void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL)
{
    Default();
}
void CWnd::OnContextMenu(CWnd*, CPoint)
{
    Default();
}
void CWnd::OnGetMinMaxInfo(MINMAXINFO*)
{
    Default();
}
void CWnd::OnSysCommand(UINT, LPARAM)
{
    Default();
}
void CWnd::OnWindowPosChanging(WINDOWPOS*)
{
    Default();
}
void CWnd::OnWindowPosChanged(WINDOWPOS*)
{
    Default();
}
void CWnd::OnActivate(UINT, CWnd*, BOOL)
{
    Default();
}
UINT CWnd::OnGetDlgCode()
{
    return (UINT)Default();
}

void CWnd::DoDataExchange(CDataExchange*) {}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT)
{
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, GetExStyle());
}

// Window classes of the runtime

namespace {

HINSTANCE RuntimeInstance()
{
    HMODULE hModule = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         (LPCSTR)&RuntimeInstance, &hModule);
    return hModule;
}

BOOL RegisterClassOnce(LPCSTR lpszName, UINT nStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    WNDCLASSA wc = {};
    HINSTANCE hInst = AfxGetRuntimeInstance();
    if (::GetClassInfoA(hInst, lpszName, &wc))
        return TRUE;
    wc.style = nStyle | CS_GLOBALCLASS;
    wc.lpfnWndProc = ::DefWindowProcA;  // objects subclass their windows when they are created
    wc.hInstance = hInst;
    wc.hCursor = hCursor;
    wc.hbrBackground = hbrBackground;
    wc.hIcon = hIcon;
    wc.lpszClassName = lpszName;
    return ::RegisterClassA(&wc) != 0;
}

}  // namespace

HINSTANCE AfxGetRuntimeInstance()
{
    static HINSTANCE hInst = RuntimeInstance();
    return hInst;
}

void AfxRegisterRuntimeClasses()
{
    RegisterClassOnce(kAfxWndClass, CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW), nullptr, nullptr);
    RegisterClassOnce(kAfxFrameClass, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(nullptr, IDC_ARROW),
                      (HBRUSH)(COLOR_WINDOW + 1), nullptr);
}

LPCSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    // One class per distinct set of arguments, named after them.
    static thread_local char szName[96];
    wsprintfA(szName, "KivAfx:%x:%p:%p:%p", nClassStyle, (void*)hCursor, (void*)hbrBackground, (void*)hIcon);
    RegisterClassOnce(szName, nClassStyle, hCursor, hbrBackground, hIcon);
    return szName;
}
