// Common controls: tabs, list views, image lists and tooltips.
#include <afxcmn.h>
#include <afxpriv.h>

#include "MessageSpy.h"
#include "PixelProbe.h"
#include "WindowingTest.h"
#include "windowing_res.h"

#include <vector>

using kivtest::CreateTopLevel;
using kivtest::PixelProbe;

namespace {

const COLORREF kSteelBlue = RGB(78, 130, 172);

class CBlueTabs : public CTabCtrl
{
public:
    std::vector<UINT> m_drawn;
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override
    {
        m_drawn.push_back(lpDIS->itemID);
        CDC::FromHandle(lpDIS->hDC)->FillSolidRect(&lpDIS->rcItem, kSteelBlue);
    }
};

}  // namespace

TEST(CTabCtrl, InsertsSelectsAndReadsItems)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_VISIBLE, CRect(5, 5, 305, 105), &parent, 70));
    EXPECT_EQ(0, tabs.InsertItem(0, "One"));
    EXPECT_EQ(1, tabs.InsertItem(1, "Two"));
    EXPECT_EQ(2, tabs.InsertItem(2, "Three", -1));
    EXPECT_EQ(3, tabs.GetItemCount());
    EXPECT_EQ(0, tabs.SetCurSel(2));
    EXPECT_EQ(2, tabs.GetCurSel());
    char szText[32] = {};
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = szText;
    item.cchTextMax = sizeof(szText);
    ASSERT_TRUE(tabs.GetItem(1, &item));
    EXPECT_STREQ("Two", szText);
    CRect rect;
    ASSERT_TRUE(tabs.GetItemRect(0, &rect));
    EXPECT_GT(rect.Width(), 0);
    CRect page(0, 0, 300, 100);
    tabs.AdjustRect(FALSE, &page);
    EXPECT_GT(page.top, rect.top);
    EXPECT_TRUE(tabs.DeleteItem(0));
    EXPECT_EQ(2, tabs.GetItemCount());
    parent.DestroyWindow();
}

TEST(CTabCtrl, OwnerDrawnTabsDrawThroughTheirObject)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CBlueTabs tabs;
    ASSERT_TRUE(tabs.Create(WS_VISIBLE | TCS_OWNERDRAWFIXED, CRect(5, 5, 305, 105), &parent, 70));
    tabs.InsertItem(0, "One");
    tabs.InsertItem(1, "Two");
    PixelProbe probe = PixelProbe::CaptureClient(tabs.m_hWnd);
    ASSERT_GE(tabs.m_drawn.size(), 2u);
    CRect rect;
    tabs.GetItemRect(1, &rect);
    EXPECT_EQ(kSteelBlue, probe.Pixel(rect.CenterPoint().x, rect.CenterPoint().y));
    parent.DestroyWindow();
}

namespace {

class CStripedList : public CListCtrl
{
public:
    int m_nPrePaint = 0;
    std::vector<DWORD_PTR> m_rows;

protected:
    afx_msg void OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult)
    {
        NMLVCUSTOMDRAW* pDraw = (NMLVCUSTOMDRAW*)pNMHDR;
        *pResult = CDRF_DODEFAULT;
        if (pDraw->nmcd.dwDrawStage == CDDS_PREPAINT)
        {
            ++m_nPrePaint;
            *pResult = CDRF_NOTIFYITEMDRAW;
        }
        else if (pDraw->nmcd.dwDrawStage == CDDS_ITEMPREPAINT)
        {
            m_rows.push_back(pDraw->nmcd.dwItemSpec);
            pDraw->clrTextBk = (pDraw->nmcd.dwItemSpec % 2) ? RGB(255, 255, 255) : kSteelBlue;
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CStripedList, CListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CStripedList::OnCustomDraw)
END_MESSAGE_MAP()

}  // namespace

TEST(CListCtrl, ReportColumnsItemsAndTexts)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 200), &parent, 80));
    EXPECT_EQ(0, list.InsertColumn(0, "Name", LVCFMT_LEFT, 100));
    EXPECT_EQ(1, list.InsertColumn(1, "Size", LVCFMT_RIGHT, 60));
    EXPECT_EQ(100, list.GetColumnWidth(0));
    EXPECT_EQ(0, list.InsertItem(0, "alpha"));
    EXPECT_EQ(1, list.InsertItem(1, "beta"));
    EXPECT_TRUE(list.SetItemText(1, 1, "12"));
    EXPECT_STREQ("beta", list.GetItemText(1, 0));
    EXPECT_STREQ("12", list.GetItemText(1, 1));
    EXPECT_EQ(2, list.GetItemCount());
    EXPECT_TRUE(list.SetItemData(0, 0x1234));
    EXPECT_EQ(0x1234u, list.GetItemData(0));
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    EXPECT_TRUE(list.GetExtendedStyle() & LVS_EX_FULLROWSELECT);
    EXPECT_TRUE(list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(1, list.GetNextItem(-1, LVNI_SELECTED));
    EXPECT_EQ(1u, list.GetSelectedCount());
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(0, list.GetItemCount());
    parent.DestroyWindow();
}

