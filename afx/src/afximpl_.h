// State private to the runtime.
#pragma once

#include "afxpriv.h"

// What the runtime keeps per thread: the message being handled, window-creation hooking,
// the handle maps and the menu being tracked.
struct AfxThreadState
{
    MSG m_lastSentMsg = {};
    CWnd* m_pWndInit = nullptr;
    HHOOK m_hHookCbt = nullptr;
    int m_nTempMapLock = 0;
    HWND m_hTrackingWindow = nullptr;
    HMENU m_hTrackingMenu = nullptr;
    CHandleMap* m_pmapHWND = nullptr;
    CHandleMap* m_pmapHMENU = nullptr;
    CHandleMap* m_pmapHDC = nullptr;
    CHandleMap* m_pmapHGDIOBJ = nullptr;
    CWinThread* m_pThread = nullptr;
};

AfxThreadState* AfxGetThreadState();

// The runtime's own module, for its window classes.
HINSTANCE AfxGetRuntimeInstance();
const char* const kAfxWndClass = "KivAfxWnd";
const char* const kAfxFrameClass = "KivAfxFrameOrView";
void AfxRegisterRuntimeClasses();

// Idle work of a pump: deletes temporary objects when no lock holds them.
void AfxDeleteTempsIfUnlocked();
