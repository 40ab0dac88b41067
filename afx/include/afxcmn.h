// Common controls: image lists, tooltips, tab controls and list views.
#pragma once

#include "afxwin.h"

#include <commctrl.h>

class AFX_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList() = default;
    ~CImageList() override;
    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const;
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // A strip of images of width cx from a bitmap of the resource chain.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    int GetImageCount() const { return ImageList_GetImageCount(m_hImageList); }
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon) { return ImageList_ReplaceIcon(m_hImageList, -1, hIcon); }
    BOOL Remove(int nImage) { return ImageList_Remove(m_hImageList, nImage); }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
    {
        return ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    COLORREF SetBkColor(COLORREF cr) { return ImageList_SetBkColor(m_hImageList, cr); }
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
    {
        return ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
    }
};

class AFX_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl() = default;
    ~CToolTipCtrl() override;
    // A popup tooltip window owned by pParentWnd.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    // Tools: with nIDTool 0 the tool is the window pWnd itself, else an area of pWnd.
    BOOL AddTool(CWnd* pWnd, LPCSTR lpszText = LPSTR_TEXTCALLBACKA, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    int GetToolCount() const { return (int)SendMessage(TTM_GETTOOLCOUNT); }
    // Hands a mouse message to the tooltip, which tracks hovering through it.
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, (LPARAM)lpMsg); }
    int SetMaxTipWidth(int iWidth) { return (int)SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth); }
    int GetMaxTipWidth() const { return (int)SendMessage(TTM_GETMAXTIPWIDTH); }
    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, bActivate); }
    void SetDelayTime(UINT nDelay) { SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay); }
    void Pop() { SendMessage(TTM_POP); }

private:
    void FillInToolInfo(TTTOOLINFOA& ti, CWnd* pWnd, UINT_PTR nIDTool) const;
};

class AFX_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl() = default;
    ~CTabCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const { return (int)SendMessage(TCM_GETITEMCOUNT); }
    LONG InsertItem(int nItem, LPCSTR lpszItem);
    LONG InsertItem(int nItem, LPCSTR lpszItem, int nImage);
    LONG InsertItem(int nItem, TCITEMA* pTabCtrlItem)
    {
        return (LONG)SendMessage(TCM_INSERTITEMA, nItem, (LPARAM)pTabCtrlItem);
    }
    BOOL GetItem(int nItem, TCITEMA* pTabCtrlItem) const
    {
        return (BOOL)SendMessage(TCM_GETITEMA, nItem, (LPARAM)pTabCtrlItem);
    }
    BOOL SetItem(int nItem, TCITEMA* pTabCtrlItem)
    {
        return (BOOL)SendMessage(TCM_SETITEMA, nItem, (LPARAM)pTabCtrlItem);
    }
    BOOL DeleteItem(int nItem) { return (BOOL)SendMessage(TCM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return (BOOL)SendMessage(TCM_DELETEALLITEMS); }
    int GetCurSel() const { return (int)SendMessage(TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return (int)SendMessage(TCM_SETCURSEL, nItem); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const
    {
        return (BOOL)SendMessage(TCM_GETITEMRECT, nItem, (LPARAM)lpRect);
    }
    void AdjustRect(BOOL bLarger, LPRECT lpRect) { SendMessage(TCM_ADJUSTRECT, bLarger, (LPARAM)lpRect); }
    CSize SetItemSize(CSize size);
    int GetRowCount() const { return (int)SendMessage(TCM_GETROWCOUNT); }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const { return (int)SendMessage(TCM_HITTEST, 0, (LPARAM)pHitTestInfo); }
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);

    // Overridables: tabs of an owner-drawn tab control draw themselves here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class AFX_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl() = default;
    ~CListCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int InsertColumn(int nCol, LPCSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1, int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return (BOOL)SendMessage(LVM_DELETECOLUMN, nCol); }
    int GetColumnWidth(int nCol) const { return (int)SendMessage(LVM_GETCOLUMNWIDTH, nCol); }
    BOOL SetColumnWidth(int nCol, int cx) { return (BOOL)SendMessage(LVM_SETCOLUMNWIDTH, nCol, cx); }
    int InsertItem(int nItem, LPCSTR lpszItem);
    int InsertItem(int nItem, LPCSTR lpszItem, int nImage);
    int InsertItem(const LVITEMA* pItem) { return (int)SendMessage(LVM_INSERTITEMA, 0, (LPARAM)pItem); }
    BOOL SetItemText(int nItem, int nSubItem, LPCSTR lpszText);
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemCount() const { return (int)SendMessage(LVM_GETITEMCOUNT); }
    BOOL DeleteItem(int nItem) { return (BOOL)SendMessage(LVM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return (BOOL)SendMessage(LVM_DELETEALLITEMS); }
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    UINT GetItemState(int nItem, UINT nMask) const { return (UINT)SendMessage(LVM_GETITEMSTATE, nItem, nMask); }
    int GetNextItem(int nItem, int nFlags) const
    {
        return (int)SendMessage(LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
    }
    UINT GetSelectedCount() const { return (UINT)SendMessage(LVM_GETSELECTEDCOUNT); }
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const;
    BOOL EnsureVisible(int nItem, BOOL bPartialOK) { return (BOOL)SendMessage(LVM_ENSUREVISIBLE, nItem, bPartialOK); }
    DWORD SetExtendedStyle(DWORD dwNewStyle) { return (DWORD)SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle); }
    DWORD GetExtendedStyle() const { return (DWORD)SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE); }
    BOOL SetBkColor(COLORREF cr) { return (BOOL)SendMessage(LVM_SETBKCOLOR, 0, cr); }
    BOOL SetTextBkColor(COLORREF cr) { return (BOOL)SendMessage(LVM_SETTEXTBKCOLOR, 0, cr); }
    BOOL SetTextColor(COLORREF cr) { return (BOOL)SendMessage(LVM_SETTEXTCOLOR, 0, cr); }
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    CImageList* GetImageList(int nImageList) const;

    // Overridables: rows of an owner-drawn report view draw themselves here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

// The common controls' window classes are registered once per process.
AFX_API BOOL AFXAPI AfxInitCommonControls();
