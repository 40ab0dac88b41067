#include "MainDialog.h"

#include "resource.h"

#include <commctrl.h>

#include <algorithm>

namespace {

struct Picture
{
    const char* path;
    int width;
    int height;
};

// The pictures the dialog browses: names and sizes are data, shown as they are.
const Picture kPictures[] = {
    {"C:\\Pictures\\Harbour\\dawn.tif", 4096, 2731}, {"C:\\Pictures\\Harbour\\ferry.jpg", 3000, 2000},
    {"D:\\Scans\\1952\\wedding.png", 2480, 3508},    {"D:\\Scans\\1952\\garden.png", 3508, 2480},
    {"C:\\Pictures\\Alps\\glacier.tif", 6000, 4000}, {"C:\\Pictures\\Alps\\hut.jpg", 1920, 1280},
    {"E:\\Archive\\maps\\coast.bmp", 1600, 1200},    {"E:\\Archive\\maps\\island.bmp", 1024, 768},
};
constexpr int kPictureCount = sizeof(kPictures) / sizeof(kPictures[0]);

CStringW SizeText(const Picture& picture)
{
    strStringW width, height;
    width.ToAlpha(picture.width, 0);
    height.ToAlpha(picture.height, 0);
    return width + L" \x00D7 " + height;
}

}  // namespace

BEGIN_MESSAGE_MAP(CMainDialog, mfcCDialog)
    ON_BN_CLICKED(IDC_PREVIOUS, &CMainDialog::OnPrevious)
    ON_BN_CLICKED(IDC_NEXT, &CMainDialog::OnNext)
    ON_BN_CLICKED(IDC_ZOOM_IN, &CMainDialog::OnZoomIn)
    ON_BN_CLICKED(IDC_ZOOM_OUT, &CMainDialog::OnZoomOut)
    ON_BN_CLICKED(IDC_ACTUAL_SIZE, &CMainDialog::OnActualSize)
    ON_BN_CLICKED(IDC_DETAILS, &CMainDialog::OnDetails)
    ON_BN_CLICKED(IDC_SETTINGS, &CMainDialog::OnSettings)
    ON_BN_CLICKED(IDC_MESSAGE, &CMainDialog::OnMessage)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

CMainDialog::CMainDialog(CWnd* pParentWnd) : mfcCDialog(IDD_MAIN, pParentWnd) {}

CMainDialog::~CMainDialog() = default;

