// How the gallery's windows get their texts: from the translations of the store, as wide text,
// under the window's section (its template id in decimal) and a key of the control.
#pragma once

#include <KivMFC.h>

#include <memory>
#include <vector>

namespace gallery {

using UnicodeButtons = std::vector<std::unique_ptr<CUnicodeButton>>;

// The library's wide-text calls take UTF-16 units as unsigned short.
inline const unsigned short* Units(const CStringW& text)
{
    return reinterpret_cast<const unsigned short*>(text.GetString());
}

// The section of a dialog template: its id in decimal.
CString Section(UINT nIDTemplate);

// The translation of text under (section, key); the text itself, widened, when there is none.
CStringW Translate(LPCSTR lpszText, LPCSTR lpszKey, const CString& section);

// The window's own caption, under the key "Caption". Stored past the narrow window procedure,
// so that characters outside the ANSI code page survive.
void TranslateCaption(CWnd* pWnd, const CString& section);
void SetWideText(HWND hWnd, const CStringW& text);

// Every button of the window becomes a CUnicodeButton, except the ids from nFirstKept to
// nLastKept, which the dialog classes paint as colour buttons. Attached before the dialog's
// translation, so that each button hears its section and draws its wide caption.
void AttachUnicodeButtons(CWnd* pParent, UnicodeButtons& buttons, UINT nFirstKept = 0, UINT nLastKept = 0);

// A language whose script the template's font lacks names another font for the translators'
// texts (Japanese: "MS UI Gothic"); the window's controls then use it, at the same size.
void ApplyTranslatedFont(CWnd* pWnd, CFont& font);

// Items of a combo box, each translated under (section, "<control id>.<n>").
void FillComboBox(CWnd* pParent, UINT nID, const CString& section, const std::vector<LPCSTR>& items);

// Tabs, each translated under (section, "<control id>.<n>"); the texts as the tabs got them.
std::vector<CStringW> InsertTabs(CWnd* pParent, UINT nID, const CString& section, const std::vector<LPCSTR>& items);

}  // namespace gallery
