#include "UnicodeTabCtrl.h"

#include "GdiplusText.h"
#include "Palette.h"

#include <gdiplus.h>

#include <type_traits>

namespace gdip = Gdiplus::DllExports;
namespace rules = kiv::rules;

IMPLEMENT_DYNAMIC(CUnicodeTabCtrl, CTabCtrl)

BEGIN_MESSAGE_MAP(CUnicodeTabCtrl, CTabCtrl)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

// How many captions the array holds. Array new of a type with a destructor keeps the element
// count just before the elements (the C++ ABI's array cookie, which delete[] reads too), so the
// class needs no member of its own for it.
size_t CaptionCount(const CStringW* pTexts)
{
    static_assert(!std::is_trivially_destructible_v<CStringW>, "the array must carry its count");
    return pTexts != nullptr ? reinterpret_cast<const size_t*>(pTexts)[-1] : 0;
}

}  // namespace

CUnicodeTabCtrl::CUnicodeTabCtrl() : m_pTabTexts(nullptr)
{
    m_brushNormal.CreateSolidBrush(rules::kPaleBlueGrey);
    m_brushSelected.CreateSolidBrush(rules::kSteelBlue);
}

CUnicodeTabCtrl::~CUnicodeTabCtrl()
{
    m_brushNormal.DeleteObject();
    m_brushSelected.DeleteObject();
    delete[] m_pTabTexts;
}

// kept: a negative count fails in the array allocation with the allocator's exception, before
// anything changes, as hosts have always seen it. The previous captions are released only once
// the new copy is made.
void CUnicodeTabCtrl::SetUnicode(CStringW* pTexts, int nCount)
{
    auto* texts = new CStringW[nCount];
    for (int i = 0; i < nCount; ++i)
        texts[i] = pTexts[i];
    delete[] m_pTabTexts;
    m_pTabTexts = texts;
    if (m_hWnd != nullptr)
        ModifyStyle(0, TCS_OWNERDRAWFIXED, 0);
}

void CUnicodeTabCtrl::OnPaint()
{
    CWnd::OnPaint();  // the system paints the control and asks DrawItem for each tab
}

void CUnicodeTabCtrl::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    HDC hDC = lpDrawItemStruct->hDC;
    const RECT& rc = lpDrawItemStruct->rcItem;
    Gdiplus::GpGraphics* graphics = nullptr;
    Gdiplus::GpSolidFill* brush = nullptr;
    Gdiplus::GpStringFormat* format = nullptr;
    gdip::GdipCreateFromHDC(hDC, &graphics);
    Gdiplus::GpFont* font = kiv::controls::CreateWindowFont(m_hWnd, hDC);
    // kept: the colour numbers go to GDI+ as they are, so the caption brush has no alpha and
    // the visible tab is its fill; hosts' screens have always looked so
    bool selected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    rules::Colour colour = selected ? rules::kWhite : rules::kDarkBlue;
    gdip::GdipCreateSolidFill((Gdiplus::ARGB)colour, &brush);
    ::SetBkColor(hDC, colour);
    ::FillRect(hDC, &rc, (HBRUSH)(selected ? m_brushSelected : m_brushNormal).GetSafeHandle());
    gdip::GdipCreateStringFormat(0, 0, &format);
    gdip::GdipSetStringFormatLineAlign(format, Gdiplus::StringAlignmentCenter);
    gdip::GdipSetStringFormatAlign(format, Gdiplus::StringAlignmentCenter);
    // A tab past the captions the host gave gets its fill only: nothing is read past them.
    UINT index = lpDrawItemStruct->itemID;
    if (index < CaptionCount(m_pTabTexts))
    {
        const CStringW& text = m_pTabTexts[index];
        Gdiplus::RectF layout((Gdiplus::REAL)rc.left, (Gdiplus::REAL)rc.top, (Gdiplus::REAL)(rc.right - rc.left),
                              (Gdiplus::REAL)(rc.bottom - rc.top));
        gdip::GdipDrawString(graphics, text, text.GetLength(), font, &layout, format, brush);
    }
    gdip::GdipDeleteBrush(brush);
    gdip::GdipDeleteStringFormat(format);
    gdip::GdipDeleteFont(font);
    gdip::GdipDeleteGraphics(graphics);
}
