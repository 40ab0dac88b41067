// Inserts one string through the store and ends the process without releasing the library, as a
// host that exits without cleaning up does. Used by the store's tests.
#include <afx.h>

#include "KivStore.h"

using namespace kiv::siblings;

int main(int argc, char** argv)
{
    if (argc != 5)
        return 2;
    HMODULE library = ::LoadLibraryA(kStoreLibrary);
    auto insert = reinterpret_cast<InsertLanguageStringFn>(::GetProcAddress(library, kInsertLanguageStringExport));
    if (!insert)
        return 3;
    CStringW translation(argv[2]);
    int result = insert(argv[1], translation, argv[3], argv[4], "1");
    ::ExitProcess(result == kStoreOk ? 0 : 10 + result);
}
