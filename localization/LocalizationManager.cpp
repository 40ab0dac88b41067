// LocalizationManager: the singleton, the translation cache and the lookups.
#include "LocalizationManager.h"

#include "KivSiblings.h"
#include "LocalizationKeys.h"
#include "StoreSession.h"
#include "TranslationIndex.h"

#include <cstring>
#include <iterator>

using kiv::localization::IndexText;
using kiv::localization::KeyText;
using kiv::localization::StoreSession;
using kiv::localization::TranslationIndex;

namespace {

// Nodes of every cache map are allocated ten at a time.
constexpr INT_PTR kBlockSize = 10;
// Bucket counts: the section map starts large enough for every dialog of a product; a key
// map starts at the runtime's default and moves up this list as it fills.
constexpr UINT kSectionTableSize = 257;
constexpr UINT kKeyTableSizes[] = {17, 67, 257, 1031, 4099, 16411, 65537, 262147, 1048583};

// Calls visit(name, value) for each association, in the map's own order.
template <typename Visit> void ForEachAssoc(CMapStringToPtr& map, Visit visit)
{
    CString name;
    void* value = nullptr;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;)
    {
        map.GetNextAssoc(pos, name, value);
        visit(name, value);
    }
}

// The runtime's maps never rehash, so a key map with more keys than buckets is moved into a
// larger one; a lookup then stays a walk of a short chain.
CMapStringToPtr* GrowIfCrowded(CMapStringToPtr* keys)
{
    UINT size = keys->GetHashTableSize();
    if (keys->GetCount() <= (INT_PTR)size || size >= kKeyTableSizes[std::size(kKeyTableSizes) - 1])
        return keys;
    UINT bigger = size;
    for (UINT candidate : kKeyTableSizes)
        if (candidate > size)
        {
            bigger = candidate;
            break;
        }
    auto* grown = new CMapStringToPtr(kBlockSize);
    grown->InitHashTable(bigger);
    ForEachAssoc(*keys, [&](const CString& key, void* value) { grown->SetAt(key, value); });
    delete keys;
    return grown;
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

IndexText TextOf(const CString& text)
{
    return {text.GetString(), (std::size_t)text.GetLength()};
}

}  // namespace

LocalizationManager* LocalizationManager::m_SingletonInstance = nullptr;

LocalizationManager* LocalizationManager::Get()
{
    if (m_SingletonInstance == nullptr)
        m_SingletonInstance = new LocalizationManager;
    return m_SingletonInstance;
}

void LocalizationManager::Dispose()
{
    // Dispose before any Get() has no instance to save; it answers without touching anything.
    if (m_SingletonInstance == nullptr)
        return;
    m_SingletonInstance->SaveTranslations();
    delete m_SingletonInstance;
    // m_SingletonInstance keeps the freed address on purpose: Dispose is the host's last call.
}

LocalizationManager::LocalizationManager()
    : m_pTranslationCache(new CMapStringToPtr(kBlockSize)), m_pIndex(new TranslationIndex(m_pTranslationCache))
{
    m_pTranslationCache->InitHashTable(kSectionTableSize);
    LoadTranslations();
}

LocalizationManager::~LocalizationManager()
{
    if (m_pTranslationCache != nullptr)
    {
        ClearTranslationCache();
        delete m_pTranslationCache;
    }
    TranslationIndex::Release(m_pIndex);
}

LocalizationManager& LocalizationManager::operator=(const LocalizationManager& other)
{
    m_pTranslationCache = other.m_pTranslationCache;
    // The index goes with the cache, so a text either manager records is found by both.
    if (other.m_pIndex != nullptr)
        other.m_pIndex->AddRef();
    TranslationIndex::Release(m_pIndex);
    m_pIndex = other.m_pIndex;
    return *this;
}

void LocalizationManager::SaveTranslations()
{
    if (m_pTranslationCache == nullptr)
        return;
    StoreTranslations();
    ClearTranslationCache();
    delete m_pTranslationCache;
    m_pTranslationCache = nullptr;
}

void LocalizationManager::LoadTranslations()
{
    using namespace kiv::siblings;
    StoreSession store;
    PreloadStrings one;
    store.ForEachRecord([&](const CStringW* field) {
        CacheTranslation(one.Narrow(field[kRecordDefaultText]), one.Wide(field[kRecordTranslation]),
                         one.Narrow(field[kRecordKey]), one.Narrow(field[kRecordSection]));
    });
}

