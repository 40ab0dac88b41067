// Dialogs: templates from the resource chain, modeless creation and the modal loop.
#include "afximpl_.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()

LPCDLGTEMPLATEA AFXAPI AfxLoadDialogTemplate(LPCSTR lpszTemplateName, HINSTANCE* phInst)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszTemplateName, (LPCSTR)RT_DIALOG);
    HRSRC hResource = ::FindResourceA(hInst, lpszTemplateName, (LPCSTR)RT_DIALOG);
    if (phInst != nullptr)
        *phInst = hInst;
    if (hResource == nullptr)
        return nullptr;
    return (LPCDLGTEMPLATEA)::LockResource(::LoadResource(hInst, hResource));
}

INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    // Dialog bars and other dialog-based windows that are no CDialog take the default focus.
    CDialog* pDlg = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(hWnd));
    return pDlg != nullptr ? pDlg->OnInitDialog() : TRUE;
}

CDialog::CDialog() = default;

CDialog::CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd) : m_pParentWnd(pParentWnd)
{
    SetTemplateName(lpszTemplateName);
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_lpszTemplateName(MAKEINTRESOURCEA(nIDTemplate)), m_nIDHelp(nIDTemplate), m_pParentWnd(pParentWnd)
{}

CDialog::~CDialog()
{
    if (CTypedHandleMap<CWnd>::OwnsHandle(this))
        DestroyWindow();
}

void CDialog::SetTemplateName(LPCSTR lpszTemplateName)
{
    if (IS_INTRESOURCE(lpszTemplateName))
    {
        m_lpszTemplateName = lpszTemplateName;
        return;
    }
    m_strTemplateName = lpszTemplateName;
    m_lpszTemplateName = m_strTemplateName;
}

BOOL CDialog::Create(LPCSTR lpszTemplateName, CWnd* pParentWnd)
{
    SetTemplateName(lpszTemplateName);
    if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0)
        m_nIDHelp = (UINT)(UINT_PTR)lpszTemplateName;
    HINSTANCE hInst = nullptr;
    LPCDLGTEMPLATEA lpTemplate = AfxLoadDialogTemplate(m_lpszTemplateName, &hInst);
    if (lpTemplate == nullptr)
        return FALSE;
    if (pParentWnd == nullptr)
        pParentWnd = m_pParentWnd;
    return CreateDlgIndirect(lpTemplate, pParentWnd, hInst);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCEA(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATEA lpDialogTemplate, CWnd* pParentWnd)
{
    if (pParentWnd == nullptr)
        pParentWnd = m_pParentWnd;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd, nullptr);
}

HWND CDialog::PreModal()
{
    HWND hWnd = m_pParentWnd->GetSafeHwnd();
    if (hWnd == nullptr)
    {
        CWnd* pMain = AfxGetMainWnd();
        hWnd = pMain != nullptr ? pMain->m_hWnd : ::GetActiveWindow();
    }
    // A modal dialog is owned by a top-level window.
    while (hWnd != nullptr && (::GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_CHILD))
        hWnd = ::GetParent(hWnd);
    m_hWndTop = hWnd;
    return hWnd;
}

INT_PTR CDialog::DoModal()
{
    HINSTANCE hInst = nullptr;
    LPCDLGTEMPLATEA lpTemplate = m_lpDialogTemplate;
    if (lpTemplate == nullptr)
        lpTemplate = AfxLoadDialogTemplate(m_lpszTemplateName, &hInst);
    if (lpTemplate == nullptr)
        return -1;
    HWND hWndParent = PreModal();
    BOOL bEnableParent = FALSE;
    if (hWndParent != nullptr && hWndParent != ::GetDesktopWindow() && ::IsWindowEnabled(hWndParent))
    {
        ::EnableWindow(hWndParent, FALSE);
        bEnableParent = TRUE;
    }
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    if (CreateDlgIndirect(lpTemplate, CWnd::FromHandle(hWndParent), hInst))
    {
        // OnInitDialog may already have ended the dialog.
        if (m_nFlags & WF_CONTINUEMODAL)
            RunModalLoop(MLF_SHOWONIDLE | ((GetStyle() & DS_NOIDLEMSG) ? MLF_NOIDLEMSG : 0));
        if (m_hWnd != nullptr)
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    AfxPostModal(this, hWndParent, bEnableParent);
    m_hWndTop = nullptr;
    return m_nModalResult;
}

void AfxPostModal(CWnd* pWnd, HWND hWndParent, BOOL bEnableParent)
{
    pWnd->m_nFlags &= ~WF_CONTINUEMODAL;
    if (bEnableParent)
        ::EnableWindow(hWndParent, TRUE);
    if (hWndParent != nullptr && ::GetActiveWindow() == pWnd->m_hWnd)
        ::SetActiveWindow(hWndParent);
    pWnd->DestroyWindow();
}

void CDialog::EndDialog(int nResult)
{
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL))
        EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
}

BOOL CDialog::OnInitDialog()
{
    // The controls get their values from the members.
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnSetFont(CFont*) {}

void CDialog::OnOK()
{
    if (!UpdateData(TRUE))
        return;
    EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    // The dialog procedure calls OnInitDialog from the default processing.
    return Default();
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle((HFONT)wParam));
    return Default();
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    ::SendMessageA(m_hWnd, WM_NEXTDLGCTL, (WPARAM)pWndCtrl->GetSafeHwnd(), TRUE);
}

BOOL CWnd::PreTranslateInput(MSG* pMsg)
{
    // Keyboard and mouse input of the dialog and its controls takes the dialog's navigation.
    BOOL bInput = (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST) ||
                  (pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST);
    if (!bInput)
        return FALSE;
    if (pMsg->hwnd != m_hWnd && !::IsChild(m_hWnd, pMsg->hwnd))
        return FALSE;
    return ::IsDialogMessageA(m_hWnd, pMsg);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    return PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Commands the dialog does not handle go on to the application.
    if ((nCode != CN_COMMAND && nCode != (int)CN_UPDATE_COMMAND_UI) || nID == 0 || nID >= 0xF000)
        return FALSE;
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr && pThread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

int AFXAPI AfxMessageBox(LPCSTR lpszText, UINT nType, UINT)
{
    CWnd* pMain = AfxGetMainWnd();
    HWND hWndOwner = ::GetActiveWindow();
    if (hWndOwner == nullptr && pMain != nullptr)
        hWndOwner = pMain->m_hWnd;
    LPCSTR lpszCaption = AfxGetAppName();
    return ::MessageBoxA(hWndOwner, lpszText, lpszCaption, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString strPrompt;
    strPrompt.LoadString(nIDPrompt);
    return AfxMessageBox(strPrompt, nType, nIDHelp == (UINT)-1 ? nIDPrompt : nIDHelp);
}
