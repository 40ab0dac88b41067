#include "UnicodeButton.h"

#include "ButtonPainting.h"
#include "GdiplusText.h"
#include "LocalizationKeys.h"
#include "LocalizationManager.h"

#include <gdiplus.h>
#include <uxtheme.h>

namespace rules = kiv::rules;
namespace gdip = Gdiplus::DllExports;
using kiv::controls::RepaintButton;

IMPLEMENT_DYNAMIC(CUnicodeButton, CButton)

BEGIN_MESSAGE_MAP(CUnicodeButton, CButton)
    ON_WM_PAINT()
    ON_MESSAGE(WM_SETTEXT, &CUnicodeButton::OnSetText)
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_LBUTTONUP()
    ON_WM_ENABLE()
    ON_MESSAGE(WM_UNICODE, &CUnicodeButton::OnUnicode)
END_MESSAGE_MAP()

namespace {

// A section handed over by pointer; a null one is read as the empty section.
CString SectionText(UINT_PTR pointer)
{
    return pointer == 0 ? CString() : CString(reinterpret_cast<LPCSTR>(pointer));
}

}  // namespace

// The flags are cleared here as well as at subclassing, so that an object that never had a
// window reads FALSE rather than whatever its memory held.
CUnicodeButton::CUnicodeButton() : m_bUnicode(FALSE), m_bOverControl(FALSE)
{
    m_brushHover.CreateSolidBrush(rules::kLightBlue);
    m_brushNormal.CreateSolidBrush(rules::kSteelBlue);
}

CUnicodeButton::~CUnicodeButton()
{
    m_brushHover.DeleteObject();
    m_brushNormal.DeleteObject();
}

void CUnicodeButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    m_bUnicode = FALSE;
    m_bOverControl = FALSE;
}

void CUnicodeButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (m_bUnicode)
        DrawUnicodeButton(lpDrawItemStruct->rcItem, CDC::FromHandle(lpDrawItemStruct->hDC));
    else
        CButton::DrawItem(lpDrawItemStruct);
}

void CUnicodeButton::Repaint(BOOL bErase)
{
    RepaintButton(m_hWnd, bErase);
}

int CUnicodeButton::GetPushButtonState()
{
    auto state = (unsigned)::SendMessageA(m_hWnd, BM_GETSTATE, 0, 0);
    return rules::PushButtonState(state, m_bOverControl != FALSE, IsWindowEnabled() != FALSE);
}

int CUnicodeButton::GetCheckBoxState(int pushState)
{
    return rules::CheckBoxState((int)::SendMessageA(m_hWnd, BM_GETCHECK, 0, 0), pushState);
}

LRESULT CUnicodeButton::OnUnicode(WPARAM /*wParam*/, LPARAM lParam)
{
    CString text;
    GetWindowText(text);
    CString key = kiv::localization::KeyText(GetDlgCtrlID());
    m_strTextW = LocalizationManager::Get()->GetWideTranslation(text, key, SectionText((UINT_PTR)lParam));
    m_bUnicode = TRUE;  // shown at the next repaint, not now
    return 1;
}

// wParam, when not zero, names a translation section: the button keeps the text just set as
// the default of its translation and shows the translation instead.
LRESULT CUnicodeButton::OnSetText(WPARAM wParam, LPARAM /*lParam*/)
{
    Default();
    if (wParam == 0)
    {
        Repaint(TRUE);
        return 1;
    }
    if (!m_bUnicode)
    {
        m_bUnicode = TRUE;
        GetWindowText(m_strText);
        SetWindowText("");
    }
    // kept: later sections translate the first saved caption, as hosts expect
    CString key = kiv::localization::KeyText(GetDlgCtrlID());
    m_strTextW = LocalizationManager::Get()->GetWideTranslation(m_strText, key, SectionText(wParam));
    return 1;
}

void CUnicodeButton::OnPaint()
{
    if (m_bUnicode)
    {
        CPaintDC dc(this);
        CRect rect;
        GetClientRect(&rect);
        DrawUnicodeButton(rect, &dc);
        return;
    }
    if ((GetStyle() & 0x0F) >= BS_CHECKBOX)
    {
        CWnd::OnPaint();
        return;
    }
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(&rect);
    rect.DeflateRect(1, 1);
    DrawNonUnicodeButton(rect, &dc);
}

