#include "ButtonPainting.h"

namespace kiv::controls {

void TrackButtonHover(CWnd& button, BOOL& overControl, UINT nFlags, CPoint point, BOOL eraseInside)
{
    HWND hWnd = button.m_hWnd;
    CRect client;
    button.GetClientRect(&client);
    if (client.PtInRect(point))
    {
        if (::GetCapture() != hWnd)
        {
            ::SetCapture(hWnd);
            overControl = TRUE;
        }
        RepaintButton(hWnd, eraseInside);
    }
    else if (::GetCapture() == hWnd && (nFlags & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) == 0)
    {
        overControl = FALSE;
        ::ReleaseCapture();
        RepaintButton(hWnd, TRUE);
    }
}

void DrawBlueButtonFace(CDC* pDC, HWND hWnd, const CRect& rect, const CString& text, const kiv::rules::ButtonLook& look,
                        CBrush& hoverBrush, CBrush& normalBrush, UINT lineFormat)
{
    CBrush& fill = look.hoverBrush ? hoverBrush : normalBrush;
    ::FillRect(pDC->m_hDC, &rect, (HBRUSH)fill.GetSafeHandle());
    pDC->SetTextColor(look.text);
    pDC->SetBkColor(look.textBackground);

    auto hFont = (HGDIOBJ)::SendMessageA(hWnd, WM_GETFONT, 0, 0);
    CGdiObject* pOldFont = pDC->SelectObject(CGdiObject::FromHandle(hFont));
    if (!text.IsEmpty())
    {
        CRect measure = rect;
        measure.bottom = 0;
        pDC->DrawText(text, text.GetLength(), &measure, DT_CALCRECT | DT_WORDBREAK);
        measure.OffsetRect(kiv::rules::CentreOffset(rect.Width(), measure.Width()),
                           kiv::rules::CentreOffset(rect.Height(), measure.Height()));
        pDC->DrawText(text, text.GetLength(), &measure, lineFormat | DT_WORDBREAK);
    }
    pDC->SelectObject(pOldFont);
}

}  // namespace kiv::controls
