#include "SettingsSheet.h"

#include "GalleryText.h"
#include "resource.h"

#include <commctrl.h>

namespace {

// The sheet has no template: its buttons' texts are kept under a name of their own.
const char kSheetSection[] = "SettingsSheet";

struct SheetButton
{
    int id;
    const char* text;
};
const SheetButton kSheetButtons[] = {{IDOK, "OK"}, {IDCANCEL, "Cancel"}};

}  // namespace

CSettingsSheet::CSettingsSheet(CWnd* pParentWnd) : CPropertySheet(IDS_SHEET_TITLE, pParentWnd)
{
    m_psh.dwFlags |= PSH_NOAPPLYNOW;
    AddPage(&m_display);
    AddPage(&m_files);
}

CSettingsSheet::~CSettingsSheet() = default;

void CSettingsSheet::Translate()
{
    if (m_bTranslated || m_hWnd == nullptr)
        return;
    m_bTranslated = TRUE;
    // Centred on the frame, where the gallery's dialogs open too.
    CenterWindow(m_pParentWnd);
    gallery::SetWideText(m_hWnd, strStringW(IDS_SHEET_TITLE));
    HWND hTabs = (HWND)SendMessage(PSM_GETTABCONTROL);
    const UINT captions[] = {IDS_PAGE_DISPLAY, IDS_PAGE_FILES};
    for (int i = 0; i < 2; ++i)
    {
        strStringW caption(captions[i]);
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<LPWSTR>(caption.GetString());
        ::SendMessageW(hTabs, TCM_SETITEMW, i, (LPARAM)&item);
    }
    for (const SheetButton& button : kSheetButtons)
        if (HWND hButton = ::GetDlgItem(m_hWnd, button.id))
            LocalizationManager::Get()->SendTranslationToWnd(hButton, button.text, gallery::Section((UINT)button.id),
                                                             kSheetSection);
}