void LocalizationManager::StoreTranslations()
{
    StoreSession store;
    if (store.LanguageId().IsEmpty())
        return;
    ForEachAssoc(*m_pTranslationCache, [&](const CString& section, void* keys) {
        ForEachAssoc(*static_cast<CMapStringToPtr*>(keys), [&](const CString& key, void* entry) {
            const auto* text = static_cast<const TranslationEntry*>(entry);
            if (text != nullptr)
                store.Save(section, key, text->defaultText, text->translatedText);
        });
    });
}

int LocalizationManager::IsTranslationMode()
{
    return StoreSession::TranslationMode();
}

void LocalizationManager::ClearTranslationCache()
{
    ForEachAssoc(*m_pTranslationCache, [](const CString&, void* keys) {
        auto* keyMap = static_cast<CMapStringToPtr*>(keys);
        ForEachAssoc(*keyMap, [](const CString&, void* entry) { delete static_cast<TranslationEntry*>(entry); });
        delete keyMap;
    });
    m_pTranslationCache->RemoveAll();
    if (IndexCovers())
        m_pIndex->Reset(nullptr);  // both callers delete the section map next
}

bool LocalizationManager::IndexCovers() const
{
    return m_pIndex != nullptr && m_pTranslationCache != nullptr && m_pIndex->Cache() == m_pTranslationCache;
}

TranslationEntry* LocalizationManager::FindTrimmedEntry(const CString& key, const CString& section,
                                                        kiv::localization::IndexSlot** where)
{
    if (m_pTranslationCache == nullptr)
        return nullptr;
    TranslationEntry* found = nullptr;
    if (IndexCovers())
    {
        IndexText sectionText = TextOf(section), keyText = TextOf(key);
        TranslationIndex::Slot* slot =
            m_pIndex->Find(TranslationIndex::Hash(sectionText, keyText), sectionText, keyText);
        found = slot != nullptr ? slot->entry : FindInMaps(key, section);
        if (where != nullptr)
            *where = slot;
    }
    else
        found = FindInMaps(key, section);
    if (found != nullptr)
        found->translatedText.Trim();  // the trimmed text stays in the cache
    return found;
}

// Also finds an entry that reached the maps other than through this manager.
TranslationEntry* LocalizationManager::FindInMaps(const CString& key, const CString& section)
{
    void* keys = nullptr;
    void* entry = nullptr;
    if (!m_pTranslationCache->Lookup(section, keys) || !static_cast<CMapStringToPtr*>(keys)->Lookup(key, entry) ||
        entry == nullptr)
        return nullptr;
    if (IndexCovers())
    {
        LPCSTR sectionText = nullptr;
        m_pTranslationCache->LookupKey(section, sectionText);
        IndexEntry(sectionText, static_cast<CMapStringToPtr*>(keys), key);
    }
    return static_cast<TranslationEntry*>(entry);
}

// Points the index at the entry's cell in keys, adding the entry when it is new to the index.
void LocalizationManager::IndexEntry(const char* section, CMapStringToPtr* keys, const CString& key)
{
    void** cell = &(*keys)[key];
    LPCSTR ownKey = nullptr;
    keys->LookupKey(key, ownKey);
    IndexText sectionText{section, std::strlen(section)}, keyText = TextOf(key);
    std::uint64_t hash = TranslationIndex::Hash(sectionText, keyText);
    auto* entry = static_cast<TranslationEntry*>(*cell);
    if (TranslationIndex::Slot* slot = m_pIndex->Find(hash, sectionText, keyText))
    {
        slot->entry = entry;
        slot->cell = cell;
        slot->longKey = ownKey;
    }
    else
        m_pIndex->Add(hash, section, keyText, ownKey, entry, cell);
}

// A key map moved into a larger one: every cell of it has moved.
void LocalizationManager::IndexKeyMap(const char* section, CMapStringToPtr* keys)
{
    ForEachAssoc(*keys, [&](const CString& key, void*) { IndexEntry(section, keys, key); });
}

BOOL LocalizationManager::HasTranslation(const CString& key, const CString& section)
{
    TranslationEntry* entry = FindTrimmedEntry(key, section);
    return entry != nullptr && !entry->translatedText.IsEmpty();
}

CStringW LocalizationManager::LookupTranslation(const CString& key, const CString& section)
{
    TranslationEntry* entry = FindTrimmedEntry(key, section);
    if (entry == nullptr)
        return CStringW();
    if (!entry->translatedText.IsEmpty())
        return entry->translatedText;
    return CStringW(entry->defaultText);
}

void LocalizationManager::ReplaceEntry(kiv::localization::IndexSlot& slot, const CString& defaultText,
                                       const CStringW& translatedText)
{
    auto* entry = new TranslationEntry;
    entry->defaultText = defaultText;
    entry->translatedText = translatedText;
    // The entry it replaces is overwritten, not freed; that loss is accepted.
    *slot.cell = entry;
    slot.entry = entry;
}

