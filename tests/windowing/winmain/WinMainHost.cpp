// A GUI host whose entry is the runtime's: its exit code says whether the application object
// was initialised and run as a host expects.
#include <afxwin.h>

class CWinMainHostApp : public CWinApp
{
public:
    CWinMainHostApp() : CWinApp("WinMain Host") {}
    BOOL m_bInitialised = FALSE;
    BOOL InitInstance() override
    {
        m_bInitialised = m_hInstance == ::GetModuleHandleA(nullptr) && AfxGetApp() == this &&
                         lstrcmpA(AfxGetAppName(), "WinMain Host") == 0 && m_lpCmdLine != nullptr;
        CWnd* pWnd = new CFrameWnd;
        static_cast<CFrameWnd*>(pWnd)->Create(nullptr, "host");
        m_pMainWnd = pWnd;
        pWnd->PostMessage(WM_CLOSE);  // the pump runs until the main window is gone
        return TRUE;
    }
    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        return m_bInitialised && m_pMainWnd == nullptr ? 0 : 3;
    }
};

CWinMainHostApp theApp;
