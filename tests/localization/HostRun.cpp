// One run of a host that shows the store's translations: it loads them, asks for its texts,
// optionally asks for one text the store lacks, and disposes of the manager. Used by the
// tests that run a host again and again over one language file.
//   localization_host_run <folder of the sibling libraries> [new text]
// Exit code 0 when the translations came from the store, 1 when not, 2 for bad arguments.
#include <KivMFC.h>

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    ::SetDllDirectoryA(argv[1]);
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_HIDE);
    LocalizationManager* manager = LocalizationManager::Get();
    int loaded = KivLoadStoreTranslations();
    CStringW cancel = manager->GetWideTranslation("Cancel", 2, 100);
    CString ok = manager->GetTranslation("OK", 1, 100);
    CStringW language = manager->GetWideTranslation("Language", 3, 100);
    if (argc > 2)
        manager->GetTranslation(argv[2], 9, 100);
    LocalizationManager::Dispose();
    std::printf("%d records, Cancel is %ls\n", loaded, cancel.GetString());
    return cancel == L"Abbrechen" && ok == "OK" && language == L"\x65E5\x672C\x8A9E" ? 0 : 1;
}
