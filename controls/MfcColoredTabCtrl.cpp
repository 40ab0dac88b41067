#include "MfcColoredTabCtrl.h"

#include "Palette.h"
#include "TabRules.h"

#include <gdiplus.h>

namespace gdip = Gdiplus::DllExports;
namespace rules = kiv::rules;

IMPLEMENT_DYNAMIC(CMfcColoredTabCtrl, CTabCtrl)

BEGIN_MESSAGE_MAP(CMfcColoredTabCtrl, CTabCtrl)
    ON_WM_PAINT()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace {

rules::TabBox BoxOf(const RECT& r)
{
    return {r.left, r.top, r.right, r.bottom};
}

CRect RectOf(const rules::TabBox& b)
{
    return CRect(b.left, b.top, b.right, b.bottom);
}

int SpaceWidth(CDC* pDC)
{
    SIZE size = {};
    ::GetTextExtentPoint32A(pDC->m_hAttribDC, " ", 1, &size);
    return size.cx;
}

}  // namespace

CMfcColoredTabCtrl::CMfcColoredTabCtrl() : m_nReserved(0), m_bBackgroundDrawn(FALSE)
{
    m_brushBackground.CreateSolidBrush(rules::kWhite);
    m_brushSelected.CreateSolidBrush(rules::kSteelBlue);
}

CMfcColoredTabCtrl::~CMfcColoredTabCtrl()
{
    m_brushBackground.DeleteObject();
    m_brushSelected.DeleteObject();
}

void CMfcColoredTabCtrl::PreSubclassWindow()
{
    ModifyStyle(0, TCS_OWNERDRAWFIXED, 0);
    m_nReserved = 0;
    CTabCtrl::PreSubclassWindow();
}

void CMfcColoredTabCtrl::OnPaint()
{
    CWnd::OnPaint();  // the system paints and asks DrawItem for each tab
}

void CMfcColoredTabCtrl::OnMouseMove(UINT /*nFlags*/, CPoint /*point*/)
{
    Default();
}

void CMfcColoredTabCtrl::OnLButtonUp(UINT /*nFlags*/, CPoint /*point*/)
{
    Default();
}

BOOL CMfcColoredTabCtrl::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    ::FillRect(pDC->m_hDC, &client, (HBRUSH)m_brushBackground.GetSafeHandle());
    m_bBackgroundDrawn = FALSE;
    return TRUE;
}

void CMfcColoredTabCtrl::FillPageArea(CDC* pDC)
{
    CRect page;
    GetClientRect(&page);
    ::SendMessageA(m_hWnd, TCM_ADJUSTRECT, FALSE, (LPARAM)&page);
    CRect widened = RectOf(rules::WidenPageArea(BoxOf(page), (GetStyle() & TCS_BOTTOM) != 0));
    ::FillRect(pDC->m_hDC, &widened, (HBRUSH)m_brushBackground.GetSafeHandle());
    m_bBackgroundDrawn = TRUE;
}

void CMfcColoredTabCtrl::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    bool bottom = (GetStyle() & TCS_BOTTOM) != 0;
    CRect tab = lpDrawItemStruct->rcItem;
    if (!m_bBackgroundDrawn)
        FillPageArea(pDC);

    UINT state = lpDrawItemStruct->itemState;
    if (state & ODS_SELECTED)
    {
        pDC->SetTextColor(rules::kWhite);
        pDC->SetBkColor(rules::kWhite);
        pDC->FillSolidRect(&tab, rules::kSteelBlue);  // leaves the text background steel blue
    }
    else if (state & ODS_GRAYED)
    {
        pDC->SetBkColor(rules::kSteelBlue);
        pDC->SetTextColor(rules::kWhite);
        ::FillRect(pDC->m_hDC, &tab, (HBRUSH)m_brushSelected.GetSafeHandle());
    }
    else
    {
        tab = RectOf(rules::GrowNormalTab(BoxOf(tab), bottom));
        pDC->SetTextColor(rules::kDarkBlue);
        pDC->FillSolidRect(&tab, rules::kPaleBlueGrey);
    }

    char buffer[100] = {};
    TCITEMA item = {};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = buffer;
    item.cchTextMax = 99;
    ::SendMessageA(m_hWnd, TCM_GETITEMA, lpDrawItemStruct->itemID, (LPARAM)&item);
    auto hImages = (HIMAGELIST)::SendMessageA(m_hWnd, TCM_GETIMAGELIST, 0, 0);
    CStringW text(buffer);
    if (hImages == nullptr || item.iImage < 0)
    {
        rules::TabPoint at = rules::TextWithoutImage(BoxOf(lpDrawItemStruct->rcItem), ::GetSystemMetrics(SM_CYEDGE));
        lpDrawItemStruct->rcItem.left = at.x;
        lpDrawItemStruct->rcItem.top = at.y;
        ::TextOutW(lpDrawItemStruct->hDC, at.x, at.y, text, text.GetLength());
        return;
    }
    DrawTabImage(lpDrawItemStruct, hImages, item.iImage, tab, text);
}

void CMfcColoredTabCtrl::DrawTabImage(LPDRAWITEMSTRUCT lpDrawItemStruct, HIMAGELIST hImages, int image,
                                      const CRect& tab, const CStringW& text)
{
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    float scaleX = (float)pDC->GetDeviceCaps(LOGPIXELSX) / 96.0f;
    float scaleY = (float)pDC->GetDeviceCaps(LOGPIXELSY) / 96.0f;
    int space = SpaceWidth(pDC);
    lpDrawItemStruct->rcItem.left += space;

    IMAGEINFO info = {};
    ::ImageList_GetImageInfo(hImages, image, &info);
    Gdiplus::GpBitmap* bitmap = nullptr;
    Gdiplus::GpGraphics* graphics = nullptr;
    gdip::GdipCreateBitmapFromHBITMAP(info.hbmImage, nullptr, &bitmap);
    gdip::GdipCreateFromHDC(pDC->m_hDC, &graphics);
    gdip::GdipSetInterpolationMode(graphics, Gdiplus::InterpolationModeHighQuality);
    gdip::GdipSetInterpolationMode(graphics, Gdiplus::InterpolationModeHighQualityBicubic);
    rules::TabImage square = rules::ImageSquare(BoxOf(tab), scaleX, scaleY);
    const RECT& source = info.rcImage;
    gdip::GdipDrawImageRectRect(
        graphics, bitmap, square.x, square.y, square.width, square.height, (Gdiplus::REAL)source.left,
        (Gdiplus::REAL)source.top, (Gdiplus::REAL)(source.right - source.left),
        (Gdiplus::REAL)(source.bottom - source.top), Gdiplus::UnitPixel, nullptr, nullptr, nullptr);
    bool bottom = (GetStyle() & TCS_BOTTOM) != 0;
    rules::TabPoint at = rules::TextAfterImage(BoxOf(lpDrawItemStruct->rcItem), square, bottom, scaleX, scaleY, space,
                                               ::GetSystemMetrics(SM_CYEDGE));
    ::TextOutW(lpDrawItemStruct->hDC, at.x, at.y, text, text.GetLength());
    gdip::GdipDeleteGraphics(graphics);
    // Released here, unlike before: nothing visible changes and no bitmap is left behind.
    gdip::GdipDisposeImage(bitmap);
}
