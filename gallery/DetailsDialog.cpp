#include "DetailsDialog.h"

#include "resource.h"

namespace {

const char kPicture[] = "C:\\Pictures\\Harbour\\dawn.tif";
constexpr int kPictureWidth = 4096;

}  // namespace

CDetailsDialog::CDetailsDialog(CWnd* pParentWnd) : mfcDialog(IDD_DETAILS, pParentWnd) {}

CDetailsDialog::~CDetailsDialog() = default;

BOOL CDetailsDialog::OnInitDialog()
{
    gallery::AttachUnicodeButtons(this, m_buttons);
    gallery::ApplyTranslatedFont(this, m_font);
    mfcDialog::OnInitDialog();
    gallery::TranslateCaption(this, gallery::Section(IDD_DETAILS));
    ShowValues();
    return TRUE;
}

void CDetailsDialog::SetValue(UINT nID, const CStringW& text)
{
    ::SetWindowTextW(GetDlgItem((int)nID)->m_hWnd, text);
}

void CDetailsDialog::ShowValues()
{
    unsigned int platformId = 0;
    strStringW platform;
    if (winGetPlatformID(&platformId) == 0)
        platform.ToAlpha(platformId, 0);
    SetValue(IDC_PLATFORM_VALUE, platform);

    strFilename file(kPicture);
    SetValue(IDC_NAME_VALUE, CStringW(file.GetName()));
    SetValue(IDC_EXT_VALUE, CStringW(file.GetExt()));
    strFilename backup(file);
    backup.SetExt("bak");
    SetValue(IDC_BACKUP_NAME_VALUE, CStringW(backup.GetNameExt()));

    strString width;
    width.ToAlpha(kPictureWidth, 6);
    SetValue(IDC_NUMBER_VALUE, CStringW(width));

    // The names of the gallery's windows, loaded from its "_STRINGMAP" resource.
    mfcCStringMap windows(IDR_WINDOWS);
    unsigned int id = 0;
    strStringW command;
    if (windows.Lookup("MAIN", &id))
        command.ToAlpha(id, 0);
    SetValue(IDC_COMMAND_VALUE, command + L" (" + CStringW(windows[id]) + L")");
}
