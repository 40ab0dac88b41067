#include "GalleryText.h"

#include <commctrl.h>

namespace gallery {

namespace {

// The template font's name, and the one text that names another for a language's script.
const char kTemplateFont[] = "MS Shell Dlg";
const char kFontSection[] = "Gallery";

CString ItemKey(UINT nID, int index)
{
    CString key;
    key.Format("%u.%d", nID, index);
    return key;
}

const char kNarrowProc[] = "KivGallery.NarrowProc";

// The caption bar is drawn from the text that WM_GETTEXT answers, and a narrow window
// procedure answers it in the ANSI code page. This wide procedure in front of it answers from
// the stored wide text and hands every other message on.
LRESULT CALLBACK WideCaptionProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto narrow = (WNDPROC)::GetPropA(hWnd, kNarrowProc);
    if (message == WM_GETTEXT || message == WM_GETTEXTLENGTH)
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    if (message == WM_NCDESTROY)
    {
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, (LONG_PTR)narrow);
        ::RemovePropA(hWnd, kNarrowProc);
    }
    return ::CallWindowProcW(narrow, hWnd, message, wParam, lParam);
}

void AnswerTextInWide(HWND hWnd)
{
    if (::GetPropA(hWnd, kNarrowProc) != nullptr)
        return;
    ::SetPropA(hWnd, kNarrowProc, (HANDLE)::GetWindowLongPtrW(hWnd, GWLP_WNDPROC));
    ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, (LONG_PTR)WideCaptionProc);
}

}  // namespace

CString Section(UINT nIDTemplate)
{
    CString section;
    section.Format("%u", nIDTemplate);
    return section;
}

CStringW Translate(LPCSTR lpszText, LPCSTR lpszKey, const CString& section)
{
    return LocalizationManager::Get()->GetWideTranslation(lpszText, lpszKey, section);
}

void SetWideText(HWND hWnd, const CStringW& text)
{
    ::DefWindowProcW(hWnd, WM_SETTEXT, 0, (LPARAM)text.GetString());
    AnswerTextInWide(hWnd);
    // The caption bar is painted from the stored text: draw it again now.
    ::RedrawWindow(hWnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
}

void TranslateCaption(CWnd* pWnd, const CString& section)
{
    CString text;
    pWnd->GetWindowText(text);
    SetWideText(pWnd->m_hWnd, Translate(text, "Caption", section));
}

void AttachUnicodeButtons(CWnd* pParent, UnicodeButtons& buttons, UINT nFirstKept, UINT nLastKept)
{
    char className[16] = {};
    for (CWnd* pChild = pParent->GetWindow(GW_CHILD); pChild != nullptr; pChild = pChild->GetWindow(GW_HWNDNEXT))
    {
        const UINT id = (UINT)pChild->GetDlgCtrlID();
        ::GetClassNameA(pChild->m_hWnd, className, sizeof(className));
        const bool groupBox = (pChild->GetStyle() & 0x0F) == BS_GROUPBOX;
        if (lstrcmpiA(className, "Button") != 0 || groupBox || (id >= nFirstKept && id <= nLastKept))
            continue;
        buttons.push_back(std::make_unique<CUnicodeButton>());
        buttons.back()->SubclassDlgItem(id, pParent);
    }
}

namespace {

// A face the system has; a translator's typo (or a pseudo-locale's accents) keeps the template's.
bool FaceExists(const CString& face)
{
    LOGFONTA wanted = {};
    wanted.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(wanted.lfFaceName, face, LF_FACESIZE);
    bool found = false;
    HDC hDC = ::GetDC(nullptr);
    ::EnumFontFamiliesExA(
        hDC, &wanted,
        [](const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM lParam) -> int {
            *reinterpret_cast<bool*>(lParam) = true;
            return 0;
        },
        reinterpret_cast<LPARAM>(&found), 0);
    ::ReleaseDC(nullptr, hDC);
    return found;
}

}  // namespace

void ApplyTranslatedFont(CWnd* pWnd, CFont& font)
{
    CString face = LocalizationManager::Get()->GetTranslation(kTemplateFont, "Font", kFontSection);
    if (face.IsEmpty() || face == kTemplateFont || pWnd->GetFont() == nullptr || !FaceExists(face))
        return;
    LOGFONTA lf = {};
    pWnd->GetFont()->GetLogFont(&lf);
    lstrcpynA(lf.lfFaceName, face, LF_FACESIZE);
    if (font.GetSafeHandle() == nullptr)
        font.CreateFontIndirect(&lf);
    pWnd->SetFont(&font, FALSE);
    for (CWnd* pChild = pWnd->GetWindow(GW_CHILD); pChild != nullptr; pChild = pChild->GetWindow(GW_HWNDNEXT))
        pChild->SetFont(&font);
}

void FillComboBox(CWnd* pParent, UINT nID, const CString& section, const std::vector<LPCSTR>& items)
{
    HWND hCombo = pParent->GetDlgItem((int)nID)->GetSafeHwnd();
    for (size_t i = 0; i < items.size(); ++i)
    {
        CStringW text = Translate(items[i], ItemKey(nID, (int)i + 1), section);
        ::SendMessageW(hCombo, CB_ADDSTRING, 0, (LPARAM)text.GetString());
    }
    ::SendMessageW(hCombo, CB_SETCURSEL, 0, 0);
}

std::vector<CStringW> InsertTabs(CWnd* pParent, UINT nID, const CString& section, const std::vector<LPCSTR>& items)
{
    HWND hTabs = pParent->GetDlgItem((int)nID)->GetSafeHwnd();
    std::vector<CStringW> texts;
    for (size_t i = 0; i < items.size(); ++i)
    {
        texts.push_back(Translate(items[i], ItemKey(nID, (int)i + 1), section));
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<LPWSTR>(texts.back().GetString());
        ::SendMessageW(hTabs, TCM_INSERTITEMW, i, (LPARAM)&item);
    }
    return texts;
}

}  // namespace gallery
