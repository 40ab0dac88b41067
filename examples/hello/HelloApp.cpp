#include "HelloApp.h"

#include "HelloDialog.h"
#include "resource.h"

#include <cstring>
#include <gdiplus.h>

CHelloApp theApp;

CHelloApp::CHelloApp() : CWinApp("Hello") {}

BOOL CHelloApp::InitInstance()
{
    // The wide-text buttons draw their captions with GDI+, which the host starts.
    Gdiplus::GdiplusStartupInput gdiplusInput;
    Gdiplus::GdiplusStartup(&m_gdiplusToken, &gdiplusInput, nullptr);

    // The manager's own start-up keeps one character of each stored text: this puts the
    // translators' texts in its cache before the first window.
    KivLoadStoreTranslations();

    // Only on request, so that runs without a person at the screen never wait on a box.
    if (HasSwitch("/message"))
        LocalizationManager::Get()->ShowMessageBox(IDS_WELCOME);

    CHelloDialog dialog(HasSwitch("/news"));
    m_pMainWnd = &dialog;
    dialog.DoModal();
    // No message loop of our own: the application ends with its dialog.
    return FALSE;
}

int CHelloApp::ExitInstance()
{
    // The last call into the manager: writes the texts the store lacks to the language file.
    LocalizationManager::Dispose();
    Gdiplus::GdiplusShutdown(m_gdiplusToken);
    CWinApp::ExitInstance();
    // Not the last message's wParam, which the dialog's loop left behind.
    return 0;
}

BOOL CHelloApp::HasSwitch(LPCSTR lpszSwitch) const
{
    const size_t length = std::strlen(lpszSwitch);
    for (LPCSTR p = m_lpCmdLine; p != nullptr && (p = std::strstr(p, lpszSwitch)) != nullptr; p += length)
    {
        // A whole word only: "/message" is not "/messages".
        const bool starts = p == m_lpCmdLine || p[-1] == ' ';
        if (starts && (p[length] == '\0' || p[length] == ' '))
            return TRUE;
    }
    return FALSE;
}
