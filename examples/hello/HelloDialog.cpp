#include "HelloDialog.h"

#include "resource.h"

CHelloDialog::CHelloDialog(BOOL bShowNews, CWnd* pParentWnd) : CDialog(IDD_HELLO, pParentWnd), m_bShowNews(bShowNews) {}

BOOL CHelloDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    TranslateTexts();
    if (m_bShowNews)
    {
        // A string-table text comes out translated when the store has a translation.
        ::SetDlgItemTextW(m_hWnd, IDC_NEWS, strStringW(IDS_NEWS));
        GetDlgItem(IDC_NEWS)->ShowWindow(SW_SHOW);
    }
    return TRUE;
}

// A plain CDialog puts its translations on its controls itself. Section: the template id;
// key: the control id, both in decimal, as the store names them.
void CHelloDialog::TranslateTexts()
{
    LocalizationManager* manager = LocalizationManager::Get();
    CString section;
    section.Format("%d", IDD_HELLO);

    // The caption has no control id: it takes the key "Caption".
    CString text;
    GetWindowText(text);
    ::SetWindowTextW(m_hWnd, manager->GetWideTranslation(text, "Caption", section));

    for (CWnd* control = GetWindow(GW_CHILD); control != nullptr; control = control->GetWindow(GW_HWNDNEXT))
    {
        const int id = control->GetDlgCtrlID();
        // Controls without an id of their own (IDC_STATIC) would all share one key.
        if (id == IDC_STATIC || id == 0xFFFF)
            continue;
        control->GetWindowText(text);
        // An empty text is not asked for: the manager would record nothing for it anyway.
        if (!text.IsEmpty())
            ::SetWindowTextW(control->m_hWnd, manager->GetWideTranslation(text, id, IDD_HELLO));
    }
}
