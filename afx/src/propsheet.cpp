// Property sheets over the common controls' sheet, created modeless and run in the runtime's
// modal loop; pages are attached to their objects as they are created.
#include "afximpl_.h"
#include "afxdlgs.h"
#include "afxcmn.h"

#include <cstdlib>
#include <cstring>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)
IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

namespace {

UINT CALLBACK PageCallback(HWND, UINT uMsg, LPPROPSHEETPAGEA ppsp)
{
    // The page's dialog is the next dialog window made on this thread.
    if (uMsg == PSPCB_CREATE)
        AfxHookWindowCreate(reinterpret_cast<CPropertyPage*>(ppsp->lParam));
    return TRUE;
}

INT_PTR CALLBACK PageDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG && CWnd::FromHandlePermanent(hWnd) == nullptr)
    {
        // Without the hook, the page takes its window here, before its initialisation.
        CPropertyPage* pPage = reinterpret_cast<CPropertyPage*>(((LPPROPSHEETPAGEA)lParam)->lParam);
        AfxUnhookWindowCreate();
        pPage->SubclassWindow(hWnd);
    }
    return AfxDlgProc(hWnd, message, wParam, lParam);
}

}  // namespace

// Pages

CPropertyPage::CPropertyPage()
{
    CommonConstruct(0, sizeof(PROPSHEETPAGEA));
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize) : CDialog(nIDTemplate)
{
    CommonConstruct(nIDCaption, dwSize);
}

CPropertyPage::CPropertyPage(LPCSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize) : CDialog(lpszTemplateName)
{
    CommonConstruct(nIDCaption, dwSize);
}

CPropertyPage::~CPropertyPage() = default;

void CPropertyPage::CommonConstruct(UINT nIDCaption, DWORD dwSize)
{
    ZeroMemory(&m_psp, sizeof(m_psp));
    m_psp.dwSize = dwSize <= sizeof(m_psp) ? dwSize : sizeof(m_psp);
    if (nIDCaption != 0)
        m_strCaption.LoadString(nIDCaption);
}

void CPropertyPage::PreparePage()
{
    m_psp.dwFlags = PSP_USECALLBACK | (m_strCaption.IsEmpty() ? 0 : PSP_USETITLE);
    m_psp.hInstance = AfxFindResourceHandle(m_lpszTemplateName, (LPCSTR)RT_DIALOG);
    m_psp.pszTemplate = m_lpszTemplateName;
    m_psp.pszTitle = m_strCaption;
    m_psp.pfnDlgProc = PageDlgProc;
    m_psp.lParam = (LPARAM)this;
    m_psp.pfnCallback = PageCallback;
    m_bFirstSetActive = TRUE;
}

void CPropertyPage::SetModified(BOOL bChanged)
{
    HWND hSheet = ::GetParent(m_hWnd);
    ::SendMessageA(hSheet, bChanged ? PSM_CHANGED : PSM_UNCHANGED, (WPARAM)m_hWnd, 0);
}

