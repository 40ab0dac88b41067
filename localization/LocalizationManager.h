// LocalizationManager: the library's single point of translation. Texts are named by a
// section, a key and the caller's default text; answers come from a two-level cache that
// is filled from the language-string store (kivstore64.dll) and written back on Dispose.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

namespace kiv::localization {
class TranslationIndex;
struct IndexSlot;
}  // namespace kiv::localization

// One cached text: the program's own text and its translation (empty when none is known).
// Entries are made by the hundred thousand and each text asked for again without translation
// makes one more, so they come from blocks of their own size rather than from the heap.
struct TranslationEntry
{
    CString defaultText;
    CStringW translatedText;

    static AFX_EXT_API void* operator new(size_t size);
    static AFX_EXT_API void operator delete(void* entry, size_t size) noexcept;
};

class AFX_EXT_CLASS LocalizationManager
{
public:
    // Attributes
    // The one instance; null until the first Get(). Dispose leaves it as it was.
    static LocalizationManager* m_SingletonInstance;

    // Operations
    static LocalizationManager* Get();
    static void Dispose();

    CString GetTranslation(CString defaultText, CString key, CString section);
    CString GetTranslation(CString defaultText, int key, int section);
    CStringW GetWideTranslation(CString defaultText, CString key, CString section);
    CStringW GetWideTranslation(CString defaultText, int key, int section);
    // The result belongs to the caller (SysFreeString). The name is the exported one.
    BSTR GetBSTRTranlation(CString defaultText, CString key, CString section);
    BSTR GetBSTRTranlation(CString defaultText, int key, int section);
    void SetTranslation(CString defaultText, CStringW translatedText, CString key, CString section);
    // 1 while the setting Environment/LanguageSetting is non-empty, read anew on each call.
    int IsTranslationMode();

    // Retitles the static texts and buttons among a dialog's descendants, under the section
    // of the dialog's id ("%d") or the given name; the dialog's own caption stays. 1 when the
    // walk ran, 0 outside translation mode.
    int TranslateDialog(CWnd* dialog, int dialogId);
    int TranslateDialog(CWnd* dialog, CString section);
    // Retitles one window from the cache, in every mode; a miss is recorded untranslated.
    void SendTranslationToWnd(HWND window, CString defaultText, CString key, CString section);
    void SendTranslationToWnd(HWND window, CString defaultText, int key, int section);

    // Message boxes under the section "STRINGTABLE", with no owner; the answer is dropped.
    void ShowMessageBox(int id);
    void ShowMessageBox(int id, unsigned int type);
    void ShowMessageBox(CString text, CString key, CStringW caption, unsigned int type);
    void ShowMessageBox(CString text, CString key, CString caption, unsigned int type);
    void ShowMessageBox(CString text, CString key, unsigned int type);
    void ShowMessageBox(CString text, int key, CString caption, unsigned int type);
    void ShowMessageBox(CString text, int key, unsigned int type);
    void ShowMessageBox(CString text, int key, CStringW caption, unsigned int type);

    // Shallow: both managers then share one cache.
    LocalizationManager& operator=(const LocalizationManager& other);

protected:
    LocalizationManager();
    ~LocalizationManager();

    // Writes the cache to the store, then destroys the cache.
    void SaveTranslations();

    // Section name -> (key name -> TranslationEntry*); null once saved.
    CMapStringToPtr* m_pTranslationCache;

private:
    BOOL HasTranslation(const CString& key, const CString& section);
    CStringW LookupTranslation(const CString& key, const CString& section);
    void CacheTranslation(const CString& defaultText, const CStringW& translatedText, const CString& key,
                          const CString& section);
    void ClearTranslationCache();
    void TranslateDialogRecursive(CWnd* parent, CString section);
    void TranslateChildren(HWND parent, const CString& section);
    void LoadTranslations();
    void StoreTranslations();

    // The cached entry of (section, key) with its translation trimmed in place, or null.
    // where, when given, receives the entry's slot of the index, or null.
    TranslationEntry* FindTrimmedEntry(const CString& key, const CString& section,
                                       kiv::localization::IndexSlot** where = nullptr);
    static void ReplaceEntry(kiv::localization::IndexSlot& slot, const CString& defaultText,
                             const CStringW& translatedText);
    // Slow paths: the maps walked, and the entry's place in them made known to the index.
    TranslationEntry* FindInMaps(const CString& key, const CString& section);
    void IndexKeyMap(const char* section, CMapStringToPtr* keys);
    void IndexEntry(const char* section, CMapStringToPtr* keys, const CString& key);
    bool IndexCovers() const;

    // The lookups' table over the cache above; shared by managers that share the cache.
    kiv::localization::TranslationIndex* m_pIndex;
};
