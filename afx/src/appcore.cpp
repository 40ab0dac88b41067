// Threads and applications: the message pump, idle processing and the application entry.
#include "afximpl_.h"

#include <cstdlib>
#include <cstring>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

CWinThread::CWinThread() : m_nThreadID(::GetCurrentThreadId())
{
    AfxGetThreadState()->m_pThread = this;
}

CWinThread::~CWinThread()
{
    AfxThreadState* pState = AfxGetThreadState();
    if (pState->m_pThread == this)
        pState->m_pThread = nullptr;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd;
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return (int)m_msgCur.wParam;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->hwnd == nullptr)
        return FALSE;  // thread messages are dispatched as they are
    CWnd* pMainWnd = GetMainWnd();
    if (CWnd::WalkPreTranslateTree(pMainWnd->GetSafeHwnd(), pMsg))
        return TRUE;
    // A modeless window outside the main window still gets the main window's accelerators.
    if (pMainWnd != nullptr)
    {
        CWnd* pWnd = CWnd::FromHandle(pMsg->hwnd);
        if (pWnd->GetTopLevelParent() != pMainWnd && CWnd::FromHandle(pMainWnd->m_hWnd) == pMainWnd)
            return pMainWnd->PreTranslateMessage(pMsg);
    }
    return FALSE;
}

namespace {

// One message of the queue, offered for translation first; FALSE once WM_QUIT arrives.
BOOL PumpInto(MSG& msg)
{
    if (!::GetMessageA(&msg, nullptr, 0, 0))
        return FALSE;
    if (!AfxPreTranslateMessage(&msg))
    {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
    return TRUE;
}

}  // namespace

BOOL CWinThread::PumpMessage()
{
    return PumpInto(m_msgCur);
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    // Painting, caret blinks and repeated moves at one place do not restart idle work.
    static POINT ptLast = {-1, -1};
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE)
    {
        BOOL bSame = pMsg->pt.x == ptLast.x && pMsg->pt.y == ptLast.y;
        ptLast = pMsg->pt;
        return !bSame;
    }
    return pMsg->message != WM_PAINT && pMsg->message != 0x0118;
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
    {
        // Command updates of the main window and its bars, then one more idle pass.
        CWnd* pMainWnd = m_pMainWnd;
        if (pMainWnd != nullptr && pMainWnd->m_hWnd != nullptr && pMainWnd->IsWindowVisible())
        {
            AfxCallWndProc(pMainWnd, pMainWnd->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
            pMainWnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
        return TRUE;
    }
    AfxDeleteTempsIfUnlocked();
    return FALSE;
}

int CWinThread::Run()
{
    BOOL bIdle = TRUE;
    LONG lIdleCount = 0;
    for (;;)
    {
        if (!::PeekMessageA(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE))
        {
            if (bIdle)
            {
                bIdle = OnIdle(lIdleCount++);
                continue;
            }
            ::WaitMessage();
            continue;
        }
        if (!PumpMessage())
            return ExitInstance();
        if (IsIdleMessage(&m_msgCur))
        {
            bIdle = TRUE;
            lIdleCount = 0;
        }
    }
}

CWinThread* AFXAPI AfxGetThread()
{
    CWinThread* pThread = AfxGetThreadState()->m_pThread;
    if (pThread == nullptr)
    {
        // The application object runs on the thread that calls AfxWinInit.
        CWinApp* pApp = AfxGetApp();
        if (pApp != nullptr && pApp->m_nThreadID == ::GetCurrentThreadId())
            pThread = pApp;
    }
    return pThread;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr ? pThread->GetMainWnd() : nullptr;
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg)
{
    if (CWinThread* pThread = AfxGetThread())
        return pThread->PreTranslateMessage(pMsg);
    return pMsg->hwnd != nullptr && CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

BOOL AFXAPI AfxPumpMessage()
{
    if (CWinThread* pThread = AfxGetThread())
        return pThread->PumpMessage();
    MSG msg;
    return PumpInto(msg);
}

void AFXAPI AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}

// Applications

CWinApp::CWinApp(LPCSTR lpszAppName)
{
    if (lpszAppName != nullptr)
        m_pszAppName = _strdup(lpszAppName);
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    pState->m_pCurrentWinApp = this;
    if (m_pszAppName != nullptr)
        pState->m_lpszCurrentAppName = m_pszAppName;
    m_hInstance = pState->m_hCurrentInstanceHandle;
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    if (pState->m_pCurrentWinApp == this)
        pState->m_pCurrentWinApp = nullptr;
    if (pState->m_lpszCurrentAppName == m_pszAppName)
        pState->m_lpszCurrentAppName = nullptr;
    free((void*)m_pszAppName);
    free((void*)m_pszExeName);
}

void CWinApp::SetCurrentHandles()
{
    char szPath[MAX_PATH] = {};
    ::GetModuleFileNameA(m_hInstance, szPath, MAX_PATH);
    const char* pszFile = strrchr(szPath, '\\');
    pszFile = pszFile ? pszFile + 1 : szPath;
    char szExe[MAX_PATH];
    lstrcpynA(szExe, pszFile, MAX_PATH);
    if (char* pDot = strrchr(szExe, '.'))
        *pDot = '\0';
    if (m_pszExeName == nullptr)
        m_pszExeName = _strdup(szExe);
    if (m_pszAppName == nullptr)
    {
        CString strTitle;
        m_pszAppName = _strdup(strTitle.LoadString(m_hInstance, AFX_IDS_APP_TITLE) ? (LPCSTR)strTitle : szExe);
    }
    AfxGetModuleState()->m_lpszCurrentAppName = m_pszAppName;
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    // Without a main window there is nothing to run.
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG lCount)
{
    return CWinThread::OnIdle(lCount);
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow)
{
    CWinThread* pThread = AfxGetThread();
    CWinApp* pApp = AfxGetApp();
    if (!AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) || pThread == nullptr)
        return -1;
    if (pApp != nullptr && !pApp->InitApplication())
        return -1;
    if (!pThread->InitInstance())
    {
        if (pThread->m_pMainWnd != nullptr)
            pThread->m_pMainWnd->DestroyWindow();
        return pThread->ExitInstance();
    }
    return pThread->Run();
}
