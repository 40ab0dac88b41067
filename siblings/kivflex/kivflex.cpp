// kivflex64.dll is an extension library: its run-time classes join a class list of its own in
// the host's resource and class chain, not the application's list.
#include <afxdllx.h>

#include "KivRuntimeRelease.h"

namespace {

AFX_EXTENSION_MODULE g_flexModule = {FALSE, nullptr, nullptr, nullptr, nullptr};

// Before the static constructors register the library's classes: they start a list apart
// from the application's.
void SetClassListApart()
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    pState->m_pClassInit = pState->m_classList.m_pHead;
    pState->m_pFactoryInit = pState->m_factoryList.m_pHead;
    pState->m_classList.m_pHead = nullptr;
    pState->m_factoryList.m_pHead = nullptr;
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    kiv::siblings::ReleaseRuntimeOnUnload(dwReason, lpReserved);
    if (dwReason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(g_flexModule, hInstance))
            return FALSE;
        new CDynLinkLibrary(g_flexModule, FALSE);  // the module state's chain owns it
    }
    else if (dwReason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(g_flexModule, FALSE);
    }
    return TRUE;
}

extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE, DWORD, LPVOID);

// The linker's entry point: the class list set apart first, then the C runtime's start-up,
// which runs the static constructors and then DllMain.
extern "C" BOOL WINAPI KivFlexDllEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    if (dwReason == DLL_PROCESS_ATTACH)
        SetClassListApart();
    return DllMainCRTStartup(hInstance, dwReason, lpReserved);
}
