// The setting reader of the product family.
#include "KivIni.h"
#include "KivRuntimeRelease.h"
#include "KivSiblings.h"

#include <type_traits>

CString kivGetIniString(const char* section, const char* key, const char* defaultText)
{
    return KivReadIniString(section, key, defaultText);
}

static_assert(std::is_same_v<decltype(&kivGetIniString), kiv::siblings::IniReaderFn>,
              "the reader has the type its callers request");

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved)
{
    if (reason == DLL_PROCESS_ATTACH)
        ::DisableThreadLibraryCalls(instance);
    kiv::siblings::ReleaseRuntimeOnUnload(reason, reserved);
    return TRUE;
}
