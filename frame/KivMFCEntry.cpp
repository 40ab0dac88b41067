// Process attach and detach of the library.
#include "KivMFCEntry.h"

#include "KivRuntimeRelease.h"

AFX_EXTENSION_MODULE KivMFC64DLL = {FALSE, nullptr, nullptr, nullptr, nullptr};

extern "C" void InitKivMFCDLL()
{
    new CDynLinkLibrary(KivMFC64DLL, FALSE);  // the module state's chain owns it
}

// Runs before the static constructors: the classes those constructors register must start
// a list of the library's own, apart from the application's.
extern "C" BOOL WINAPI RawDllMain(HINSTANCE, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH)
    {
        AFX_MODULE_STATE* pState = AfxGetModuleState();
        pState->m_pClassInit = pState->m_classList.m_pHead;
        pState->m_pFactoryInit = pState->m_factoryList.m_pHead;
        pState->m_classList.m_pHead = nullptr;
        pState->m_factoryList.m_pHead = nullptr;
    }
    return TRUE;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    kiv::siblings::ReleaseRuntimeOnUnload(dwReason, lpReserved);
    switch (dwReason)
    {
    case DLL_PROCESS_ATTACH:
        if (!AfxInitExtensionModule(KivMFC64DLL, hInstance))
            return 0;
        InitKivMFCDLL();
        return 1;
    case DLL_PROCESS_DETACH:
        AfxTermExtensionModule(KivMFC64DLL, FALSE);
        return 1;
    default:
        return 1;
    }
}

extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE, DWORD, LPVOID);

// The linker's entry point: the raw hook first, then the C runtime's start-up, which runs
// the static constructors and then DllMain.
extern "C" BOOL WINAPI KivMFCDllEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    RawDllMain(hInstance, dwReason, lpReserved);
    return DllMainCRTStartup(hInstance, dwReason, lpReserved);
}
