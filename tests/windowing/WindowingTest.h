// Shared by the windowing tests: a top-level parent window and message pumping.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

namespace kivtest {

// Dispatches what is waiting in the thread's queue, then returns.
inline void PumpPending()
{
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
    {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
}

// A visible top-level window owned by an object, for child controls to live in.
inline BOOL CreateTopLevel(CWnd& wnd, int cx = 320, int cy = 240, LPCSTR lpszTitle = "test")
{
    return wnd.CreateEx(0, AfxRegisterWndClass(0, ::LoadCursorA(nullptr, IDC_ARROW), (HBRUSH)(COLOR_WINDOW + 1)),
                        lpszTitle, WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE | WS_CLIPCHILDREN, 10, 10, cx, cy, nullptr,
                        nullptr);
}

}  // namespace kivtest
