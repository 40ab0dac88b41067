// A library with a sibling's file name planted where nobody should load it from: once loaded,
// it leaves the file "decoy-loaded" in the current folder.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        HANDLE file = ::CreateFileA("decoy-loaded", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE)
            ::CloseHandle(file);
    }
    return TRUE;
}
