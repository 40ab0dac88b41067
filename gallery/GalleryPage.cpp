#include "GalleryPage.h"

#include "SettingsSheet.h"

namespace {

// Posted by a page to itself: the sheet has its caption and buttons only once its first page
// has been made.
constexpr UINT WM_TRANSLATE_SHEET = WM_APP + 1;

}  // namespace

BEGIN_MESSAGE_MAP(CGalleryPage, mfcCPropertyPage)
    ON_MESSAGE(WM_TRANSLATE_SHEET, &CGalleryPage::OnTranslateSheet)
END_MESSAGE_MAP()

CGalleryPage::CGalleryPage(UINT nIDTemplate, UINT nIDCaption)
    : mfcCPropertyPage(nIDTemplate, nIDCaption), m_nIDTemplate(nIDTemplate)
{}

CGalleryPage::~CGalleryPage() = default;

BOOL CGalleryPage::OnInitDialog()
{
    gallery::AttachUnicodeButtons(this, m_buttons);
    gallery::ApplyTranslatedFont(this, m_font);
    mfcCPropertyPage::OnInitDialog();
    LocalizationManager::Get()->TranslateDialog(this, (int)m_nIDTemplate);
    FillControls();
    PostMessage(WM_TRANSLATE_SHEET);
    return TRUE;
}

LRESULT CGalleryPage::OnTranslateSheet(WPARAM, LPARAM)
{
    if (auto* pSheet = dynamic_cast<CSettingsSheet*>(CWnd::FromHandlePermanent(::GetParent(m_hWnd))))
        pSheet->Translate();
    return 0;
}
