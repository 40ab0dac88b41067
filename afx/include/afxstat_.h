// The module state: what the application and every extension library share in the
// shared build of the runtime.
#pragma once

#include "afx.h"

class CWinApp;
class CDynLinkLibrary;

class AFX_API AFX_MODULE_STATE
{
public:
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    LPCSTR m_lpszCurrentAppName = nullptr;
    BOOL m_bDLL = FALSE;
    BOOL m_bSystem = FALSE;

    // Run-time classes registered by static constructors, and the OLE factory list.
    CTypedSimpleList<CRuntimeClass*> m_classList;
    CTypedSimpleList<void*> m_factoryList;
    // Heads saved by an extension library's raw entry before its own constructors run.
    CRuntimeClass* m_pClassInit = nullptr;
    void* m_pFactoryInit = nullptr;

    // Extension libraries in the resource and class chain, most recent first.
    CTypedSimpleList<CDynLinkLibrary*> m_libraryList;

    // Number of AfxLoadLibrary calls not yet balanced by AfxFreeLibrary.
    long m_nLoadedLibraries = 0;
};

AFX_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
AFX_API AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();
