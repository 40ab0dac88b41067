// The manager's binding to its sibling libraries: the store and the setting reader are loaded
// by file name for one task (reading the records at start-up, writing back at Dispose, a
// preload) and released when it ends. Internal to the library.
#pragma once

#include <afxwin.h>

namespace kiv::localization {

class StoreSession
{
public:
    // Loads the store, then the setting reader, and names the language the setting asks for.
    StoreSession();
    // Releases the store, then the setting reader, unless the reader lacked its name: then
    // both stay loaded (kept: hosts rely on it).
    ~StoreSession();
    StoreSession(const StoreSession&) = delete;
    StoreSession& operator=(const StoreSession&) = delete;

    // Attributes
    // The store's id of the language of the setting; empty when there is none to work with.
    const CString& LanguageId() const { return m_id; }

    // Operations
    // The store's records, each four wide fields, until the table's first null slot.
    template <typename Visit> void ForEachRecord(Visit visit)
    {
        for (CStringW** record = Records(); record != nullptr && *record != nullptr; ++record)
            visit(static_cast<const CStringW*>(*record));
    }
    // One text against the store: inserted when the store lacks it, updated when the store's
    // translation differs, left alone when they are equal.
    void Save(const CString& section, const CString& key, const CString& defaultText, const CStringW& translatedText);

    // 1 while the setting "Environment"/"LanguageSetting" is non-empty, read anew.
    static int TranslationMode();

private:
    CStringW** Records();

    HINSTANCE m_store = nullptr;
    HINSTANCE m_util = nullptr;
    bool m_release = false;
    CString m_id;
};

}  // namespace kiv::localization
