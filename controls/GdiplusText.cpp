#include "GdiplusText.h"

namespace kiv::controls {

Gdiplus::GpFont* CreateWindowFont(HWND hWnd, HDC hDC)
{
    LOGFONTA lf = {};
    ::GetObjectA((HGDIOBJ)::SendMessageA(hWnd, WM_GETFONT, 0, 0), sizeof(lf), &lf);
    Gdiplus::GpFont* font = nullptr;
    Gdiplus::DllExports::GdipCreateFontFromLogfontA(hDC, &lf, &font);
    return font;
}

Gdiplus::GpStringFormat* CreateCaptionFormat()
{
    Gdiplus::GpStringFormat* format = nullptr;
    Gdiplus::DllExports::GdipCreateStringFormat(0, 0, &format);
    Gdiplus::DllExports::GdipSetStringFormatLineAlign(format, Gdiplus::StringAlignmentNear);
    Gdiplus::DllExports::GdipSetStringFormatHotkeyPrefix(format, Gdiplus::HotkeyPrefixShow);
    return format;
}

}  // namespace kiv::controls
