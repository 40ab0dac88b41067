// A process that has not linked the runtime library loads and unloads it again and again, as a
// host does through an extension library it loads by name: what stays behind per unload shows
// in the private memory. Exits 0 when that is less than 4 KB per cycle (the C++ runtime's own
// buffer alone is about 70 KB).
#include "GuiObjects.h"

#include <cstdio>

int main()
{
    const int cycles = 200;
    auto cycle = [] {
        HMODULE library = ::LoadLibraryA("KivAfx64.dll");
        if (library == nullptr)
            return false;
        ::FreeLibrary(library);
        return ::GetModuleHandleA("KivAfx64.dll") == nullptr;
    };
    if (!cycle())
        return 2;  // not found, or not unloaded: nothing to measure
    const SIZE_T before = kivtest::PrivateBytes();
    for (int i = 0; i < cycles; ++i)
        cycle();
    const SIZE_T after = kivtest::PrivateBytes();
    const long long kept = ((long long)after - (long long)before) / cycles;
    std::printf("KivAfx64.dll loaded and unloaded %d times: %lld bytes kept per cycle\n", cycles, kept);
    return kept < 4096 ? 0 : 1;
}
