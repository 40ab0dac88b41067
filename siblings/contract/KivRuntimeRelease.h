// What a library of the project frees when a host unloads it: the C++ runtime linked into it
// makes a buffer for exceptions thrown while memory runs out when the library loads, and does
// not free it itself. The siblings are loaded and released for every task of the manager, so
// each load would otherwise keep one more.
#pragma once

#include <windows.h>

#if defined(__GLIBCXX__)
namespace __gnu_cxx {
void __freeres() noexcept;
}
#endif

namespace kiv::siblings {

// For DllMain: at FreeLibrary (not at process exit, where reserved is set and the memory goes
// with the process).
inline void ReleaseRuntimeOnUnload(DWORD reason, LPVOID reserved) noexcept
{
#if defined(__GLIBCXX__)
    if (reason == DLL_PROCESS_DETACH && reserved == nullptr)
        __gnu_cxx::__freeres();
#else
    (void)reason;
    (void)reserved;
#endif
}

}  // namespace kiv::siblings
