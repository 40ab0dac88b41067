// Drawing: device contexts and GDI objects, checked pixel by pixel.
#include <afxpriv.h>

#include "PixelProbe.h"
#include "WindowingTest.h"
#include "windowing_res.h"

using kivtest::CreateTopLevel;
using kivtest::PixelProbe;

namespace {

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kBlue = RGB(0, 0, 255);
const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kBack = RGB(255, 0, 255);  // the probe's own background

}  // namespace

TEST(CDC, FillSolidRectFillsAndLeavesItsColourAsBackground)
{
    PixelProbe probe(20, 20);
    CDC* pDC = probe.GetCDC();
    pDC->FillSolidRect(CRect(2, 3, 8, 9), kBlue);
    EXPECT_EQ(kBlue, probe.Pixel(2, 3));
    EXPECT_EQ(kBlue, probe.Pixel(7, 8));
    EXPECT_EQ(kBack, probe.Pixel(8, 8));
    EXPECT_EQ(kBack, probe.Pixel(7, 9));
    EXPECT_EQ(kBlue, pDC->GetBkColor());
}

TEST(CDC, FillRectUsesTheBrush)
{
    PixelProbe probe(20, 20);
    CBrush brush(kRed);
    probe.GetCDC()->FillRect(CRect(0, 0, 10, 10), &brush);
    EXPECT_EQ(100, probe.Count(kRed, CRect(0, 0, 20, 20)));
}

TEST(CDC, SelectObjectGivesBackThePreviousObject)
{
    PixelProbe probe(10, 10);
    CDC* pDC = probe.GetCDC();
    CPen red(PS_SOLID, 1, kRed);
    CPen blue(PS_SOLID, 1, kBlue);
    CPen* pOriginal = pDC->SelectObject(&red);
    ASSERT_NE(nullptr, pOriginal);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), pOriginal->m_hObject);
    EXPECT_EQ(&red, pDC->SelectObject(&blue));
    EXPECT_EQ(&blue, pDC->SelectObject(pOriginal));
}

TEST(CDC, SelectStockObjectSelectsTheStockHandle)
{
    PixelProbe probe(10, 10);
    CDC* pDC = probe.GetCDC();
    pDC->SelectStockObject(NULL_BRUSH);
    EXPECT_EQ(::GetStockObject(NULL_BRUSH), ::GetCurrentObject(probe.DC(), OBJ_BRUSH));
}

TEST(CDC, RestoreDCBringsBackTheSavedState)
{
    PixelProbe probe(10, 10);
    CDC* pDC = probe.GetCDC();
    pDC->SetTextColor(kRed);
    int nSaved = pDC->SaveDC();
    EXPECT_NE(0, nSaved);
    pDC->SetTextColor(kBlue);
    pDC->SetBkMode(TRANSPARENT);
    EXPECT_TRUE(pDC->RestoreDC(nSaved));
    EXPECT_EQ(kRed, pDC->GetTextColor());
    EXPECT_EQ(OPAQUE, pDC->GetBkMode());
}

TEST(CDC, MoveToLineToDrawsWithTheSelectedPen)
{
    PixelProbe probe(20, 20);
    CDC* pDC = probe.GetCDC();
    CPen red(PS_SOLID, 1, kRed);
    CPen* pOld = pDC->SelectObject(&red);
    pDC->MoveTo(0, 5);
    pDC->LineTo(10, 5);
    pDC->SelectObject(pOld);
    EXPECT_EQ(kRed, probe.Pixel(0, 5));
    EXPECT_EQ(kRed, probe.Pixel(9, 5));
    EXPECT_EQ(kBack, probe.Pixel(10, 5));  // the last point is not drawn
    EXPECT_EQ(kBack, probe.Pixel(5, 6));
}

TEST(CDC, XorRasterOperationUndoesALineDrawnTwice)
{
    PixelProbe probe(20, 20, kWhite);
    CDC* pDC = probe.GetCDC();
    CPen pen(PS_SOLID, 1, kWhite);
    CPen* pOld = pDC->SelectObject(&pen);
    EXPECT_EQ(R2_COPYPEN, pDC->SetROP2(R2_XORPEN));
    pDC->MoveTo(2, 2);
    pDC->LineTo(2, 12);
    EXPECT_EQ(RGB(0, 0, 0), probe.Pixel(2, 5));
    pDC->MoveTo(2, 2);
    pDC->LineTo(2, 12);
    EXPECT_EQ(kWhite, probe.Pixel(2, 5));
    pDC->SelectObject(pOld);
}

