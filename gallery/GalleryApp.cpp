#include "GalleryApp.h"

#include "MainFrame.h"
#include "resource.h"

#include <gdiplus.h>

CGalleryApp theApp;

CGalleryApp::CGalleryApp() : CWinApp("KivGallery") {}

BOOL CGalleryApp::InitInstance()
{
    // The wide-text controls draw with GDI+, which the host starts.
    Gdiplus::GdiplusStartupInput gdiplusInput;
    Gdiplus::GdiplusStartup(&m_gdiplusToken, &gdiplusInput, nullptr);
    // The translators' texts into the manager's cache, before the first window.
    KivLoadStoreTranslations();

    auto* pFrame = new CMainFrame;
    m_pMainWnd = pFrame;
    if (!pFrame->LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW))
        return FALSE;
    pFrame->ShowWindow(m_nCmdShow);
    pFrame->UpdateWindow();

    const CString tourFolder = SwitchValue("/tour");
    if (!tourFolder.IsEmpty())
        pFrame->StartTour(tourFolder);
    // A window by the name its "_STRINGMAP" record gives it.
    mfcCStringMap windows(IDR_WINDOWS);
    unsigned int command = 0;
    const CString window = SwitchValue("/open");
    if (!window.IsEmpty() && windows.Lookup(window, &command))
        pFrame->PostMessage(WM_COMMAND, command);
    return TRUE;
}

int CGalleryApp::ExitInstance()
{
    // The last call into the manager: writes the texts the store lacks to the language file.
    LocalizationManager::Dispose();
    Gdiplus::GdiplusShutdown(m_gdiplusToken);
    CWinApp::ExitInstance();
    return 0;
}

CString CGalleryApp::SwitchValue(LPCSTR lpszSwitch) const
{
    CString line = m_lpCmdLine != nullptr ? m_lpCmdLine : "";
    const CString word = CString(lpszSwitch) + " ";
    int at = line.Find(word);
    if (at < 0 || (at > 0 && line[at - 1] != ' '))
        return CString();
    CString rest = line.Mid(at + word.GetLength()).Trim();
    if (!rest.IsEmpty() && rest[0] == '"')
    {
        const int end = rest.Find('"', 1);
        return end < 0 ? rest.Mid(1) : rest.Mid(1, end - 1);
    }
    const int end = rest.Find(' ');
    return end < 0 ? rest : rest.Left(end);
}
