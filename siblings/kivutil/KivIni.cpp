#include "KivIni.h"

CString KivIniPath()
{
    char env[MAX_PATH * 2];
    DWORD n = ::GetEnvironmentVariableA("KIV_INI", env, sizeof(env));
    if (n > 0 && n < sizeof(env))
        return CString(env, (int)n);
    char exe[MAX_PATH * 2] = {};
    DWORD len = ::GetModuleFileNameA(nullptr, exe, sizeof(exe));
    CString path(exe, (int)len);
    return path.Left(path.ReverseFind('\\') + 1) + "kiv.ini";
}

CString KivReadIniString(const char* section, const char* key, const char* defaultText)
{
    // A missing section or key names one setting no more: the profile call would list the
    // file's sections or keys instead.
    if (section == nullptr || key == nullptr)
        return CString(defaultText ? defaultText : "");
    CString path = KivIniPath();
    CString value;
    // The profile call truncates silently; grow until the value fits.
    for (DWORD size = 256;; size *= 4)
    {
        char* buffer = value.GetBuffer((int)size);
        DWORD n = ::GetPrivateProfileStringA(section, key, defaultText ? defaultText : "", buffer, size, path);
        value.ReleaseBuffer((int)n);
        if (n < size - 2 || size >= (1u << 24))
            return value;
    }
}
