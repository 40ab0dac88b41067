#include "HelloDialog.h"

#include "resource.h"

CHelloDialog::CHelloDialog(BOOL bShowNews, CWnd* pParentWnd) : CDialog(IDD_HELLO, pParentWnd), m_bShowNews(bShowNews) {}

BOOL CHelloDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    // Attached before the translation, so that each button hears the section that follows
    // its translated text and fetches its own wide caption.
    m_remember.SubclassDlgItem(IDC_REMEMBER, this);
    m_showTips.SubclassDlgItem(IDC_SHOW_TIPS, this);
    m_small.SubclassDlgItem(IDC_SMALL, this);
    m_large.SubclassDlgItem(IDC_LARGE, this);
    m_ok.SubclassDlgItem(IDOK, this);
    m_cancel.SubclassDlgItem(IDCANCEL, this);
    CheckRadioButton(IDC_SMALL, IDC_LARGE, IDC_SMALL);
    ApplyTranslatedFont();

    // Static texts and buttons under the section "100", each under its control id.
    LocalizationManager::Get()->TranslateDialog(this, IDD_HELLO);
    TranslateCaption();
    if (m_bShowNews)
        ShowNews();
    return TRUE;
}

CString CHelloDialog::Section()
{
    CString section;
    section.Format("%d", IDD_HELLO);
    return section;
}

// The font is a text for the translators too: a language whose script the template's font
// lacks names one that has it (Japanese: "MS UI Gothic").
void CHelloDialog::ApplyTranslatedFont()
{
    const CString templateFace = "MS Shell Dlg";
    CString face = LocalizationManager::Get()->GetTranslation(templateFace, "Font", Section());
    if (face.IsEmpty() || face == templateFace)
        return;
    LOGFONTA lf = {};
    GetFont()->GetLogFont(&lf);
    lstrcpynA(lf.lfFaceName, face, LF_FACESIZE);
    m_font.CreateFontIndirect(&lf);
    for (CWnd* child = GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
        child->SetFont(&m_font);
}

// The dialog's own caption is not part of the walk: it has the key "Caption". It is stored
// past the narrow window procedure, so that characters outside the ANSI code page survive.
void CHelloDialog::TranslateCaption()
{
    CString text;
    GetWindowText(text);
    CStringW caption = LocalizationManager::Get()->GetWideTranslation(text, "Caption", Section());
    ::DefWindowProcW(m_hWnd, WM_SETTEXT, 0, (LPARAM)caption.GetString());
}

// A line made after the translation: its text comes from the string table, translated there.
void CHelloDialog::ShowNews()
{
    CRect rect(10, 98, 240, 108);
    MapDialogRect(&rect);
    m_news.Create("", WS_CHILD | WS_VISIBLE, rect, this, IDC_NEWS);
    m_news.SetFont(GetWindow(GW_CHILD)->GetFont());
    ::SetWindowTextW(m_news.m_hWnd, strStringW(IDS_NEWS));
}