void CPropertyPage::CancelToClose()
{
    ::SendMessageA(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

BOOL CPropertyPage::OnSetActive()
{
    // The first activation follows OnInitDialog, which filled the controls already.
    if (m_bFirstSetActive)
        m_bFirstSetActive = FALSE;
    else
        UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

BOOL CPropertyPage::PreTranslateMessage(MSG*)
{
    return FALSE;  // the sheet does the keyboard navigation of all its pages
}

void CPropertyPage::NoteSheetClosing(int nResult)
{
    // The sheet learns from its pages how it ends, as the sheet's own buttons may be pressed
    // without any command message.
    CPropertySheet* pSheet = DYNAMIC_DOWNCAST(CPropertySheet, CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
    if (pSheet != nullptr)
        pSheet->m_nClosedWith = nResult;
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    NMHDR* pNMHDR = (NMHDR*)lParam;
    if (pNMHDR->hwndFrom != ::GetParent(m_hWnd) && pNMHDR->hwndFrom != m_hWnd)
        return FALSE;
    switch (pNMHDR->code)
    {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        break;
    case PSN_KILLACTIVE:
        *pResult = !OnKillActive();
        break;
    case PSN_APPLY:
        *pResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        NoteSheetClosing(*pResult == PSNRET_NOERROR ? IDOK : IDCANCEL);
        break;
    case PSN_RESET:
        OnReset();
        NoteSheetClosing(IDCANCEL);
        *pResult = 0;
        break;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        break;
    default:
        return FALSE;
    }
    // The sheet may read the answer the way a dialog procedure gives it.
    ::SetWindowLongPtrA(m_hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

// Sheets

CPropertySheet::CPropertySheet()
{
    CommonConstruct(nullptr, 0);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    m_strCaption.LoadString(nIDCaption);
    CommonConstruct(pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) : m_strCaption(pszCaption)
{
    CommonConstruct(pParentWnd, iSelectPage);
}

void CPropertySheet::CommonConstruct(CWnd* pParentWnd, UINT iSelectPage)
{
    ZeroMemory(&m_psh, sizeof(m_psh));
    m_psh.dwSize = sizeof(m_psh);
    m_psh.nStartPage = iSelectPage;
    m_pParentWnd = pParentWnd;
}

CPropertySheet::~CPropertySheet()
{
    if (CTypedHandleMap<CWnd>::OwnsHandle(this))
        DestroyWindow();
    free(m_pPageData);
}

void CPropertySheet::AddPage(CPropertyPage* pPage)
{
    m_pages.Add(pPage);
    if (m_hWnd != nullptr)
    {
        pPage->PreparePage();
        HPROPSHEETPAGE hPage = ::CreatePropertySheetPageA(&pPage->m_psp);
        SendMessage(PSM_ADDPAGE, 0, (LPARAM)hPage);
    }
}

void CPropertySheet::RemovePage(CPropertyPage* pPage)
{
    RemovePage(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(int nPage)
{
    if (nPage < 0 || nPage >= GetPageCount())
        return;
    if (m_hWnd != nullptr)
        SendMessage(PSM_REMOVEPAGE, nPage);
    m_pages.RemoveAt(nPage);
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) const
{
    for (int i = 0; i < GetPageCount(); ++i)
        if (GetPage(i) == pPage)
            return i;
    return -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    if (m_hWnd == nullptr)
        return GetPage((int)m_psh.nStartPage);
    return DYNAMIC_DOWNCAST(CPropertyPage, FromHandlePermanent((HWND)SendMessage(PSM_GETCURRENTPAGEHWND)));
}

int CPropertySheet::GetActiveIndex() const
{
    if (m_hWnd == nullptr)
        return (int)m_psh.nStartPage;
    HWND hTab = (HWND)SendMessage(PSM_GETTABCONTROL);
    return (int)::SendMessageA(hTab, TCM_GETCURSEL, 0, 0);
}

BOOL CPropertySheet::SetActivePage(int nPage)
{
    if (m_hWnd == nullptr)
    {
        m_psh.nStartPage = nPage;
        return TRUE;
    }
    return (BOOL)SendMessage(PSM_SETCURSEL, nPage);
}

void CPropertySheet::SetTitle(LPCSTR lpszText, UINT nStyle)
{
    m_strCaption = lpszText;
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETTITLEA, nStyle, (LPARAM)lpszText);
}

void CPropertySheet::BuildHeader()
{
    // The pages go to the sheet as one block of records, each as long as its dwSize says.
    size_t cbTotal = 0;
    for (int i = 0; i < GetPageCount(); ++i)
    {
        GetPage(i)->PreparePage();
        cbTotal += GetPage(i)->m_psp.dwSize;
    }
    free(m_pPageData);
    m_pPageData = (BYTE*)calloc(1, cbTotal ? cbTotal : 1);
    BYTE* p = m_pPageData;
    for (int i = 0; i < GetPageCount(); ++i)
    {
        memcpy(p, &GetPage(i)->m_psp, GetPage(i)->m_psp.dwSize);
        p += GetPage(i)->m_psp.dwSize;
    }
    m_psh.dwFlags = (m_psh.dwFlags & ~(PSH_PROPSHEETPAGE | PSH_MODELESS)) | PSH_PROPSHEETPAGE | PSH_MODELESS;
    m_psh.hInstance = AfxGetResourceHandle();
    m_psh.pszCaption = m_strCaption;
    m_psh.nPages = (UINT)GetPageCount();
    m_psh.ppsp = (LPCPROPSHEETPAGEA)m_pPageData;
}

HWND CPropertySheet::StartSheet(HWND hWndParent, BOOL bModal)
{
    AfxInitCommonControls();
    BuildHeader();
    m_psh.hwndParent = hWndParent;
    m_nClosedWith = IDCANCEL;
    m_nModalResult = IDCANCEL;
    if (bModal)
        m_nFlags |= WF_CONTINUEMODAL;
    AfxHookWindowCreate(this);
    HWND hWnd = (HWND)::PropertySheetA(&m_psh);
    AfxUnhookWindowCreate();
    return hWnd;
}

INT_PTR CPropertySheet::DoModal()
{
    HWND hWndParent = m_pParentWnd->GetSafeHwnd();
    if (hWndParent == nullptr)
        hWndParent = AfxGetMainWnd()->GetSafeHwnd();
    while (hWndParent != nullptr && (::GetWindowLongPtrA(hWndParent, GWL_STYLE) & WS_CHILD))
        hWndParent = ::GetParent(hWndParent);
    BOOL bEnableParent = hWndParent != nullptr && ::IsWindowEnabled(hWndParent);
    if (bEnableParent)
        ::EnableWindow(hWndParent, FALSE);
    HWND hWnd = StartSheet(hWndParent, TRUE);
    if (hWnd != nullptr && m_hWnd == hWnd && ContinueModal())
        RunModalLoop(MLF_SHOWONIDLE);
    AfxPostModal(this, hWndParent, bEnableParent);
    return m_nModalResult;
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD)
{
    (void)dwStyle;
    if (pParentWnd != nullptr)
        m_pParentWnd = pParentWnd;
    HWND hWnd = StartSheet(m_pParentWnd->GetSafeHwnd(), FALSE);
    return hWnd != nullptr && m_hWnd == hWnd;
}

BOOL CPropertySheet::ContinueModal()
{
    if (!CWnd::ContinueModal())
        return FALSE;
    // The sheet has no current page once OK or Cancel has closed it.
    if (m_hWnd == nullptr || SendMessage(PSM_GETCURRENTPAGEHWND) == 0)
    {
        m_nModalResult = m_nClosedWith;
        return FALSE;
    }
    return TRUE;
}

void CPropertySheet::EndDialog(int nEndID)
{
    m_nClosedWith = nEndID;
    EndModalLoop(nEndID);
    if (m_hWnd != nullptr)
        ::PostMessageA(m_hWnd, WM_NULL, 0, 0);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    // Remember which button closes the sheet; the sheet itself does the closing.
    UINT nID = LOWORD(wParam);
    if (HIWORD(wParam) == BN_CLICKED && (nID == IDOK || nID == IDCANCEL))
        m_nClosedWith = (int)nID;
    return CWnd::OnCommand(wParam, lParam);
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // The sheet's own buttons are the sheet's business, not the application's.
    if (nID == IDOK || nID == IDCANCEL || nID == ID_APPLY_NOW || nID == IDHELP)
        return FALSE;
    CWinThread* pThread = AfxGetThread();
    return (nCode == CN_COMMAND || nCode == (int)CN_UPDATE_COMMAND_UI) && pThread != nullptr &&
           pThread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg)
{
    if (m_hWnd == nullptr || (pMsg->hwnd != m_hWnd && !::IsChild(m_hWnd, pMsg->hwnd)))
        return FALSE;
    return (BOOL)SendMessage(PSM_ISDIALOGMESSAGE, 0, (LPARAM)pMsg);
}
