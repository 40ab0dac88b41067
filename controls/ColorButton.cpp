#include "ColorButton.h"

#include "ButtonPainting.h"

namespace rules = kiv::rules;

IMPLEMENT_DYNAMIC(CColorButton, CButton)

BEGIN_MESSAGE_MAP(CColorButton, CButton)
    ON_WM_PAINT()
    ON_WM_ENABLE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_MESSAGE(WM_SETTEXT, &CColorButton::OnSetText)
END_MESSAGE_MAP()

CColorButton::CColorButton() : m_bOverControl(FALSE)
{
    SetColorToWindowsDefault();
    m_clrText = rules::kWhite;
    m_clrBackground = rules::kSteelBlue;
    CreateBrushes();
}

CColorButton::CColorButton(COLORREF text, COLORREF /*background*/)
    : m_clrText(text), m_clrBackground(rules::kSteelBlue), m_clrFace(::GetSysColor(COLOR_BTNFACE)),
      m_clrLight(::GetSysColor(COLOR_3DLIGHT)), m_clrHighlight(::GetSysColor(COLOR_BTNHIGHLIGHT)),
      m_clrShadow(::GetSysColor(COLOR_BTNSHADOW)), m_clrDarkShadow(::GetSysColor(COLOR_3DDKSHADOW)),
      m_bOverControl(FALSE)
{
    CreateBrushes();
}

CColorButton::CColorButton(COLORREF text, COLORREF background, COLORREF face)
    : m_clrText(text), m_clrBackground(background), m_clrFace(face), m_clrLight(::GetSysColor(COLOR_3DLIGHT)),
      m_clrHighlight(::GetSysColor(COLOR_BTNHIGHLIGHT)), m_clrShadow(::GetSysColor(COLOR_BTNSHADOW)),
      m_clrDarkShadow(::GetSysColor(COLOR_3DDKSHADOW)), m_bOverControl(FALSE)
{
    CreateBrushes();
}

CColorButton::CColorButton(COLORREF text, COLORREF background, COLORREF face, COLORREF light, COLORREF highlight,
                           COLORREF shadow, COLORREF darkShadow)
    : m_clrText(text), m_clrBackground(background), m_clrFace(face), m_clrLight(light), m_clrHighlight(highlight),
      m_clrShadow(shadow), m_clrDarkShadow(darkShadow), m_bOverControl(FALSE)
{
    CreateBrushes();
}

CColorButton::~CColorButton()
{
    m_brushHover.DeleteObject();
    m_brushNormal.DeleteObject();
}

void CColorButton::CreateBrushes()
{
    m_brushHover.CreateSolidBrush(rules::kLightBlue);
    m_brushNormal.CreateSolidBrush(rules::kSteelBlue);
}

void CColorButton::Repaint(BOOL bErase)
{
    kiv::controls::RepaintButton(m_hWnd, bErase);
}

void CColorButton::SetColor(COLORREF text, COLORREF background)
{
    m_clrText = text;
    m_clrBackground = background;
    if (m_hWnd != nullptr)
        Repaint(TRUE);
}

void CColorButton::SetColor(COLORREF text, COLORREF background, COLORREF face)
{
    m_clrText = text;
    m_clrBackground = background;
    m_clrFace = face;
    if (m_hWnd != nullptr)
        Repaint(TRUE);
}

void CColorButton::SetColor(COLORREF text, COLORREF background, COLORREF face, COLORREF light, COLORREF highlight,
                            COLORREF shadow, COLORREF darkShadow)
{
    m_clrText = text;
    m_clrBackground = background;
    m_clrFace = face;
    m_clrLight = light;
    m_clrHighlight = highlight;
    m_clrShadow = shadow;
    m_clrDarkShadow = darkShadow;
    if (m_hWnd != nullptr)
        Repaint(TRUE);
}

void CColorButton::SetColorToWindowsDefault()
{
    m_clrText = rules::kWhite;
    m_clrBackground = rules::kSteelBlue;
    m_clrFace = ::GetSysColor(COLOR_BTNFACE);
    m_clrLight = ::GetSysColor(COLOR_3DLIGHT);
    m_clrHighlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    m_clrShadow = ::GetSysColor(COLOR_BTNSHADOW);
    m_clrDarkShadow = ::GetSysColor(COLOR_3DDKSHADOW);
}

void CColorButton::MoveButton(int x, int y, int cx, int cy, BOOL bRepaint)
{
    MoveWindow(x, y, cx, cy, bRepaint);
    Repaint(TRUE);  // whatever bRepaint asked for
}

void CColorButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();  // the style stays as it is: the class paints in WM_PAINT
}

void CColorButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CButton::DrawItem(lpDrawItemStruct);
}

int CColorButton::GetPushButtonState()
{
    auto state = (unsigned)::SendMessageA(m_hWnd, BM_GETSTATE, 0, 0);
    return rules::PushButtonState(state, m_bOverControl != FALSE, IsWindowEnabled() != FALSE);
}

void CColorButton::OnPaint()
{
    if ((GetStyle() & 0x0F) >= BS_CHECKBOX)
    {
        CWnd::OnPaint();  // check boxes, radio buttons and the rest keep the system's look
        return;
    }
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(&rect);
    rect.DeflateRect(1, 1);
    DrawColorButton(&dc, rect);
}

void CColorButton::DrawColorButton(CDC* pDC, CRect rect)
{
    CString text;
    GetWindowText(text);
    rules::ButtonLook look = rules::ColorButtonLook(GetPushButtonState());
    kiv::controls::DrawBlueButtonFace(pDC, m_hWnd, rect, text, look, m_brushHover, m_brushNormal, DT_CENTER);
}

void CColorButton::OnEnable(BOOL /*bEnable*/)
{
    Default();
    Repaint(TRUE);
}

void CColorButton::OnMouseMove(UINT nFlags, CPoint point)
{
    kiv::controls::TrackButtonHover(*this, m_bOverControl, nFlags, point, FALSE);
    Default();
}

void CColorButton::OnLButtonUp(UINT /*nFlags*/, CPoint /*point*/)
{
    if (m_bOverControl)
    {
        Repaint(TRUE);
        m_bOverControl = FALSE;
    }
    Default();
}

LRESULT CColorButton::OnSetText(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    Default();
    Repaint(TRUE);
    return TRUE;
}
