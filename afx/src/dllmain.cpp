// The runtime library's entry: a host that loads and unloads it (through an extension library
// it loads by name) gets back what the C++ runtime linked into it keeps.
#include <windows.h>

#include "KivRuntimeRelease.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD dwReason, LPVOID lpReserved)
{
    kiv::siblings::ReleaseRuntimeOnUnload(dwReason, lpReserved);
    return TRUE;
}
