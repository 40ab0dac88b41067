// A 32-bit memory bitmap to paint into, or to copy a window into, and read pixels from.
#pragma once

#include <afxwin.h>

namespace kivtest {

class PixelProbe
{
public:
    // A top-down 32-bit bitmap selected into a memory DC, filled with background.
    PixelProbe(int width, int height, COLORREF background = RGB(255, 0, 255));
    ~PixelProbe();
    PixelProbe(PixelProbe&& other) noexcept;
    PixelProbe(const PixelProbe&) = delete;
    PixelProbe& operator=(const PixelProbe&) = delete;

    // The window repaints now, then its client area (or whole window) is copied in.
    static PixelProbe CaptureClient(HWND hWnd);
    static PixelProbe CaptureWindow(HWND hWnd);

    HDC DC() const { return m_hDC; }
    CDC* GetCDC() const { return CDC::FromHandle(m_hDC); }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    void Fill(COLORREF colour);
    // The pixel as a COLORREF (0x00BBGGRR); CLR_INVALID outside the bitmap.
    COLORREF Pixel(int x, int y) const;
    // How many pixels of the rectangle have exactly this colour.
    int Count(COLORREF colour, const RECT& area) const;

private:
    int m_width;
    int m_height;
    HDC m_hDC = nullptr;
    HBITMAP m_hBitmap = nullptr;
    HGDIOBJ m_hOld = nullptr;
    const DWORD* m_pBits = nullptr;
};

}  // namespace kivtest
