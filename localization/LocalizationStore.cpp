// LocalizationManager: the binding to the sibling libraries, the setting reader of
// kivutil64.dll and the language-string store of kivstore64.dll. Both are loaded by file
// name when needed and released again.
#include "LocalizationManager.h"

#include "KivSiblings.h"

using namespace kiv::siblings;

namespace
{

template <typename Fn> Fn Bind(HINSTANCE library, const char* exportName)
{
    return reinterpret_cast<Fn>(::GetProcAddress(library, exportName));
}

CString ReadLanguageSetting(IniReaderFn read)
{
    return read("Environment", "LanguageSetting", "");
}

// A store that lacks one of its names answers as a store without that language, rather
// than being called through a null pointer.
CString LanguageIdOf(HINSTANCE store, const CString& setting)
{
    auto getId = Bind<GetLanguageIDFn>(store, kGetLanguageIDExport);
    return getId != nullptr ? getId(setting) : CString();
}

// Loads the store, then the setting reader, and names the language that the setting asks
// for (empty when none). False when there is nothing to do: a library that did not load has
// been released with the other, while a reader without its name leaves both loaded.
bool OpenSiblings(HINSTANCE& store, HINSTANCE& util, CString& id)
{
    store = AfxLoadLibrary(kStoreLibrary);
    util = AfxLoadLibrary(kUtilLibrary);
    if (store == nullptr || util == nullptr)
    {
        AfxFreeLibrary(store);
        AfxFreeLibrary(util);
        return false;
    }
    auto read = Bind<IniReaderFn>(util, kIniReaderExport);
    if (read == nullptr)
        return false; // kept: hosts rely on both libraries staying loaded on this path
    CString setting = ReadLanguageSetting(read);
    id = setting.IsEmpty() ? CString() : LanguageIdOf(store, setting);
    return true;
}

// The strings made from a store record at start-up: only the first unit of each field, kept
// as hosts have always seen it; an empty field stays empty. ASCII units convert to themselves
// in every ANSI code page, so their strings are made once per load and then shared.
class PreloadStrings
{
public:
    CString Narrow(const CStringW& field)
    {
        if (field.IsEmpty())
            return CString();
        wchar_t unit = field[0];
        if (unit >= 0x80)
            return CString(field.GetString(), 1);
        if (m_narrow[unit].IsEmpty())
            m_narrow[unit] = CString((char)unit, 1);
        return m_narrow[unit];
    }
    CStringW Wide(const CStringW& field)
    {
        if (field.IsEmpty())
            return CStringW();
        wchar_t unit = field[0];
        if (unit >= 0x80)
            return CStringW(unit, 1);
        if (m_wide[unit].IsEmpty())
            m_wide[unit] = CStringW(unit, 1);
        return m_wide[unit];
    }

private:
    CString m_narrow[0x80];
    CStringW m_wide[0x80];
};

// One cached entry against the store: an insertion when the store lacks it, an update
// when the store's text differs, nothing when they are equal.
void StoreEntry(HINSTANCE store, const CString& id, const CString& section, const CString& key,
                const TranslationEntry& entry)
{
    auto getString = Bind<GetLanguageStringFn>(store, kGetLanguageStringExport);
    if (getString == nullptr)
        return;
    CStringW stored;
    if (getString(id, section, key, &stored) != 0)
    {
        auto insert = Bind<InsertLanguageStringFn>(store, kInsertLanguageStringExport);
        if (insert != nullptr)
            insert(entry.defaultText, entry.translatedText, id, section, key);
    }
    else if (stored != entry.translatedText)
    {
        auto update = Bind<UpdateLanguageStringFn>(store, kUpdateLanguageStringExport);
        if (update != nullptr)
            update(entry.translatedText, id, section, key);
    }
}

} // namespace

int LocalizationManager::IsTranslationMode()
{
    HINSTANCE util = AfxLoadLibrary(kUtilLibrary);
    int mode = 0;
    if (util != nullptr)
    {
        auto read = Bind<IniReaderFn>(util, kIniReaderExport);
        if (read == nullptr)
            return 0; // kept: hosts rely on the library staying loaded on this path
        mode = ReadLanguageSetting(read).IsEmpty() ? 0 : 1;
    }
    AfxFreeLibrary(util);
    return mode;
}

void LocalizationManager::LoadTranslations()
{
    HINSTANCE store = nullptr;
    HINSTANCE util = nullptr;
    CString id;
    if (!OpenSiblings(store, util, id))
        return;
    if (!id.IsEmpty())
    {
        auto getStrings = Bind<GetLanguageStringsFn>(store, kGetLanguageStringsExport);
        CStringW** table = getStrings != nullptr ? getStrings(id) : nullptr;
        PreloadStrings one;
        for (CStringW** record = table; record != nullptr && *record != nullptr; ++record)
        {
            const CStringW* field = *record; // default, translation, key, section
            CacheTranslation(one.Narrow(field[0]), one.Wide(field[1]), one.Narrow(field[2]), one.Narrow(field[3]));
        }
    }
    AfxFreeLibrary(store);
    AfxFreeLibrary(util);
}

void LocalizationManager::StoreTranslations()
{
    HINSTANCE store = nullptr;
    HINSTANCE util = nullptr;
    CString id;
    if (!OpenSiblings(store, util, id))
        return;
    if (!id.IsEmpty())
    {
        CString section, key;
        void* keys = nullptr;
        void* entry = nullptr;
        for (POSITION pos = m_pTranslationCache->GetStartPosition(); pos != nullptr;)
        {
            m_pTranslationCache->GetNextAssoc(pos, section, keys);
            auto* keyMap = static_cast<CMapStringToPtr*>(keys);
            for (POSITION pos2 = keyMap->GetStartPosition(); pos2 != nullptr;)
            {
                keyMap->GetNextAssoc(pos2, key, entry);
                if (entry != nullptr)
                    StoreEntry(store, id, section, key, *static_cast<TranslationEntry*>(entry));
            }
        }
    }
    AfxFreeLibrary(store);
    AfxFreeLibrary(util);
}