void CUnicodeButton::DrawNonUnicodeButton(CRect rect, CDC* pDC)
{
    CString text;
    GetWindowText(text);
    // A disabled button never shows the hover look, so only an enabled one asks for its state.
    bool enabled = IsWindowEnabled() != FALSE;
    int state = enabled ? GetPushButtonState() : (int)rules::kButtonDisabled;
    rules::ButtonLook look = rules::NarrowUnicodeButtonLook(state, enabled);
    // Lines stay left-aligned inside the centred block.
    kiv::controls::DrawBlueButtonFace(pDC, m_hWnd, rect, text, look, m_brushHover, m_brushNormal, 0);
}

void CUnicodeButton::DrawUnicodeButton(CRect rect, CDC* pDC)
{
    int saved = pDC->SaveDC();
    // kept: the theme is opened on every paint and not closed, as the button always did
    HTHEME theme = ::OpenThemeData(m_hWnd, L"Button");
    auto type = (unsigned)(::GetWindowLongA(m_hWnd, GWL_STYLE) & 0xFFFF);
    rules::UnicodeButtonLayout layout =
        rules::LayoutUnicodeButton(type, {rect.left, rect.top, rect.right, rect.bottom});
    HDC hDC = pDC->m_hDC;
    if (layout.checkState)
    {
        RECT box = {layout.mark.left, layout.mark.top, layout.mark.right, layout.mark.bottom};
        ::DrawThemeBackground(theme, hDC, layout.part, GetCheckBoxState(GetPushButtonState()), &box, nullptr);
    }
    else if (layout.part == rules::kPartPushButton)
    {
        ::DrawThemeBackground(theme, hDC, layout.part, GetPushButtonState(), &rect, nullptr);
    }
    DrawCaptionAndRestore(pDC, saved, (int)type,
                          CRect(layout.text.left, layout.text.top, layout.text.right, layout.text.bottom));
}

// One unclipped, unwrapped line in the button's font and the DC's text colour, with the
// hot-key prefix shown. GDI+ results are not acted upon: a failed step draws nothing. The DC
// is restored before the GDI+ objects go, the graphics last.
void CUnicodeButton::DrawCaptionAndRestore(CDC* pDC, int saved, int styleLowWord, const CRect& text)
{
    HDC hDC = pDC->m_hDC;
    Gdiplus::GpGraphics* graphics = nullptr;
    Gdiplus::GpSolidFill* brush = nullptr;
    gdip::GdipCreateFromHDC(hDC, &graphics);
    Gdiplus::GpFont* font = kiv::controls::CreateWindowFont(m_hWnd, hDC);
    gdip::GdipCreateSolidFill(kiv::controls::OpaqueArgb(pDC->GetTextColor()), &brush);
    Gdiplus::GpStringFormat* format = kiv::controls::CreateCaptionFormat();

    Gdiplus::RectF layout((Gdiplus::REAL)text.left, (Gdiplus::REAL)text.top, 0, 0);
    Gdiplus::RectF box;
    gdip::GdipMeasureString(graphics, m_strTextW, m_strTextW.GetLength(), font, &layout, format, &box, nullptr,
                            nullptr);
    rules::CaptionOrigin origin = rules::PlaceUnicodeCaption(
        (unsigned)styleLowWord, {text.left, text.top, text.right, text.bottom}, box.Width, box.Height);
    Gdiplus::RectF at(origin.x, origin.y, 0, 0);
    gdip::GdipDrawString(graphics, m_strTextW, m_strTextW.GetLength(), font, &at, format, brush);

    pDC->RestoreDC(saved);
    gdip::GdipDeleteStringFormat(format);
    gdip::GdipDeleteBrush(brush);
    gdip::GdipDeleteFont(font);
    gdip::GdipDeleteGraphics(graphics);
}

void CUnicodeButton::OnMouseMove(UINT nFlags, CPoint point)
{
    kiv::controls::TrackButtonHover(*this, m_bOverControl, nFlags, point, TRUE);
    Default();
}

void CUnicodeButton::OnCaptureChanged(CWnd* /*pWnd*/)
{
    Repaint(TRUE);  // the hover flag is left as it is
    Default();
}

void CUnicodeButton::OnLButtonUp(UINT /*nFlags*/, CPoint /*point*/)
{
    if (m_bOverControl)
    {
        Repaint(TRUE);
        m_bOverControl = FALSE;
    }
    Default();
}

void CUnicodeButton::OnEnable(BOOL /*bEnable*/)
{
    Default();
    Repaint(TRUE);
}
