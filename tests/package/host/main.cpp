// A host built against the installed package: the library's resources are in its chain.
#include <KivMFC.h>

#include <cstdio>

int main()
{
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW);
    InitKivMFCDLL();  // a second record for the library; the chain still finds its resources
    HINSTANCE library = ::GetModuleHandleA("KivMFC64.dll");
    HINSTANCE found = AfxFindResourceHandle(MAKEINTRESOURCEA(IDB_KIV_COMBO_ARROW), RT_BITMAP);
    CString name;
    name.LoadString(IDS_KIV_LIBRARY_NAME);
    std::printf("library %p, bitmap found in %p, name '%s'\n", (void*)library, (void*)found, name.GetString());
    return library != nullptr && found == library && name == "KivMFC64" ? 0 : 1;
}