TEST(CDC, BitBltCopiesABitmapFromACompatibleDC)
{
    PixelProbe probe(20, 20);
    CDC* pDC = probe.GetCDC();
    CDC memDC;
    ASSERT_TRUE(memDC.CreateCompatibleDC(pDC));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(pDC, 4, 4));
    CBitmap* pOld = memDC.SelectObject(&bitmap);
    memDC.FillSolidRect(CRect(0, 0, 4, 4), kBlue);
    EXPECT_TRUE(pDC->BitBlt(5, 5, 4, 4, &memDC, 0, 0, SRCCOPY));
    memDC.SelectObject(pOld);
    EXPECT_EQ(16, probe.Count(kBlue, CRect(0, 0, 20, 20)));
    EXPECT_EQ(kBlue, probe.Pixel(8, 8));
}

TEST(CDC, ClipBoxOfAMemoryContextIsItsBitmap)
{
    PixelProbe probe(33, 17);
    CRect rect;
    EXPECT_NE(ERROR, probe.GetCDC()->GetClipBox(&rect));
    EXPECT_EQ(CRect(0, 0, 33, 17), rect);
    probe.GetCDC()->IntersectClipRect(5, 5, 10, 10);
    probe.GetCDC()->GetClipBox(&rect);
    EXPECT_EQ(CRect(5, 5, 10, 10), rect);
}

TEST(CDC, DeviceCapsOfTheScreenAreNinetySixDotsPerInch)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    CClientDC dc(&wnd);
    EXPECT_EQ(96, dc.GetDeviceCaps(LOGPIXELSX));
    EXPECT_EQ(96, dc.GetDeviceCaps(LOGPIXELSY));
    wnd.DestroyWindow();
}

TEST(CDC, TextExtentGrowsWithTheText)
{
    PixelProbe probe(10, 10);
    CDC* pDC = probe.GetCDC();
    CSize one = pDC->GetTextExtent("W", 1);
    CSize two = pDC->GetTextExtent(CString("WW"));
    EXPECT_GT(one.cx, 0);
    EXPECT_GT(one.cy, 0);
    EXPECT_EQ(2 * one.cx, two.cx);
    EXPECT_EQ(one.cy, two.cy);
}

