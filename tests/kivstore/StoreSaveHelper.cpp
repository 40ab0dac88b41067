// Inserts one text through the store, then releases the library, which writes the language
// file, or (with "exit") ends the process without releasing it, as a host that exits without
// cleaning up does. Exits with the insert's result (0: held for writing). Used by the store's
// tests of a process's end and of a disk that takes no more bytes.
#include <afx.h>

#include "KivStore.h"

#include <cstring>

using namespace kiv::siblings;

int main(int argc, char** argv)
{
    if (argc != 6 && !(argc == 7 && std::strcmp(argv[6], "exit") == 0))
        return 20;
    HMODULE library = ::LoadLibraryA(kStoreLibrary);
    auto insert = reinterpret_cast<InsertLanguageStringFn>(::GetProcAddress(library, kInsertLanguageStringExport));
    if (!insert)
        return 21;
    CStringW translation(argv[2]);
    int result = insert(argv[1], translation, argv[3], argv[4], argv[5]);
    if (argc == 7)
        ::ExitProcess((UINT)result);
    ::FreeLibrary(library);
    return result;
}
