#include "PixelProbe.h"

namespace kivtest {

PixelProbe::PixelProbe(int width, int height, COLORREF background) : m_width(width), m_height(height)
{
    BITMAPINFO bmi = {};
    bmi.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    bmi.bmiHeader.biWidth = width;
    bmi.bmiHeader.biHeight = -height;  // top-down rows
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = 32;
    bmi.bmiHeader.biCompression = BI_RGB;
    void* pBits = nullptr;
    m_hDC = ::CreateCompatibleDC(nullptr);
    m_hBitmap = ::CreateDIBSection(m_hDC, &bmi, DIB_RGB_COLORS, &pBits, nullptr, 0);
    m_pBits = static_cast<const DWORD*>(pBits);
    m_hOld = ::SelectObject(m_hDC, m_hBitmap);
    Fill(background);
}

PixelProbe::PixelProbe(PixelProbe&& other) noexcept
    : m_width(other.m_width), m_height(other.m_height), m_hDC(other.m_hDC), m_hBitmap(other.m_hBitmap),
      m_hOld(other.m_hOld), m_pBits(other.m_pBits)
{
    other.m_hDC = nullptr;
    other.m_hBitmap = nullptr;
    other.m_pBits = nullptr;
}

PixelProbe::~PixelProbe()
{
    if (m_hDC == nullptr)
        return;
    ::SelectObject(m_hDC, m_hOld);
    ::DeleteObject(m_hBitmap);
    ::DeleteDC(m_hDC);
}

void PixelProbe::Fill(COLORREF colour)
{
    HBRUSH hBrush = ::CreateSolidBrush(colour);
    RECT rect = {0, 0, m_width, m_height};
    ::FillRect(m_hDC, &rect, hBrush);
    ::DeleteObject(hBrush);
}

COLORREF PixelProbe::Pixel(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    ::GdiFlush();
    DWORD bgra = m_pBits[y * m_width + x];
    return RGB((bgra >> 16) & 0xFF, (bgra >> 8) & 0xFF, bgra & 0xFF);
}

int PixelProbe::Count(COLORREF colour, const RECT& area) const
{
    int n = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            n += Pixel(x, y) == colour ? 1 : 0;
    return n;
}

namespace {

PixelProbe Capture(HWND hWnd, bool bWholeWindow)
{
    ::RedrawWindow(hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    RECT rect;
    if (bWholeWindow)
    {
        ::GetWindowRect(hWnd, &rect);
        ::OffsetRect(&rect, -rect.left, -rect.top);
    }
    else
    {
        ::GetClientRect(hWnd, &rect);
    }
    PixelProbe probe(rect.right, rect.bottom);
    HDC hSource = bWholeWindow ? ::GetWindowDC(hWnd) : ::GetDC(hWnd);
    ::BitBlt(probe.DC(), 0, 0, rect.right, rect.bottom, hSource, 0, 0, SRCCOPY);
    ::ReleaseDC(hWnd, hSource);
    return probe;
}

}  // namespace

PixelProbe PixelProbe::CaptureClient(HWND hWnd)
{
    return Capture(hWnd, false);
}

PixelProbe PixelProbe::CaptureWindow(HWND hWnd)
{
    return Capture(hWnd, true);
}

}  // namespace kivtest
