// Control bars and dialog bars.
#include "afximpl_.h"
#include "afxext.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)
IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

CControlBar::CControlBar() = default;

CControlBar::~CControlBar()
{
    if (m_pDockSite != nullptr)
        m_pDockSite->RemoveControlBar(this);
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    // A bar created in a frame docks there.
    CWnd* pParent = CWnd::FromHandlePermanent(::GetParent(m_hWnd));
    if (pParent != nullptr && pParent->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
    {
        m_pDockSite = static_cast<CFrameWnd*>(pParent);
        m_pDockSite->AddControlBar(this);
    }
    return 0;
}

void CControlBar::OnDestroy()
{
    if (m_pDockSite != nullptr)
    {
        m_pDockSite->RemoveControlBar(this);
        m_pDockSite = nullptr;
    }
    CWnd::OnDestroy();
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    CSize size;
    size.cx = (bStretch && bHorz) ? 32767 : 0;
    size.cy = (bStretch && !bHorz) ? 32767 : 0;
    return size;
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    AFX_SIZEPARENTPARAMS* pLayout = (AFX_SIZEPARENTPARAMS*)lParam;
    DWORD dwAlign = m_dwStyle & CBRS_ALIGN_ANY;
    if (!(GetStyle() & WS_VISIBLE) || dwAlign == 0)
        return 0;
    // Take a strip off the space that is left, at the bar's edge.
    CRect rect(pLayout->rect);
    CSize size = CalcFixedLayout(pLayout->bStretch, (dwAlign & CBRS_ORIENT_HORZ) != 0);
    size.cx = size.cx < rect.Width() ? size.cx : rect.Width();
    size.cy = size.cy < rect.Height() ? size.cy : rect.Height();
    if (dwAlign & CBRS_ALIGN_TOP)
    {
        rect.bottom = rect.top + size.cy;
        pLayout->rect.top += size.cy;
    }
    else if (dwAlign & CBRS_ALIGN_BOTTOM)
    {
        rect.top = rect.bottom - size.cy;
        pLayout->rect.bottom -= size.cy;
    }
    else if (dwAlign & CBRS_ALIGN_LEFT)
    {
        rect.right = rect.left + size.cx;
        pLayout->rect.left += size.cx;
    }
    else
    {
        rect.left = rect.right - size.cx;
        pLayout->rect.right -= size.cx;
    }
    pLayout->sizeTotal.cx += size.cx;
    pLayout->sizeTotal.cy += size.cy;
    if (pLayout->hDWP != nullptr)
        pLayout->hDWP = ::DeferWindowPos(pLayout->hDWP, m_hWnd, nullptr, rect.left, rect.top, rect.Width(),
                                         rect.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM)
{
    if (!(GetStyle() & WS_VISIBLE))
        return 0;
    CWnd* pOwner = GetOwner();
    CFrameWnd* pTarget = (pOwner != nullptr && pOwner->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
                             ? static_cast<CFrameWnd*>(pOwner)
                             : GetParentFrame();
    if (pTarget != nullptr)
        OnUpdateCmdUI(pTarget, (BOOL)wParam);
    return 0;
}

BOOL CControlBar::PreTranslateMessage(MSG* pMsg)
{
    // The frames above see the message first, so their accelerators win over dialog keys.
    for (CWnd* pOwner = GetOwner(); pOwner != nullptr;)
    {
        if (pOwner->PreTranslateMessage(pMsg))
            return TRUE;
        pOwner = pOwner->GetParentFrame();
    }
    return PreTranslateInput(pMsg);
}

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // Notifications of the bar's controls that the bar does not handle go to its owner.
    switch (message)
    {
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    {
        LRESULT lResult = 0;
        if (OnWndMsg(message, wParam, lParam, &lResult))
            return lResult;
        CWnd* pOwner = GetOwner();
        return pOwner != nullptr ? pOwner->SendMessage(message, wParam, lParam) : 0;
    }
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
END_MESSAGE_MAP()

CDialogBar::CDialogBar() = default;

CDialogBar::~CDialogBar()
{
    if (CTypedHandleMap<CWnd>::OwnsHandle(this))
        DestroyWindow();
}

BOOL CDialogBar::Create(CWnd* pParentWnd, LPCSTR lpszTemplateName, UINT nStyle, UINT nID)
{
    m_dwStyle = nStyle & CBRS_ALL;
    if (IS_INTRESOURCE(lpszTemplateName))
    {
        m_lpszTemplateName = lpszTemplateName;
    }
    else
    {
        m_strTemplateName = lpszTemplateName;
        m_lpszTemplateName = m_strTemplateName;
    }
    HINSTANCE hInst = nullptr;
    LPCDLGTEMPLATEA lpTemplate = AfxLoadDialogTemplate(lpszTemplateName, &hInst);
    if (lpTemplate == nullptr || !CreateDlgIndirect(lpTemplate, pParentWnd, hInst))
        return FALSE;
    SetDlgCtrlID((int)nID);
    // The template's size is the bar's fixed size; the frame's layout places it.
    CRect rect;
    GetWindowRect(&rect);
    m_sizeDefault = rect.Size();
    ModifyStyle(0, WS_CLIPSIBLINGS);
    if (!ExecuteDlgInit(lpszTemplateName))
        return FALSE;
    SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    if (m_pDockSite != nullptr)
        m_pDockSite->RecalcLayout();
    return TRUE;
}

BOOL CDialogBar::Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID)
{
    return Create(pParentWnd, MAKEINTRESOURCEA(nIDTemplate), nStyle, nID);
}

CSize CDialogBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    if (!bStretch)
        return m_sizeDefault;
    return bHorz ? CSize(32767, m_sizeDefault.cy) : CSize(m_sizeDefault.cx, 32767);
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler)
{
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
