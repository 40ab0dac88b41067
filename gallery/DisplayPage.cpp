#include "DisplayPage.h"

#include "resource.h"

CDisplayPage::CDisplayPage() : CGalleryPage(IDD_PAGE_DISPLAY, IDS_PAGE_DISPLAY) {}

CDisplayPage::~CDisplayPage() = default;

void CDisplayPage::FillControls()
{
    gallery::FillComboBox(this, IDC_BACKGROUND, gallery::Section(m_nIDTemplate), {"White", "Grey", "Black"});
    CheckDlgButton(IDC_SHOW_PREVIEWS, BST_CHECKED);
    CheckRadioButton(IDC_SMALL, IDC_LARGE, IDC_LARGE);
}