TEST(CListCtrl, CustomDrawIsReflectedToTheListsOwnHandler)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CStripedList list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 200), &parent, 80));
    list.InsertColumn(0, "Name", LVCFMT_LEFT, 200);
    list.InsertItem(0, "a");
    list.InsertItem(1, "b");
    list.InsertItem(2, "c");
    PixelProbe probe = PixelProbe::CaptureClient(list.m_hWnd);
    EXPECT_GE(list.m_nPrePaint, 1);
    ASSERT_GE(list.m_rows.size(), 3u);
    EXPECT_EQ(0u, list.m_rows[0]);
    EXPECT_EQ(2u, list.m_rows[2]);
    CRect row0, row1;
    list.GetItemRect(0, &row0, LVIR_LABEL);
    list.GetItemRect(1, &row1, LVIR_LABEL);
    EXPECT_EQ(kSteelBlue, probe.Pixel(row0.right - 3, row0.CenterPoint().y));
    EXPECT_EQ(RGB(255, 255, 255), probe.Pixel(row1.right - 3, row1.CenterPoint().y));
    parent.DestroyWindow();
}

TEST(CImageList, CreateAddAndDescribeImages)
{
    CImageList images;
    ASSERT_TRUE(images.Create(4, 4, ILC_COLOR32 | ILC_MASK, 0, 4));
    EXPECT_EQ(&images, CImageList::FromHandlePermanent(images.m_hImageList));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_RED));
    EXPECT_EQ(0, images.Add(&bitmap, RGB(0, 0, 0)));
    EXPECT_EQ(1, images.GetImageCount());
    IMAGEINFO info = {};
    ASSERT_TRUE(images.GetImageInfo(0, &info));
    EXPECT_EQ(4, info.rcImage.right - info.rcImage.left);
    EXPECT_NE(nullptr, info.hbmImage);
    HIMAGELIST hList = images.m_hImageList;
    EXPECT_TRUE(images.DeleteImageList());
    EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(hList));
}

TEST(CImageList, FromHandleOfAnUnownedListIsATemporaryUntilTheMapsUnlock)
{
    HIMAGELIST hList = ImageList_Create(4, 4, ILC_COLOR32, 0, 4);
    ASSERT_NE(nullptr, hList);
    AfxLockTempMaps();
    CImageList* pList = CImageList::FromHandle(hList);
    ASSERT_NE(nullptr, pList);
    EXPECT_EQ(hList, pList->m_hImageList);
    EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(hList));
    EXPECT_EQ(pList, CImageList::FromHandle(hList));
    EXPECT_EQ(pList, afxMapHIMAGELIST()->LookupTemporary(hList));
    AfxUnlockTempMaps();
    EXPECT_EQ(nullptr, afxMapHIMAGELIST()->LookupTemporary(hList));
    int cx = 0, cy = 0;
    EXPECT_TRUE(ImageList_GetIconSize(hList, &cx, &cy));  // the list outlived its temporary
    EXPECT_EQ(4, cx);
    ImageList_Destroy(hList);
}

TEST(CImageList, StripFromABitmapResourceOfTheChain)
{
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_RED, 2, 0, CLR_NONE));
    EXPECT_EQ(2, images.GetImageCount());
}

TEST(CToolTipCtrl, ToolsKeepTheirTextsAndUpdates)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CButton button;
    ASSERT_TRUE(button.Create("Open", WS_VISIBLE, CRect(10, 10, 90, 40), &parent, 90));
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&parent, TTS_ALWAYSTIP));
    EXPECT_TRUE(tip.GetStyle() & WS_POPUP);
    EXPECT_TRUE(tip.AddTool(&button, "Opens a file"));
    EXPECT_EQ(1, tip.GetToolCount());
    CString text;
    tip.GetText(text, &button);
    EXPECT_STREQ("Opens a file", text);
    tip.UpdateTipText("Opens the file", &button);
    tip.GetText(text, &button);
    EXPECT_STREQ("Opens the file", text);
    tip.SetMaxTipWidth(32767);
    EXPECT_EQ(32767, tip.GetMaxTipWidth());
    tip.DelTool(&button);
    EXPECT_EQ(0, tip.GetToolCount());
    parent.DestroyWindow();
}

TEST(CToolTipCtrl, RelayEventAndActivateReachTheControl)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&parent, TTS_ALWAYSTIP));
    kivtest::MessageSpy spy;
    spy.Only({TTM_RELAYEVENT, TTM_ACTIVATE});
    spy.Watch(tip.m_hWnd);
    MSG msg = {parent.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, {20, 20}};
    tip.RelayEvent(&msg);
    tip.Activate(FALSE);
    tip.Activate(TRUE);
    spy.Unwatch(tip.m_hWnd);
    ASSERT_EQ(3u, spy.Messages().size());
    EXPECT_EQ((UINT)TTM_RELAYEVENT, spy.Messages()[0].message);
    EXPECT_EQ((LPARAM)&msg, spy.Messages()[0].lParam);
    EXPECT_EQ((UINT)TTM_ACTIVATE, spy.Messages()[1].message);
    EXPECT_EQ(0u, spy.Messages()[1].wParam);
    EXPECT_EQ(1u, spy.Messages()[2].wParam);
    parent.DestroyWindow();
}
