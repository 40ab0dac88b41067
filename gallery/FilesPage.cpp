#include "FilesPage.h"

#include "resource.h"

namespace {

const wchar_t kFolder[] = L"C:\\Pictures\\Harbour\\";

}  // namespace

CFilesPage::CFilesPage() : CGalleryPage(IDD_PAGE_FILES, IDS_PAGE_FILES) {}

CFilesPage::~CFilesPage() = default;

void CFilesPage::FillControls()
{
    ::SetWindowTextW(GetDlgItem(IDC_FOLDER)->m_hWnd, kFolder);
    CheckDlgButton(IDC_KEEP_BACKUPS, BST_CHECKED);
    strFilenameW backup(gallery::Units(CStringW(kFolder) + L"dawn.tif"));
    backup.SetName(gallery::Units(L"dawn-1"));
    backup.SetExt(gallery::Units(L"bak"));
    ::SetWindowTextW(GetDlgItem(IDC_BACKUP_VALUE)->m_hWnd, backup);
}