void LocalizationManager::CacheTranslation(const CString& defaultText, const CStringW& translatedText,
                                           const CString& key, const CString& section)
{
    if (m_pTranslationCache == nullptr)
        return;
    if (IndexCovers())
    {
        IndexText sectionText = TextOf(section), keyText = TextOf(key);
        TranslationIndex::Slot* slot =
            m_pIndex->Find(TranslationIndex::Hash(sectionText, keyText), sectionText, keyText);
        if (slot != nullptr)
        {
            ReplaceEntry(*slot, defaultText, translatedText);
            return;
        }
    }
    auto* entry = new TranslationEntry;
    entry->defaultText = defaultText;
    entry->translatedText = translatedText;
    void* keys = nullptr;
    if (!m_pTranslationCache->Lookup(section, keys))
    {
        keys = new CMapStringToPtr(kBlockSize);
        m_pTranslationCache->SetAt(section, keys);
    }
    auto* keyMap = static_cast<CMapStringToPtr*>(keys);
    // An entry already under the key is overwritten, not freed; that loss is accepted.
    keyMap->SetAt(key, entry);
    CMapStringToPtr* grown = GrowIfCrowded(keyMap);
    if (grown != keyMap)
        m_pTranslationCache->SetAt(section, grown);
    if (!IndexCovers())
        return;
    LPCSTR sectionText = nullptr;
    m_pTranslationCache->LookupKey(section, sectionText);
    if (grown != keyMap)
        IndexKeyMap(sectionText, grown);
    else
        IndexEntry(sectionText, grown, key);
}

CString LocalizationManager::GetTranslation(CString defaultText, CString key, CString section)
{
    if (!HasTranslation(key, section))
    {
        CacheTranslation(defaultText, CStringW(), key, section);
        return defaultText;
    }
    BSTR wide = LookupTranslation(key, section).AllocSysString();
    int length = (int)::SysStringLen(wide);
    const DWORD flags = WC_COMPOSITECHECK | WC_DISCARDNS;
    int size = ::WideCharToMultiByte(CP_ACP, flags, wide, length, nullptr, 0, nullptr, nullptr);
    CString result = defaultText;
    if (size > 0)
    {
        char* narrow = new char[size + 1];
        ::WideCharToMultiByte(CP_ACP, flags, wide, length, narrow, size, nullptr, nullptr);
        narrow[size] = '\0';
        result.Format("%s", narrow);
        delete[] narrow;
    }
    ::SysFreeString(wide);
    return result;
}

CString LocalizationManager::GetTranslation(CString defaultText, int key, int section)
{
    CString keyText = KeyText(key);
    return GetTranslation(defaultText, keyText, KeyText(section));
}

CStringW LocalizationManager::GetWideTranslation(CString defaultText, CString key, CString section)
{
    // One lookup answers both whether a translation exists and what it is.
    kiv::localization::IndexSlot* slot = nullptr;
    TranslationEntry* entry = FindTrimmedEntry(key, section, &slot);
    if (entry != nullptr && !entry->translatedText.IsEmpty())
        return entry->translatedText;
    if (defaultText.IsEmpty())
        return CStringW();  // an empty default is never recorded by this overload
    if (slot != nullptr)
    {
        // A text asked for again: its place is known and its widening kept.
        ReplaceEntry(*slot, defaultText, CStringW());
        return TranslationIndex::Widened(*slot, defaultText);
    }
    CacheTranslation(defaultText, CStringW(), key, section);
    return CStringW(defaultText);
}

CStringW LocalizationManager::GetWideTranslation(CString defaultText, int key, int section)
{
    CString keyText = KeyText(key);
    return GetWideTranslation(defaultText, keyText, KeyText(section));
}

BSTR LocalizationManager::GetBSTRTranlation(CString defaultText, CString key, CString section)
{
    if (HasTranslation(key, section))
        return LookupTranslation(key, section).AllocSysString();
    CacheTranslation(defaultText, CStringW(), key, section);
    return defaultText.AllocSysString();
}

BSTR LocalizationManager::GetBSTRTranlation(CString defaultText, int key, int section)
{
    CString keyText = KeyText(key);
    return GetBSTRTranlation(defaultText, keyText, KeyText(section));
}

void LocalizationManager::SetTranslation(CString defaultText, CStringW translatedText, CString key, CString section)
{
    CacheTranslation(defaultText, translatedText, key, section);
}
