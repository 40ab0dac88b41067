// The GDI+ pieces the wide-text controls share: a window's own font as a GDI+ font, the
// caption format (one line, hot-key prefix shown) and an opaque colour from a GDI colour.
// Internal to the library.
#pragma once

#include <afxwin.h>
#include <gdiplus.h>

namespace kiv::controls {

// The font the window answers to WM_GETFONT, made for the device context.
Gdiplus::GpFont* CreateWindowFont(HWND hWnd, HDC hDC);
// Near line alignment and the hot-key prefix shown: an ampersand underlines the next character.
Gdiplus::GpStringFormat* CreateCaptionFormat();

constexpr Gdiplus::ARGB OpaqueArgb(COLORREF colour) noexcept
{
    return 0xFF000000u | (GetRValue(colour) << 16) | (GetGValue(colour) << 8) | GetBValue(colour);
}

}  // namespace kiv::controls