BOOL CMainDialog::OnInitDialog()
{
    // The template's size, before the dialog class restores a remembered placement, which may
    // come from another screen resolution and be smaller.
    CRect window, client;
    GetWindowRect(&window);
    GetClientRect(&client);
    // The buttons with words draw them as wide text; the five with signs stay colour buttons.
    gallery::AttachUnicodeButtons(this, m_buttons, IDC_PREVIOUS, IDC_ACTUAL_SIZE);
    m_pictures.SubclassDlgItem(IDC_PICTURES, this);
    m_unitTabs.SubclassDlgItem(IDC_COLOR_TABS, this);
    m_periodTabs.SubclassDlgItem(IDC_PERIOD_TABS, this);
    gallery::ApplyTranslatedFont(this, m_font);
    mfcCDialog::OnInitDialog();
    gallery::TranslateCaption(this, gallery::Section(IDD_MAIN));
    gallery::FillComboBox(this, IDC_PROFILE, gallery::Section(IDD_MAIN), {"Screen", "Print", "Archive"});
    gallery::FillComboBox(this, IDC_UNITS, gallery::Section(IDD_MAIN), {"Pixels", "Millimetres", "Inches"});
    CheckDlgButton(IDC_SHOW_GRID, BST_CHECKED);
    CheckRadioButton(IDC_METRIC, IDC_IMPERIAL, IDC_METRIC);
    FillPictureList();
    FillTabs();
    CreateTrackerView();
    ShowPicture();
    m_sizeSmallest = window.Size();
    m_nClientHeight = client.Height();
    CRect placed;
    GetWindowRect(&placed);
    SetWindowPos(nullptr, 0, 0, m_sizeSmallest.cx, std::max<int>(placed.Height(), m_sizeSmallest.cy),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    GetClientRect(&client);
    if (client.Height() != m_nClientHeight)
        OnSize(SIZE_RESTORED, client.Width(), client.Height());  // laid out for the template so far
    return TRUE;
}

// Taller, the list and the tracker view grow and the rows below them follow the bottom edge.
void CMainDialog::OnSize(UINT nType, int cx, int cy)
{
    mfcCDialog::OnSize(nType, cx, cy);
    const int dy = cy - m_nClientHeight;
    if (m_nClientHeight == 0 || nType == SIZE_MINIMIZED || dy == 0)
        return;
    static const UINT growing[] = {IDC_PICTURES, IDC_COLOR_TABS};
    static const UINT following[] = {IDC_PERIOD_TABS, IDC_PREVIOUS, IDC_NEXT,     IDC_ZOOM_IN, IDC_ZOOM_OUT,
                                     IDC_ACTUAL_SIZE, IDC_DETAILS,  IDC_SETTINGS, IDC_MESSAGE, IDCANCEL};
    for (UINT id : growing)
    {
        CRect rect;
        GetDlgItem((int)id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        GetDlgItem((int)id)->SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height() + dy, SWP_NOMOVE | SWP_NOZORDER);
    }
    for (UINT id : following)
    {
        CRect rect;
        GetDlgItem((int)id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        GetDlgItem((int)id)->SetWindowPos(nullptr, rect.left, rect.top + dy, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    const CRect page = TrackerPage();
    m_trackerView.SetWindowPos(nullptr, page.left, page.top, page.Width(), page.Height(), SWP_NOZORDER);
    m_nClientHeight = cy;
    Invalidate();  // the size grip moves with the corner
}

void CMainDialog::OnGetMinMaxInfo(MINMAXINFO* lpMMI)
{
    mfcCDialog::OnGetMinMaxInfo(lpMMI);
    if (m_sizeSmallest.cx == 0)
        return;
    lpMMI->ptMinTrackSize = CPoint(m_sizeSmallest.cx, m_sizeSmallest.cy);
    lpMMI->ptMaxTrackSize.x = m_sizeSmallest.cx;
}

void CMainDialog::FillPictureList()
{
    m_pictures.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    CRect client;
    m_pictures.GetClientRect(&client);
    // Room for a vertical scroll bar: the rows of a taller font may not all fit.
    client.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    const int sizeWidth = client.Width() * 2 / 5;
    strStringW name(IDS_LIST_NAME), size(IDS_LIST_SIZE);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = const_cast<LPWSTR>(name.GetString());
    column.cx = client.Width() - sizeWidth;
    ::SendMessageW(m_pictures.m_hWnd, LVM_INSERTCOLUMNW, 0, (LPARAM)&column);
    column.pszText = const_cast<LPWSTR>(size.GetString());
    column.cx = sizeWidth;
    ::SendMessageW(m_pictures.m_hWnd, LVM_INSERTCOLUMNW, 1, (LPARAM)&column);
    for (int i = 0; i < kPictureCount; ++i)
    {
        strFilenameW file(gallery::Units(CStringW(kPictures[i].path)));
        CStringW nameExt = file.GetNameExt(), sizeText = SizeText(kPictures[i]);
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = i;
        item.pszText = const_cast<LPWSTR>(nameExt.GetString());
        ::SendMessageW(m_pictures.m_hWnd, LVM_INSERTITEMW, 0, (LPARAM)&item);
        item.iSubItem = 1;
        item.pszText = const_cast<LPWSTR>(sizeText.GetString());
        ::SendMessageW(m_pictures.m_hWnd, LVM_SETITEMTEXTW, i, (LPARAM)&item);
    }
    m_pictures.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
}

void CMainDialog::FillTabs()
{
    // Units read the same in every language the gallery speaks; the coloured tabs draw narrow text.
    gallery::InsertTabs(this, IDC_COLOR_TABS, gallery::Section(IDD_MAIN), {"px", "mm", "in"});
    std::vector<CStringW> periods =
        gallery::InsertTabs(this, IDC_PERIOD_TABS, gallery::Section(IDD_MAIN), {"Day", "Week", "Month"});
    m_periodTabs.SetUnicode(periods.data(), (int)periods.size());
}

// Made after the translation walk: the view has no text of its own. It fills the page of the
// coloured tab control.
CRect CMainDialog::TrackerPage()
{
    CRect page;
    m_unitTabs.GetWindowRect(&page);
    ScreenToClient(&page);
    m_unitTabs.AdjustRect(FALSE, &page);
    page.DeflateRect(2, 2);
    return page;
}

void CMainDialog::CreateTrackerView()
{
    m_trackerView.CreateView(TrackerPage(), this, IDC_TRACKER_VIEW);
    m_trackerView.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void CMainDialog::ShowPicture()
{
    const Picture& picture = kPictures[m_nPicture];
    strFilenameW file(gallery::Units(CStringW(picture.path)));
    CStringW folder = file.GetPath();
    ::SetWindowTextW(GetDlgItem(IDC_FILE_VALUE)->m_hWnd, file.GetNameExt());
    ::SetWindowTextW(GetDlgItem(IDC_FOLDER_VALUE)->m_hWnd, folder);
    m_pictures.SetItemState(m_nPicture, LVIS_SELECTED, LVIS_SELECTED);
    ShowScale();
}

void CMainDialog::ShowScale()
{
    strStringW scale;
    scale.ToAlpha(m_trackerView.ZoomPercent(), 1);
    ::SetWindowTextW(GetDlgItem(IDC_SCALE_VALUE)->m_hWnd, scale + L" %");
}

void CMainDialog::OnPrevious()
{
    m_nPicture = (m_nPicture + kPictureCount - 1) % kPictureCount;
    ShowPicture();
}

void CMainDialog::OnNext()
{
    m_nPicture = (m_nPicture + 1) % kPictureCount;
    ShowPicture();
}

void CMainDialog::OnZoomIn()
{
    m_trackerView.Zoom(1);
    ShowScale();
}

void CMainDialog::OnZoomOut()
{
    m_trackerView.Zoom(-1);
    ShowScale();
}

void CMainDialog::OnActualSize()
{
    m_trackerView.ResetZoom();
    ShowScale();
}

void CMainDialog::ForwardToFrame(UINT nID)
{
    if (CWnd* pFrame = AfxGetMainWnd(); pFrame != nullptr && pFrame != this)
        pFrame->SendMessage(WM_COMMAND, nID, 0);
}

void CMainDialog::OnDetails()
{
    ForwardToFrame(ID_VIEW_DETAILS);
}

void CMainDialog::OnSettings()
{
    ForwardToFrame(ID_VIEW_SETTINGS);
}

void CMainDialog::OnMessage()
{
    ForwardToFrame(ID_VIEW_MESSAGE);
}
