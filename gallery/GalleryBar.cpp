#include "GalleryBar.h"

#include "resource.h"

CGalleryBar::CGalleryBar() = default;

CGalleryBar::~CGalleryBar() = default;

BOOL CGalleryBar::OnInitDialogBar()
{
    if (!mfcCDialogBar::OnInitDialogBar())
        return FALSE;
    if (!m_buttons.empty())
        return TRUE;
    gallery::AttachUnicodeButtons(this, m_buttons);
    gallery::ApplyTranslatedFont(this, m_font);
    LocalizationManager::Get()->TranslateDialog(this, IDD_BAR);
    gallery::FillComboBox(this, IDC_ZOOM, gallery::Section(IDD_BAR), {"Fit", "50 %", "100 %", "200 %"});
    return TRUE;
}
