// Messages a control sends its parent, offered to the control's own object.
#include "PixelProbe.h"
#include "WindowingTest.h"

using kivtest::CreateTopLevel;
using kivtest::PixelProbe;

namespace {

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kGreen = RGB(0, 128, 0);
const COLORREF kBlue = RGB(0, 0, 255);
const UINT kButtonID = 41;

// An owner-drawn button that fills itself red and remembers what it was asked to draw.
class CRedButton : public CButton
{
public:
    int m_nDraws = 0;
    UINT m_nCtlID = 0;
    UINT m_nCtlType = 0;
    int m_nPreSubclass = 0;
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override
    {
        ++m_nDraws;
        m_nCtlID = lpDIS->CtlID;
        m_nCtlType = lpDIS->CtlType;
        CDC* pDC = CDC::FromHandle(lpDIS->hDC);
        pDC->FillSolidRect(&lpDIS->rcItem, kRed);
    }
    void PreSubclassWindow() override
    {
        ++m_nPreSubclass;
        CButton::PreSubclassWindow();
    }
};

// A parent that draws its owner-drawn children itself.
class COwnDrawParent : public CWnd
{
public:
    int m_nDraws = 0;

protected:
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT lpDIS)
    {
        ++m_nDraws;
        CDC::FromHandle(lpDIS->hDC)->FillSolidRect(&lpDIS->rcItem, kBlue);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(COwnDrawParent, CWnd)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

HWND CreateOwnerDrawButton(CWnd& parent)
{
    return ::CreateWindowExA(0, "BUTTON", "drawn", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, 10, 10, 80, 30, parent.m_hWnd,
                             (HMENU)(UINT_PTR)kButtonID, nullptr, nullptr);
}

}  // namespace

TEST(CButton, SubclassedOwnerDrawnButtonReceivesTheReflectedDrawItem)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CreateOwnerDrawButton(parent);
    CRedButton button;
    ASSERT_TRUE(button.SubclassDlgItem(kButtonID, &parent));
    EXPECT_EQ(1, button.m_nPreSubclass);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_GE(button.m_nDraws, 1);
    EXPECT_EQ(kButtonID, button.m_nCtlID);
    EXPECT_EQ((UINT)ODT_BUTTON, button.m_nCtlType);
    EXPECT_EQ(kRed, probe.Pixel(2, 2));
    EXPECT_EQ(kRed, probe.Pixel(77, 27));
    parent.DestroyWindow();
}

TEST(CButton, ParentsOwnDrawItemHandlerComesBeforeReflection)
{
    COwnDrawParent parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CreateOwnerDrawButton(parent);
    CRedButton button;
    ASSERT_TRUE(button.SubclassDlgItem(kButtonID, &parent));
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_GE(parent.m_nDraws, 1);
    EXPECT_EQ(0, button.m_nDraws);
    EXPECT_EQ(kBlue, probe.Pixel(40, 15));
    parent.DestroyWindow();
}

TEST(CButton, CreatedOwnerDrawnButtonDrawsThroughItsObject)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CRedButton button;
    ASSERT_TRUE(button.Create("made", WS_VISIBLE | BS_OWNERDRAW, CRect(5, 5, 65, 35), &parent, kButtonID));
    EXPECT_EQ(1, button.m_nPreSubclass);
    PixelProbe probe = PixelProbe::CaptureClient(button.m_hWnd);
    EXPECT_GE(button.m_nDraws, 1);
    EXPECT_EQ(kRed, probe.Pixel(30, 15));
    parent.DestroyWindow();
}

// Notifications

