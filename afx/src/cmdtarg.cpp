// Command targets: message-map lookup, command dispatch and command-update state.
#include "afximpl_.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, &entries[0]};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* AFXAPI AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry, UINT nMsg, UINT nCode, UINT nID)
{
    for (; lpEntry->nSig != AfxSig_end; ++lpEntry)
        if (lpEntry->nMessage == nMsg && lpEntry->nCode == nCode && nID >= lpEntry->nID && nID <= lpEntry->nLastID)
            return lpEntry;
    return nullptr;
}

namespace {

template <class F> F Handler(AFX_PMSG pfn)
{
    return reinterpret_cast<F>(pfn);
}

BOOL DispatchCmdMsg(CCmdTarget* pTarget, UINT nID, AFX_PMSG pfn, void* pExtra, UINT_PTR nSig)
{
    switch (nSig)
    {
    case AfxSig_cmd_v:
        (pTarget->*pfn)();
        return TRUE;
    case AfxSig_cmd_b:
        return (pTarget->*Handler<BOOL (CCmdTarget::*)()>(pfn))();
    case AfxSig_cmd_range:
        (pTarget->*Handler<void (CCmdTarget::*)(UINT)>(pfn))(nID);
        return TRUE;
    case AfxSig_cmd_ui:
    case AfxSig_cmd_ui_range:
    {
        // An update handler may hand the item on to the next target.
        CCmdUI* pCmdUI = static_cast<CCmdUI*>(pExtra);
        pCmdUI->m_bContinueRouting = FALSE;
        if (nSig == AfxSig_cmd_ui)
            (pTarget->*Handler<void (CCmdTarget::*)(CCmdUI*)>(pfn))(pCmdUI);
        else
            (pTarget->*Handler<void (CCmdTarget::*)(CCmdUI*, UINT)>(pfn))(pCmdUI, nID);
        return !pCmdUI->m_bContinueRouting;
    }
    case AfxSig_notify_v:
    case AfxSig_notify_b:
    case AfxSig_notify_range:
    {
        AFX_NOTIFY* pNotify = static_cast<AFX_NOTIFY*>(pExtra);
        if (nSig == AfxSig_notify_b)
            return (pTarget->*Handler<BOOL (CCmdTarget::*)(NMHDR*, LRESULT*)>(pfn))(pNotify->pNMHDR, pNotify->pResult);
        if (nSig == AfxSig_notify_v)
            (pTarget->*Handler<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(pfn))(pNotify->pNMHDR, pNotify->pResult);
        else
            (pTarget->*Handler<void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(pfn))(nID, pNotify->pNMHDR,
                                                                                   pNotify->pResult);
        return TRUE;
    }
    default:
        return FALSE;
    }
}

}  // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    // Notifications carry their message in the high word of the code.
    UINT nMsg = 0;
    UINT nNotify = (UINT)nCode;
    if (nNotify != CN_UPDATE_COMMAND_UI)
    {
        nMsg = HIWORD(nNotify);
        nNotify = LOWORD(nNotify);
    }
    if (nMsg == 0)
        nMsg = WM_COMMAND;
    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap != nullptr;
         pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr)
    {
        const AFX_MSGMAP_ENTRY* pEntry = AfxFindMessageEntry(pMap->lpEntries, nMsg, nNotify, nID);
        if (pEntry == nullptr)
            continue;
        if (pHandlerInfo != nullptr)
        {
            pHandlerInfo->pTarget = this;
            pHandlerInfo->pmf = pEntry->pfn;
            return TRUE;
        }
        return DispatchCmdMsg(this, nID, pEntry->pfn, pExtra, pEntry->nSig);
    }
    return FALSE;
}

void CCmdUI::Enable(BOOL bOn)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;  // a popup is enabled by its own items
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : (MF_DISABLED | MF_GRAYED)));
    }
    else if (m_pOther != nullptr)
    {
        // The focus must not stay on a control that goes disabled.
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
        {
            HWND hParent = ::GetParent(m_pOther->m_hWnd);
            ::SendMessageA(hParent, WM_NEXTDLGCTL, 0, FALSE);
        }
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu == nullptr)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
    }
    else if (m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON))
    {
        m_pOther->SendMessage(BM_SETCHECK, nCheck);
    }
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu != nullptr && m_pSubMenu == nullptr)
    {
        MENUITEMINFOA info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_FTYPE;
        if (::GetMenuItemInfoA(m_pMenu->m_hMenu, m_nIndex, TRUE, &info))
        {
            info.fType = bOn ? (info.fType | MFT_RADIOCHECK) : (info.fType & ~MFT_RADIOCHECK);
            ::SetMenuItemInfoA(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
        }
    }
}

void CCmdUI::SetText(LPCSTR lpszText)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;
        UINT nState = m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION) & (MF_DISABLED | MF_GRAYED | MF_CHECKED);
        m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | MF_STRING | nState, m_nID, lpszText);
    }
    else if (m_pOther != nullptr)
    {
        m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    m_bEnableChanged = FALSE;
    BOOL bResult = pTarget->OnCmdMsg(m_nID, (int)CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged)
    {
        // No update handler enabled or disabled it: it is enabled exactly when a command
        // handler exists, so a button disabled before comes back once its handler does.
        AFX_CMDHANDLERINFO info = {nullptr, nullptr};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return bResult;
}
