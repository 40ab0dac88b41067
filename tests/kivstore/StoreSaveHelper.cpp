// Inserts one text through the store and releases the library, which writes the language file:
// one save, for the store's tests of a disk that takes no more bytes. Exits with the insert's
// result (0: held for writing).
#include <afx.h>

#include "KivStore.h"

using namespace kiv::siblings;

int main(int argc, char** argv)
{
    if (argc != 6)
        return 20;
    HMODULE library = ::LoadLibraryA(kStoreLibrary);
    auto insert = reinterpret_cast<InsertLanguageStringFn>(::GetProcAddress(library, kInsertLanguageStringExport));
    if (!insert)
        return 21;
    CStringW translation(argv[2]);
    int result = insert(argv[1], translation, argv[3], argv[4], argv[5]);
    ::FreeLibrary(library);
    return result;
}
