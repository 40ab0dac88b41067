// The module state shared by the application and its extension libraries, the library
// chain and resource search.
#include "afxwin.h"

namespace {

AFX_MODULE_STATE& AppState()
{
    static AFX_MODULE_STATE state;
    return state;
}

CString& AppName()
{
    static CString name;
    return name;
}

}  // namespace

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    return AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState()
{
    AFX_MODULE_STATE& state = AppState();
    if (state.m_hCurrentInstanceHandle == nullptr)
    {
        // Until AfxWinInit runs, the process's executable is the application module.
        state.m_hCurrentInstanceHandle = ::GetModuleHandleA(nullptr);
        state.m_hCurrentResourceHandle = state.m_hCurrentInstanceHandle;
    }
    return &state;
}

CWinApp* AFXAPI AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCSTR AFXAPI AfxGetAppName()
{
    return AfxGetModuleState()->m_lpszCurrentAppName;
}

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE /*hPrevInstance*/, LPSTR lpCmdLine, int nCmdShow)
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    pState->m_hCurrentInstanceHandle = hInstance;
    pState->m_hCurrentResourceHandle = hInstance;
    // The application's title string names it; without one, the executable's base name.
    CString& name = AppName();
    if (!name.LoadString(hInstance, AFX_IDS_APP_TITLE))
    {
        char path[MAX_PATH] = {};
        ::GetModuleFileNameA(hInstance, path, MAX_PATH);
        CString file(path);
        file = file.Mid(file.ReverseFind('\\') + 1);
        int dot = file.ReverseFind('.');
        name = dot >= 0 ? file.Left(dot) : file;
    }
    // An application object names itself; a console host takes the name found here.
    if (CWinApp* pApp = pState->m_pCurrentWinApp)
    {
        pApp->m_hInstance = hInstance;
        pApp->m_lpCmdLine = lpCmdLine;
        pApp->m_nCmdShow = nCmdShow;
        pApp->SetCurrentHandles();
    }
    else if (pState->m_lpszCurrentAppName == nullptr)
    {
        pState->m_lpszCurrentAppName = name;
    }
    return TRUE;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCSTR lpszName, LPCSTR lpszType)
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    HINSTANCE hApp = AfxGetResourceHandle();
    if (!pState->m_bSystem && hApp && ::FindResourceA(hApp, lpszName, lpszType))
        return hApp;
    // Libraries of the application first, then system libraries, each most recent first.
    for (int pass = 0; pass < 2; ++pass)
    {
        BOOL bSystem = pass == 1;
        for (CDynLinkLibrary* pDLL = pState->m_libraryList.GetHead(); pDLL; pDLL = pDLL->m_pNextDLL)
            if (pDLL->m_bSystem == bSystem && pDLL->m_hResource &&
                ::FindResourceA(pDLL->m_hResource, lpszName, lpszType))
                return pDLL->m_hResource;
    }
    return hApp;
}

HINSTANCE AFXAPI AfxLoadLibrary(LPCSTR lpszModuleName)
{
    HINSTANCE hInst = ::LoadLibraryA(lpszModuleName);
    if (hInst != nullptr)
        ++AfxGetModuleState()->m_nLoadedLibraries;
    return hInst;
}

HINSTANCE AFXAPI AfxLoadLibraryEx(LPCSTR lpszModuleName, HANDLE hFile, DWORD dwFlags)
{
    HINSTANCE hInst = ::LoadLibraryExA(lpszModuleName, hFile, dwFlags);
    if (hInst != nullptr)
        ++AfxGetModuleState()->m_nLoadedLibraries;
    return hInst;
}

BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib)
{
    BOOL bResult = ::FreeLibrary(hInstLib);
    if (bResult)
        --AfxGetModuleState()->m_nLoadedLibraries;
    return bResult;
}
