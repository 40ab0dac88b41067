// Common controls.
#include "afximpl_.h"
#include "afxcmn.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

BOOL AFXAPI AfxInitCommonControls()
{
    static BOOL bDone = [] {
        INITCOMMONCONTROLSEX icc = {sizeof(icc),
                                    ICC_WIN95_CLASSES | ICC_TAB_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
        return ::InitCommonControlsEx(&icc);
    }();
    return bDone;
}

// Image lists

CImageList::~CImageList()
{
    DeleteImageList();
}

__attribute__((noinline)) HIMAGELIST CImageList::GetSafeHandle() const
{
    const CImageList* pThis = this;
    return pThis == nullptr ? nullptr : m_hImageList;
}

AFX_IMPLEMENT_FROMHANDLE(CImageList, HIMAGELIST)
AFX_IMPLEMENT_FROMHANDLEPERMANENT(CImageList, HIMAGELIST)
AFX_IMPLEMENT_ATTACH_DETACH(CImageList, HIMAGELIST)

BOOL CImageList::DeleteImageList()
{
    if (m_hImageList == nullptr)
        return FALSE;
    return ImageList_Destroy(Detach());
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    AfxInitCommonControls();
    return Attach(ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    AfxInitCommonControls();
    LPCSTR lpszName = MAKEINTRESOURCEA(nBitmapID);
    HINSTANCE hInst = AfxFindResourceHandle(lpszName, (LPCSTR)RT_BITMAP);
    return Attach(ImageList_LoadImageA(hInst, lpszName, cx, nGrow, crMask, IMAGE_BITMAP, LR_CREATEDIBSECTION));
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ImageList_Add(m_hImageList, (HBITMAP)pbmImage->GetSafeHandle(), (HBITMAP)pbmMask->GetSafeHandle());
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    return ImageList_AddMasked(m_hImageList, (HBITMAP)pbmImage->GetSafeHandle(), crMask);
}

// Tooltips

CToolTipCtrl::~CToolTipCtrl()
{
    DestroyWindow();
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    AfxInitCommonControls();
    BOOL bResult = CreateEx(WS_EX_TOOLWINDOW, TOOLTIPS_CLASSA, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), nullptr);
    if (bResult)
        SetOwner(pParentWnd);
    return bResult;
}

void CToolTipCtrl::FillInToolInfo(TTTOOLINFOA& ti, CWnd* pWnd, UINT_PTR nIDTool) const
{
    ZeroMemory(&ti, sizeof(ti));
    ti.cbSize = TTTOOLINFOA_V2_SIZE;
    HWND hWnd = pWnd->GetSafeHwnd();
    if (nIDTool == 0)
    {
        // The whole window is the tool; the tooltip learns of it through its parent.
        ti.hwnd = ::GetParent(hWnd);
        ti.uFlags = TTF_IDISHWND;
        ti.uId = (UINT_PTR)hWnd;
    }
    else
    {
        ti.hwnd = hWnd;
        ti.uId = nIDTool;
    }
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TTTOOLINFOA ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    if (lpRectTool != nullptr)
        ti.rect = *lpRectTool;
    ti.lpszText = (LPSTR)lpszText;
    return (BOOL)SendMessage(TTM_ADDTOOLA, 0, (LPARAM)&ti);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    CString text;
    text.LoadString(nIDText);
    return AddTool(pWnd, text, lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TTTOOLINFOA ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    SendMessage(TTM_DELTOOLA, 0, (LPARAM)&ti);
}

void CToolTipCtrl::UpdateTipText(LPCSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TTTOOLINFOA ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    ti.lpszText = (LPSTR)lpszText;
    SendMessage(TTM_UPDATETIPTEXTA, 0, (LPARAM)&ti);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    CString text;
    text.LoadString(nIDText);
    UpdateTipText(text, pWnd, nIDTool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    TTTOOLINFOA ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    char szText[1024] = {};
    ti.lpszText = szText;
    SendMessage(TTM_GETTEXTA, sizeof(szText), (LPARAM)&ti);
    str = szText;
}

// Tab controls

CTabCtrl::~CTabCtrl()
{
    DestroyWindow();
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    AfxInitCommonControls();
    return CWnd::Create(WC_TABCONTROLA, nullptr, dwStyle, rect, pParentWnd, nID);
}

LONG CTabCtrl::InsertItem(int nItem, LPCSTR lpszItem)
{
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = (LPSTR)lpszItem;
    return InsertItem(nItem, &item);
}

LONG CTabCtrl::InsertItem(int nItem, LPCSTR lpszItem, int nImage)
{
    TCITEMA item = {};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = (LPSTR)lpszItem;
    item.iImage = nImage;
    return InsertItem(nItem, &item);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    DWORD dwSize = (DWORD)SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(dwSize), HIWORD(dwSize));
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle((HIMAGELIST)SendMessage(TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle((HIMAGELIST)SendMessage(TCM_SETIMAGELIST, 0, (LPARAM)pImageList->GetSafeHandle()));
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return AfxChildNotifyDrawItem(this, message, wParam, lParam, pResult);
}

// List views

CListCtrl::~CListCtrl()
{
    DestroyWindow();
}

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    AfxInitCommonControls();
    return CWnd::Create(WC_LISTVIEWA, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CListCtrl::InsertColumn(int nCol, LPCSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMNA column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = (LPSTR)lpszColumnHeading;
    column.fmt = nFormat;
    if (nWidth != -1)
    {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1)
    {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return (int)SendMessage(LVM_INSERTCOLUMNA, nCol, (LPARAM)&column);
}

int CListCtrl::InsertItem(int nItem, LPCSTR lpszItem)
{
    LVITEMA item = {};
    item.mask = LVIF_TEXT;
    item.iItem = nItem;
    item.pszText = (LPSTR)lpszItem;
    return InsertItem(&item);
}

int CListCtrl::InsertItem(int nItem, LPCSTR lpszItem, int nImage)
{
    LVITEMA item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = nItem;
    item.pszText = (LPSTR)lpszItem;
    item.iImage = nImage;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCSTR lpszText)
{
    LVITEMA item = {};
    item.iSubItem = nSubItem;
    item.pszText = (LPSTR)lpszText;
    return (BOOL)SendMessage(LVM_SETITEMTEXTA, nItem, (LPARAM)&item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    char szText[1024] = {};
    LVITEMA item = {};
    item.iSubItem = nSubItem;
    item.pszText = szText;
    item.cchTextMax = sizeof(szText);
    SendMessage(LVM_GETITEMTEXTA, nItem, (LPARAM)&item);
    return szText;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    LVITEMA item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    item.lParam = (LPARAM)dwData;
    return (BOOL)SendMessage(LVM_SETITEMA, 0, (LPARAM)&item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEMA item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    SendMessage(LVM_GETITEMA, 0, (LPARAM)&item);
    return (DWORD_PTR)item.lParam;
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEMA item = {};
    item.stateMask = nMask;
    item.state = nState;
    return (BOOL)SendMessage(LVM_SETITEMSTATE, nItem, (LPARAM)&item);
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    lpRect->left = (LONG)nCode;
    return (BOOL)SendMessage(LVM_GETITEMRECT, nItem, (LPARAM)lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const
{
    ref.top = iSubItem;
    ref.left = nArea;
    return (BOOL)SendMessage(LVM_GETSUBITEMRECT, iItem, (LPARAM)&ref);
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(
        (HIMAGELIST)SendMessage(LVM_SETIMAGELIST, nImageListType, (LPARAM)pImageList->GetSafeHandle()));
}

CImageList* CListCtrl::GetImageList(int nImageList) const
{
    return CImageList::FromHandle((HIMAGELIST)SendMessage(LVM_GETIMAGELIST, nImageList));
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return AfxChildNotifyDrawItem(this, message, wParam, lParam, pResult);
}
