// A window as it is on the screen, saved as a PNG file: what a person looking at the display
// would see, read back from the screen rather than painted again.
#pragma once

#include <afxwin.h>

#include <string>

namespace kivtest {

// Copies the window's rectangle from the screen and writes it as PNG; FALSE on any failure.
BOOL SaveWindowPng(HWND hWnd, const std::wstring& path);

}  // namespace kivtest
