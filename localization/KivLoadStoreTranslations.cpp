#include "KivLoadStoreTranslations.h"

#include "KivSiblings.h"
#include "LocalizationManager.h"
#include "StoreSession.h"

using namespace kiv::siblings;

extern "C" int KivLoadStoreTranslations()
{
    LocalizationManager* manager = LocalizationManager::Get();
    kiv::localization::StoreSession store;
    int count = 0;
    store.ForEachRecord([&](const CStringW* field) {
        manager->SetTranslation(CString(field[kRecordDefaultText]), field[kRecordTranslation],
                                CString(field[kRecordKey]), CString(field[kRecordSection]));
        ++count;
    });
    return count;
}
