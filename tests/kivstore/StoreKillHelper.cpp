// Saves a language again and again, each time with more texts, until it is killed: the store's
// tests end it at random instants to see that every kill leaves a whole file behind.
#include <afx.h>

#include "KivStore.h"

#include <string>

using namespace kiv::siblings;

int main()
{
    for (int round = 0;; ++round)
    {
        HMODULE library = ::LoadLibraryA(kStoreLibrary);
        auto insert = reinterpret_cast<InsertLanguageStringFn>(::GetProcAddress(library, kInsertLanguageStringExport));
        if (!insert)
            return 3;
        for (int i = 0; i < 50; ++i)
        {
            std::string key = std::to_string(round) + "." + std::to_string(i);
            insert("Added text", L"Hinzugef\u00FCgter Text", "de", "K", key.c_str());
        }
        ::FreeLibrary(library);  // writes the language file
    }
}
