// What the two blue-scheme buttons share: the hover tracking with the mouse capture, the
// repaint they force, and the narrow face with its centred caption block.
// Internal to the library.
#pragma once

#include <afxwin.h>

#include "ButtonRules.h"

namespace kiv::controls {

inline void RepaintButton(HWND hWnd, BOOL bErase)
{
    if (hWnd == nullptr)
        return;  // no window yet: a null handle would invalidate every window of the desktop
    ::InvalidateRect(hWnd, nullptr, bErase);
    ::UpdateWindow(hWnd);
}

// Entering takes the capture and sets the flag; leaving with no mouse button down clears it
// and releases the capture; leaving with a button down changes nothing, so the hover look
// stays while the button is held. `eraseInside` is how a move inside repaints.
void TrackButtonHover(CWnd& button, BOOL& overControl, UINT nFlags, CPoint point, BOOL eraseInside);

// Fills the face and draws the caption as one block centred both ways; the lines inside it
// follow `lineFormat` (DT_CENTER or left-aligned). The caller reads the caption before it asks
// for the state, as the buttons always have.
void DrawBlueButtonFace(CDC* pDC, HWND hWnd, const CRect& rect, const CString& text, const kiv::rules::ButtonLook& look,
                        CBrush& hoverBrush, CBrush& normalBrush, UINT lineFormat);

}  // namespace kiv::controls
