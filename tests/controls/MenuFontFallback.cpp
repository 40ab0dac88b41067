// The menu measures its items in "Tahoma" 8 pt and falls back to the generic sans-serif family
// when GDI+ cannot make Tahoma. Wine has no Tahoma of its own: the build's prefix maps it to
// another font. This program takes that mapping away for one child process of itself, which
// measures a menu item, and puts it back; CTest runs it alone, so no other program starts
// without the mapping meanwhile.
#include <KivMFC.h>
#include <gdiplus.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

const char kReplacements[] = "Software\\Wine\\Fonts\\Replacements";

// "<status of making Tahoma> <measured width>" on standard output.
int Probe()
{
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    Gdiplus::GpFontFamily* family = nullptr;
    int status = Gdiplus::DllExports::GdipCreateFontFamilyFromName(L"Tahoma", nullptr, &family);
    if (family != nullptr)
        Gdiplus::DllExports::GdipDeleteFontFamily(family);
    CWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), "probe", WS_OVERLAPPED, 0, 0, 200, 100, nullptr, nullptr);
    CUnicodeMenu menu;
    menu.CreatePopupMenu();
    ::AppendMenuA(menu.m_hMenu, MF_STRING, 100, "&Open the file");
    menu.TranslateMenu(&menu, "MENU", 0, window.m_hWnd);
    MENUITEMINFOA info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_DATA;
    ::GetMenuItemInfoA(menu.m_hMenu, 0, TRUE, &info);
    auto* record = (MenuItemRecord*)info.dwItemData;
    std::printf("%d %d %d\n", status, record ? record->width : -1, record ? record->height : -1);
    window.DestroyWindow();
    Gdiplus::GdiplusShutdown(token);
    return 0;
}

// Runs this program with --probe and answers what it printed.
std::string RunProbe()
{
    SECURITY_ATTRIBUTES inherit = {sizeof(inherit), nullptr, TRUE};
    HANDLE hRead = nullptr, hWrite = nullptr;
    ::CreatePipe(&hRead, &hWrite, &inherit, 0);
    ::SetHandleInformation(hRead, HANDLE_FLAG_INHERIT, 0);
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string command = std::string("\"") + path + "\" --probe";
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = hWrite;
    startup.hStdError = hWrite;
    PROCESS_INFORMATION process = {};
    std::string output;
    if (::CreateProcessA(nullptr, &command[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
    {
        ::CloseHandle(hWrite);
        hWrite = nullptr;
        char buffer[256];
        DWORD read = 0;
        while (::ReadFile(hRead, buffer, sizeof(buffer), &read, nullptr) && read > 0)
            output.append(buffer, read);
        ::WaitForSingleObject(process.hProcess, 60000);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }
    if (hWrite != nullptr)
        ::CloseHandle(hWrite);
    ::CloseHandle(hRead);
    return output;
}

}  // namespace

int main(int argc, char** argv)
{
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    if (argc > 1 && std::strcmp(argv[1], "--probe") == 0)
        return Probe();

    HKEY hKey = nullptr;
    char saved[256] = {};
    DWORD size = sizeof(saved);
    bool had = ::RegOpenKeyExA(HKEY_CURRENT_USER, kReplacements, 0, KEY_READ | KEY_WRITE, &hKey) == ERROR_SUCCESS &&
               ::RegQueryValueExA(hKey, "Tahoma", nullptr, nullptr, (BYTE*)saved, &size) == ERROR_SUCCESS;
    if (had)
        ::RegDeleteValueA(hKey, "Tahoma");
    std::string without = RunProbe();
    if (had)
        ::RegSetValueExA(hKey, "Tahoma", 0, REG_SZ, (const BYTE*)saved, (DWORD)std::strlen(saved) + 1);
    if (hKey != nullptr)
        ::RegCloseKey(hKey);

    int status = -1, width = -1, height = -1;
    std::sscanf(without.c_str(), "%d %d %d", &status, &width, &height);
    std::printf("without the Tahoma mapping: status of Tahoma %d, item %d x %d\n", status, width, height);
    if (status == Gdiplus::Ok)
    {
        std::printf("Tahoma was still found: the fallback was not exercised\n");
        return 1;
    }
    if (width <= 0 || height <= 0)
    {
        std::printf("the item was not measured: no fallback family\n");
        return 1;
    }
    std::printf("measured with the generic sans-serif family\n");
    return 0;
}
