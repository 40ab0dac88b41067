#include "ControlsTest.h"

#include <gdiplus.h>
#include <uxtheme.h>

#include <algorithm>

namespace gdip = Gdiplus::DllExports;

namespace controls_tests {

namespace {

// The wide-text button draws with GDI+ and leaves starting it to its host, as GDI+ asks of
// every program that uses it: the tests start it once, as a host does.
class GdiplusHost : public testing::Environment
{
public:
    void SetUp() override
    {
        Gdiplus::GdiplusStartupInput input;
        ASSERT_EQ(Gdiplus::Ok, Gdiplus::GdiplusStartup(&m_token, &input, nullptr));
    }
    void TearDown() override { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

testing::Environment* const gdiplusHost = testing::AddGlobalTestEnvironment(new GdiplusHost);

// The string format and font the button uses for its wide caption.
struct CaptionTools
{
    CaptionTools(HDC hDC, HFONT hFont)
    {
        LOGFONTA lf = {};
        ::GetObjectA(hFont, sizeof(lf), &lf);
        gdip::GdipCreateFromHDC(hDC, &graphics);
        gdip::GdipCreateFontFromLogfontA(hDC, &lf, &font);
        gdip::GdipCreateStringFormat(0, 0, &format);
        gdip::GdipSetStringFormatLineAlign(format, Gdiplus::StringAlignmentNear);
        gdip::GdipSetStringFormatHotkeyPrefix(format, Gdiplus::HotkeyPrefixShow);
    }
    ~CaptionTools()
    {
        gdip::GdipDeleteStringFormat(format);
        gdip::GdipDeleteFont(font);
        gdip::GdipDeleteGraphics(graphics);
    }
    CaptionTools(const CaptionTools&) = delete;
    CaptionTools& operator=(const CaptionTools&) = delete;

    Gdiplus::GpGraphics* graphics = nullptr;
    Gdiplus::GpFont* font = nullptr;
    Gdiplus::GpStringFormat* format = nullptr;
};

}  // namespace

void ButtonTest::SetUp()
{
    ::SetCursorPos(1270, 1010);
    ASSERT_TRUE(kivtest::CreateTopLevel(m_parent, 400, 300));
    m_parent.UpdateWindow();
    PumpPending();
}

void ButtonTest::TearDown()
{
    ::ReleaseCapture();
    m_parent.DestroyWindow();
    PumpPending();
}

void ButtonTest::CreateButton(CButton& button, LPCSTR caption, DWORD style, const CRect& rect, UINT id, bool withFont)
{
    ASSERT_TRUE(button.Create(caption, WS_CHILD | WS_VISIBLE | style, rect, &m_parent, id));
    if (withFont)
        button.SendMessage(WM_SETFONT, (WPARAM)DialogFont(), FALSE);
    button.UpdateWindow();
    PumpPending();
}

void ButtonTest::CreatePlainButton(CWnd& button, LPCSTR caption, DWORD style, const CRect& rect, UINT id)
{
    ASSERT_TRUE(button.Create("BUTTON", caption, WS_CHILD | WS_VISIBLE | style, rect, &m_parent, id));
    button.SendMessage(WM_SETFONT, (WPARAM)DialogFont(), FALSE);
    button.UpdateWindow();
    PumpPending();
}

void ButtonTest::WatchRepaints(MessageSpy& spy, HWND hWnd)
{
    spy.Only({WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_CAPTURECHANGED, WM_PAINT, WM_ERASEBKGND, BM_SETSTATE,
              WM_SETTEXT, WM_ENABLE, WM_COMMAND, WM_UNICODE});
    spy.Watch(hWnd);
}

PixelProbe ReadClient(HWND hWnd)
{
    CRect rect;
    ::GetClientRect(hWnd, &rect);
    PixelProbe probe(rect.Width(), rect.Height());
    HDC hSource = ::GetDC(hWnd);
    ::BitBlt(probe.DC(), 0, 0, rect.Width(), rect.Height(), hSource, 0, 0, SRCCOPY);
    ::ReleaseDC(hWnd, hSource);
    return probe;
}

void PaintUnderlay(HWND hWnd, COLORREF colour)
{
    CRect rect;
    ::GetClientRect(hWnd, &rect);
    HDC hDC = ::GetDC(hWnd);
    HBRUSH hBrush = ::CreateSolidBrush(colour);
    ::FillRect(hDC, &rect, hBrush);
    ::DeleteObject(hBrush);
    ::ReleaseDC(hWnd, hDC);
}

void RepaintNow(HWND hWnd)
{
    ::InvalidateRect(hWnd, nullptr, TRUE);
    ::UpdateWindow(hWnd);
}

CRect FaceOf(HWND hWnd)
{
    CRect rect;
    ::GetClientRect(hWnd, &rect);
    rect.DeflateRect(1, 1);
    return rect;
}

int DifferingPixels(const PixelProbe& a, const PixelProbe& b, const CRect& area)
{
    int n = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            n += a.Pixel(x, y) != b.Pixel(x, y) ? 1 : 0;
    return n;
}

namespace {

template <typename IsInk> CRect BoundsOf(const CRect& area, IsInk isInk)
{
    CRect bounds;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            if (isInk(x, y))
                bounds = bounds.IsRectEmpty() ? CRect(x, y, x + 1, y + 1)
                                              : CRect(std::min<int>(bounds.left, x), std::min<int>(bounds.top, y),
                                                      std::max<int>(bounds.right, x + 1), y + 1);
    return bounds;
}

}  // namespace

CRect InkBounds(const PixelProbe& probe, const CRect& area, COLORREF background)
{
    return BoundsOf(area, [&](int x, int y) { return probe.Pixel(x, y) != background; });
}

CRect DifferenceBounds(const PixelProbe& a, const PixelProbe& b, const CRect& area)
{
    return BoundsOf(area, [&](int x, int y) { return a.Pixel(x, y) != b.Pixel(x, y); });
}

testing::AssertionResult FaceIsPainted(const PixelProbe& probe, const CRect& face, COLORREF fill, COLORREF text)
{
    int fills = probe.Count(fill, face);
    int texts = probe.Count(text, face);
    if (fills + texts != face.Width() * face.Height())
        return testing::AssertionFailure() << (face.Width() * face.Height() - fills - texts)
                                           << " face pixels are neither the fill nor the text colour";
    for (CPoint corner : {face.TopLeft(), CPoint(face.right - 1, face.top), CPoint(face.left, face.bottom - 1),
                          CPoint(face.right - 1, face.bottom - 1)})
        if (probe.Pixel(corner.x, corner.y) != fill)
            return testing::AssertionFailure() << "corner " << corner.x << "," << corner.y << " is not the fill";
    if (texts == 0)
        return testing::AssertionFailure() << "no text pixels";
    return testing::AssertionSuccess();
}

CRect CentredTextBlock(HWND hWnd, const CRect& face)
{
    CString text;
    CWnd::FromHandle(hWnd)->GetWindowText(text);
    HDC hDC = ::CreateCompatibleDC(nullptr);
    HGDIOBJ hOld = ::SelectObject(hDC, (HGDIOBJ)::SendMessageA(hWnd, WM_GETFONT, 0, 0));
    CRect block(face.left, face.top, face.right, 0);
    ::DrawTextA(hDC, text, text.GetLength(), &block, DT_CALCRECT | DT_WORDBREAK);
    if (hOld != nullptr)
        ::SelectObject(hDC, hOld);
    ::DeleteDC(hDC);
    block.OffsetRect((face.Width() - block.Width()) / 2, (face.Height() - block.Height()) / 2);
    return block;
}

PixelProbe ReferenceFace(HWND hWnd, COLORREF fill, COLORREF text, UINT lineFormat, COLORREF underlay)
{
    CRect client;
    ::GetClientRect(hWnd, &client);
    PixelProbe probe(client.Width(), client.Height(), underlay);
    CRect face = FaceOf(hWnd);
    HBRUSH hBrush = ::CreateSolidBrush(fill);
    ::FillRect(probe.DC(), &face, hBrush);
    ::DeleteObject(hBrush);
    ::SetTextColor(probe.DC(), text);
    ::SetBkColor(probe.DC(), fill);
    HGDIOBJ hFont = (HGDIOBJ)::SendMessageA(hWnd, WM_GETFONT, 0, 0);
    HGDIOBJ hOld = hFont != nullptr ? ::SelectObject(probe.DC(), hFont) : nullptr;
    CString caption;
    CWnd::FromHandle(hWnd)->GetWindowText(caption);
    CRect block = CentredTextBlock(hWnd, face);
    ::DrawTextA(probe.DC(), caption, caption.GetLength(), &block, lineFormat | DT_WORDBREAK);
    if (hOld != nullptr)
        ::SelectObject(probe.DC(), hOld);
    return probe;
}

testing::AssertionResult Contains(const CRect& outer, const CRect& inner)
{
    if (inner.IsRectEmpty() || inner.left < outer.left || inner.top < outer.top || inner.right > outer.right ||
        inner.bottom > outer.bottom)
        return testing::AssertionFailure() << "(" << inner.left << "," << inner.top << ")-(" << inner.right << ","
                                           << inner.bottom << ") is not inside (" << outer.left << "," << outer.top
                                           << ")-(" << outer.right << "," << outer.bottom << ")";
    return testing::AssertionSuccess();
}

PixelProbe CopyOf(const PixelProbe& probe)
{
    PixelProbe copy(probe.Width(), probe.Height());
    ::BitBlt(copy.DC(), 0, 0, probe.Width(), probe.Height(), probe.DC(), 0, 0, SRCCOPY);
    return copy;
}

void DrawWideCaption(HDC hDC, HFONT hFont, const CStringW& text, float x, float y)
{
    CaptionTools tools(hDC, hFont);
    Gdiplus::GpSolidFill* brush = nullptr;
    gdip::GdipCreateSolidFill(0xFF000000u, &brush);
    Gdiplus::RectF at(x, y, 0, 0);
    gdip::GdipDrawString(tools.graphics, text, text.GetLength(), tools.font, &at, tools.format, brush);
    gdip::GdipDeleteBrush(brush);
}

void MeasureWideCaption(HDC hDC, HFONT hFont, const CStringW& text, float& width, float& height)
{
    CaptionTools tools(hDC, hFont);
    Gdiplus::RectF layout(0, 0, 0, 0);
    Gdiplus::RectF box;
    gdip::GdipMeasureString(tools.graphics, text, text.GetLength(), tools.font, &layout, tools.format, &box, nullptr,
                            nullptr);
    width = box.Width;
    height = box.Height;
}

PixelProbe WithWideCaption(const PixelProbe& base, HFONT hFont, const CStringW& text, float x, float y)
{
    PixelProbe probe = CopyOf(base);
    DrawWideCaption(probe.DC(), hFont, text, x, y);
    return probe;
}

PixelProbe ThemedReference(HWND hWnd, int part, int state, const CRect& box, COLORREF underlay)
{
    CRect client;
    ::GetClientRect(hWnd, &client);
    PixelProbe probe(client.Width(), client.Height(), underlay);
    HTHEME theme = ::OpenThemeData(hWnd, L"Button");
    ::DrawThemeBackground(theme, probe.DC(), part, state, &box, nullptr);
    if (theme != nullptr)
        ::CloseThemeData(theme);
    return probe;
}

HFONT DialogFont()
{
    return (HFONT)::GetStockObject(DEFAULT_GUI_FONT);
}

}  // namespace controls_tests