TEST(CDC, DrawTextWithCalcRectMeasuresWithoutPainting)
{
    PixelProbe probe(100, 40);
    CDC* pDC = probe.GetCDC();
    CRect rect(0, 0, 100, 0);
    int nHeight = pDC->DrawText("Measure", -1, &rect, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_GT(nHeight, 0);
    EXPECT_EQ(nHeight, rect.Height());
    EXPECT_EQ(pDC->GetTextExtent("Measure", 7).cx, rect.Width());
    EXPECT_EQ(4000, probe.Count(kBack, CRect(0, 0, 100, 40)));
}

TEST(CDC, TextOutPaintsTheCellInTheBackgroundColour)
{
    PixelProbe probe(100, 40);
    CDC* pDC = probe.GetCDC();
    pDC->SetBkColor(kBlue);
    pDC->SetTextColor(kWhite);
    EXPECT_TRUE(pDC->TextOut(0, 0, CString("ii")));
    EXPECT_EQ(kBlue, probe.Pixel(0, 0));  // opaque mode fills the cell
}

TEST(CDC, FromHandleGivesATemporaryObjectForAnUnownedContext)
{
    PixelProbe probe(10, 10);
    AfxLockTempMaps();
    CDC* pDC = CDC::FromHandle(probe.DC());
    EXPECT_EQ(probe.DC(), pDC->m_hDC);
    EXPECT_EQ(probe.DC(), pDC->m_hAttribDC);
    EXPECT_EQ(pDC, afxMapHDC()->LookupTemporary(probe.DC()));
    AfxUnlockTempMaps();
    EXPECT_EQ(nullptr, afxMapHDC()->LookupTemporary(probe.DC()));
    EXPECT_EQ((DWORD)OBJ_MEMDC, ::GetObjectType(probe.DC()));  // the context outlived its temporary
}

namespace {

class CBluePaintWnd : public CWnd
{
public:
    int m_nPaints = 0;

protected:
    afx_msg void OnPaint()
    {
        ++m_nPaints;
        CPaintDC dc(this);
        CRect rect;
        GetClientRect(&rect);
        dc.FillSolidRect(&rect, kBlue);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBluePaintWnd, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

}  // namespace

TEST(CPaintDC, PaintsTheWindowInsideOnPaint)
{
    CBluePaintWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    PixelProbe probe = PixelProbe::CaptureClient(wnd.m_hWnd);
    EXPECT_GE(wnd.m_nPaints, 1);
    EXPECT_EQ(kBlue, probe.Pixel(0, 0));
    EXPECT_EQ(kBlue, probe.Pixel(probe.Width() - 1, probe.Height() - 1));
    EXPECT_EQ(FALSE, ::GetUpdateRect(wnd.m_hWnd, nullptr, FALSE));
    wnd.DestroyWindow();
}

TEST(CClientDC, DrawsOnTheClientArea)
{
    CWnd wnd;
    ASSERT_TRUE(CreateTopLevel(wnd));
    wnd.UpdateWindow();
    {
        CClientDC dc(&wnd);
        dc.FillSolidRect(CRect(0, 0, 10, 10), kRed);
    }
    CRect rect;
    wnd.GetClientRect(&rect);
    PixelProbe probe(rect.Width(), rect.Height());
    CClientDC dc(&wnd);
    probe.GetCDC()->BitBlt(0, 0, rect.Width(), rect.Height(), &dc, 0, 0, SRCCOPY);
    EXPECT_EQ(kRed, probe.Pixel(5, 5));
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), probe.Pixel(20, 20));
    wnd.DestroyWindow();
}

TEST(CGdiObject, AttachDetachAndDeleteObject)
{
    HBRUSH hBrush = ::CreateSolidBrush(kRed);
    CBrush brush;
    EXPECT_TRUE(brush.Attach(hBrush));
    EXPECT_EQ(&brush, CGdiObject::FromHandle(hBrush));
    EXPECT_EQ(hBrush, brush.Detach());
    EXPECT_EQ(nullptr, brush.m_hObject);
    EXPECT_NE(&brush, CGdiObject::FromHandle(hBrush));
    EXPECT_TRUE(brush.Attach(hBrush));
    EXPECT_TRUE(brush.DeleteObject());
    EXPECT_EQ(nullptr, brush.m_hObject);
    EXPECT_EQ(0u, (UINT)::GetObjectType(hBrush));
    EXPECT_FALSE(brush.DeleteObject());
}

TEST(CGdiObject, DestructorDeletesTheOwnedHandle)
{
    HGDIOBJ hPen = nullptr;
    {
        CPen pen(PS_SOLID, 2, kBlue);
        hPen = pen.m_hObject;
        LOGPEN lp = {};
        ASSERT_TRUE(pen.GetLogPen(&lp));
        EXPECT_EQ(kBlue, lp.lopnColor);
        EXPECT_EQ(2, lp.lopnWidth.x);
    }
    EXPECT_EQ(0u, (UINT)::GetObjectType(hPen));
}

TEST(CBitmap, LoadBitmapFindsTheResourceInTheChain)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_RED));
    BITMAP bm = {};
    ASSERT_TRUE(bitmap.GetBitmap(&bm));
    EXPECT_EQ(4, bm.bmWidth);
    EXPECT_EQ(4, bm.bmHeight);
    PixelProbe probe(8, 8);
    CDC memDC;
    memDC.CreateCompatibleDC(probe.GetCDC());
    CBitmap* pOld = memDC.SelectObject(&bitmap);
    probe.GetCDC()->BitBlt(0, 0, 4, 4, &memDC, 0, 0, SRCCOPY);
    memDC.SelectObject(pOld);
    EXPECT_EQ(16, probe.Count(kRed, CRect(0, 0, 8, 8)));
    CBitmap missing;
    EXPECT_FALSE(missing.LoadBitmap(9999));
}

TEST(CFont, PointFontHeightIsTenthsOfAPointAtTheScreenResolution)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, "Tahoma"));
    LOGFONTA lf = {};
    ASSERT_TRUE(font.GetLogFont(&lf));
    EXPECT_EQ(-12, lf.lfHeight);
    EXPECT_STREQ("Tahoma", lf.lfFaceName);
}
