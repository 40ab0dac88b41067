#include "Screenshot.h"

#include <gdiplus.h>

namespace kivtest {

namespace {

// The PNG encoder of GDI+ ({557CF406-1A04-11D3-9A73-0000F81EF32E}).
const CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

BOOL SaveBitmapPng(HBITMAP hBitmap, const std::wstring& path)
{
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return FALSE;
    Gdiplus::GpBitmap* bitmap = nullptr;
    BOOL saved = FALSE;
    if (Gdiplus::DllExports::GdipCreateBitmapFromHBITMAP(hBitmap, nullptr, &bitmap) == Gdiplus::Ok)
    {
        saved = Gdiplus::DllExports::GdipSaveImageToFile(bitmap, path.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
        Gdiplus::DllExports::GdipDisposeImage(bitmap);
    }
    Gdiplus::GdiplusShutdown(token);
    return saved;
}

}  // namespace

BOOL SaveWindowPng(HWND hWnd, const std::wstring& path)
{
    RECT rect;
    if (!::GetWindowRect(hWnd, &rect))
        return FALSE;
    int width = rect.right - rect.left;
    int height = rect.bottom - rect.top;
    HDC hScreen = ::GetDC(nullptr);
    HDC hMemory = ::CreateCompatibleDC(hScreen);
    HBITMAP hBitmap = ::CreateCompatibleBitmap(hScreen, width, height);
    HGDIOBJ hOld = ::SelectObject(hMemory, hBitmap);
    BOOL copied = ::BitBlt(hMemory, 0, 0, width, height, hScreen, rect.left, rect.top, SRCCOPY);
    ::SelectObject(hMemory, hOld);
    BOOL saved = copied && SaveBitmapPng(hBitmap, path);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hMemory);
    ::ReleaseDC(nullptr, hScreen);
    return saved;
}

}  // namespace kivtest