namespace {

class CNotifyChild : public CWnd
{
public:
    int m_nReflected = 0;

protected:
    afx_msg void OnClickReflect(NMHDR* pNMHDR, LRESULT* pResult)
    {
        ++m_nReflected;
        *pResult = (LRESULT)pNMHDR->idFrom + 1000;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CNotifyChild, CWnd)
    ON_NOTIFY_REFLECT(NM_CLICK, &CNotifyChild::OnClickReflect)
END_MESSAGE_MAP()

class CNotifyParent : public CWnd
{
public:
    int m_nClicks = 0;
    int m_nDoubleClicks = 0;

protected:
    afx_msg void OnClick(NMHDR*, LRESULT* pResult)
    {
        ++m_nClicks;
        *pResult = 5;
    }
    afx_msg void OnDoubleClick(NMHDR*, LRESULT* pResult)
    {
        ++m_nDoubleClicks;
        *pResult = 6;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CNotifyParent, CWnd)
    ON_NOTIFY(NM_CLICK, 51, &CNotifyParent::OnClick)
    ON_NOTIFY(NM_DBLCLK, 51, &CNotifyParent::OnDoubleClick)
END_MESSAGE_MAP()

LRESULT Notify(CWnd& parent, CWnd& child, UINT code)
{
    NMHDR hdr = {child.m_hWnd, (UINT_PTR)child.GetDlgCtrlID(), code};
    return parent.SendMessage(WM_NOTIFY, hdr.idFrom, (LPARAM)&hdr);
}

}  // namespace

TEST(CWnd, NotifyReflectHandlerOfTheChildComesFirst)
{
    CNotifyParent parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CNotifyChild child;
    ASSERT_TRUE(child.Create(nullptr, "child", WS_VISIBLE, CRect(0, 0, 20, 20), &parent, 51));
    EXPECT_EQ(1051, Notify(parent, child, NM_CLICK));
    EXPECT_EQ(1, child.m_nReflected);
    EXPECT_EQ(0, parent.m_nClicks);
    parent.DestroyWindow();
}

TEST(CWnd, NotificationTheChildDoesNotHandleReachesTheParent)
{
    CNotifyParent parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CNotifyChild child;
    ASSERT_TRUE(child.Create(nullptr, "child", WS_VISIBLE, CRect(0, 0, 20, 20), &parent, 51));
    EXPECT_EQ(6, Notify(parent, child, NM_DBLCLK));
    EXPECT_EQ(1, parent.m_nDoubleClicks);
    EXPECT_EQ(0, child.m_nReflected);
    parent.DestroyWindow();
}

TEST(CWnd, NotificationOfAChildWithoutObjectReachesTheParent)
{
    CNotifyParent parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    HWND hChild = ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 5, 5, parent.m_hWnd, (HMENU)51, nullptr, nullptr);
    NMHDR hdr = {hChild, 51, (UINT)NM_CLICK};
    EXPECT_EQ(5, parent.SendMessage(WM_NOTIFY, 51, (LPARAM)&hdr));
    EXPECT_EQ(1, parent.m_nClicks);
    parent.DestroyWindow();
}

// Control colours

namespace {

class CGreenStatic : public CStatic
{
public:
    CGreenStatic() { m_brush.CreateSolidBrush(kGreen); }
    int m_nCalls = 0;
    UINT m_nCtlColor = 99;

protected:
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor)
    {
        ++m_nCalls;
        m_nCtlColor = nCtlColor;
        pDC->SetBkColor(kGreen);
        return m_brush;
    }
    CBrush m_brush;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CGreenStatic, CStatic)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class CBlueParent : public CWnd
{
public:
    CBlueParent() { m_brush.CreateSolidBrush(kBlue); }
    UINT m_nCtlColor = 99;
    HWND m_hWndControl = nullptr;

protected:
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        m_nCtlColor = nCtlColor;
        m_hWndControl = pWnd->GetSafeHwnd();
        pDC->SetBkColor(kBlue);
        return m_brush;
    }
    CBrush m_brush;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBlueParent, CWnd)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

}  // namespace

TEST(CWnd, ControlColourIsReflectedToTheStaticsOwnHandler)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CGreenStatic label;
    ASSERT_TRUE(label.Create("", WS_VISIBLE | SS_LEFT, CRect(10, 10, 110, 40), &parent, 61));
    PixelProbe probe = PixelProbe::CaptureClient(label.m_hWnd);
    EXPECT_GE(label.m_nCalls, 1);
    EXPECT_EQ((UINT)CTLCOLOR_STATIC, label.m_nCtlColor);
    EXPECT_EQ(kGreen, probe.Pixel(50, 15));
    parent.DestroyWindow();
}

TEST(CWnd, ParentsControlColourHandlerWinsOverTheReflectedOne)
{
    CBlueParent parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CGreenStatic label;
    ASSERT_TRUE(label.Create("", WS_VISIBLE | SS_LEFT, CRect(10, 10, 110, 40), &parent, 61));
    PixelProbe probe = PixelProbe::CaptureClient(label.m_hWnd);
    EXPECT_EQ(0, label.m_nCalls);
    EXPECT_EQ((UINT)CTLCOLOR_STATIC, parent.m_nCtlColor);
    EXPECT_EQ(label.m_hWnd, parent.m_hWndControl);
    EXPECT_EQ(kBlue, probe.Pixel(50, 15));
    parent.DestroyWindow();
}

TEST(CWnd, EveryControlColourMessageReachesTheMergedHandler)
{
    CBlueParent parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    HWND hEdit = ::CreateWindowExA(0, "EDIT", "", WS_CHILD, 0, 0, 50, 20, parent.m_hWnd, (HMENU)3, nullptr, nullptr);
    HDC hDC = ::GetDC(hEdit);
    LRESULT hbr = parent.SendMessage(WM_CTLCOLOREDIT, (WPARAM)hDC, (LPARAM)hEdit);
    EXPECT_EQ((UINT)CTLCOLOR_EDIT, parent.m_nCtlColor);
    EXPECT_EQ(hEdit, parent.m_hWndControl);
    EXPECT_NE(0, hbr);
    EXPECT_EQ(kBlue, ::GetBkColor(hDC));
    ::ReleaseDC(hEdit, hDC);
    parent.DestroyWindow();
}

namespace {

// A list box whose rows are measured by its own object.
class CMeasuredList : public CListBox
{
public:
    int m_nMeasured = 0;
    UINT m_nCtlID = 0;

protected:
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT lpMIS)
    {
        ++m_nMeasured;
        m_nCtlID = lpMIS->CtlID;
        lpMIS->itemHeight = 23;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMeasuredList, CListBox)
    ON_WM_MEASUREITEM_REFLECT()
END_MESSAGE_MAP()

}  // namespace

TEST(CWnd, MeasureItemOfAnOwnerDrawnListIsReflectedToTheList)
{
    CWnd parent;
    ASSERT_TRUE(CreateTopLevel(parent));
    CMeasuredList list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(0, 0, 100, 100), &parent, 71));
    EXPECT_GE(list.m_nMeasured, 1);
    EXPECT_EQ(71u, list.m_nCtlID);
    EXPECT_EQ(23, (int)list.SendMessage(LB_GETITEMHEIGHT, 0));
    parent.DestroyWindow();
}
