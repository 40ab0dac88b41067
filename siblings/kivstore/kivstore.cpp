// The language-string store's exported functions: arguments checked and converted to UTF-8,
// then handed to the one store of the loaded library.
#include "KivStore.h"

#include "KivRuntimeRelease.h"

#include "KivIni.h"
#include "LanguageStore.h"
#include "TextConversion.h"

#include <type_traits>

namespace {

SRWLOCK g_lock = SRWLOCK_INIT;
LanguageStore* g_store = nullptr;  // made on first use, written and freed when the library goes

// "Store"/"Directory", relative to the program's folder unless absolute; "lang" when unset.
std::string StoreFolder()
{
    CString folder = KivReadIniString("Store", "Directory", "");
    folder.Trim();
    if (folder.IsEmpty())
        folder = "lang";
    bool absolute = folder[0] == '\\' || folder[0] == '/' || (folder.GetLength() > 1 && folder[1] == ':');
    if (!absolute)
    {
        char exe[MAX_PATH * 2] = {};
        DWORD length = ::GetModuleFileNameA(nullptr, exe, sizeof(exe));
        CString path(exe, (int)length);
        folder = path.Left(path.ReverseFind('\\') + 1) + folder;
    }
    if (folder.Right(1) != "\\" && folder.Right(1) != "/")
        folder += '\\';
    return std::string(folder.GetString());
}

// Runs one call under the store's lock; nothing thrown inside leaves the library.
template <typename Result, typename Call> Result Guarded(Result failure, Call call)
{
    ::AcquireSRWLockExclusive(&g_lock);
    Result result = failure;
    try
    {
        if (!g_store)
            g_store = new LanguageStore(StoreFolder());
        result = call(*g_store);
    }
    catch (...)
    {}
    ::ReleaseSRWLockExclusive(&g_lock);
    return result;
}

// The context of (section, key) as ANSI arguments, or false when it cannot be stored.
bool ContextOf(const char* section, const char* key, std::string& context)
{
    return section && key && kiv::rules::MakeContext(AnsiToUtf8(section), AnsiToUtf8(key), context);
}

}  // namespace

CString GetLanguageID(const char* languageSetting)
{
    return Guarded(CString(), [&](LanguageStore& store) { return store.LanguageId(AnsiToWide(languageSetting)); });
}

CStringW** GetLanguageStrings(const char* languageId)
{
    return Guarded<CStringW**>(nullptr, [&](LanguageStore& store) { return store.Strings(languageId); });
}

int GetLanguageString(const char* languageId, const char* section, const char* key, CStringW* text)
{
    return Guarded((int)kStoreRefusedText, [&](LanguageStore& store) {
        std::string context;
        if (!store.Knows(languageId))
            return (int)kStoreUnknownLanguage;
        if (!text || !ContextOf(section, key, context))
            return (int)kStoreRefusedText;
        return store.Get(languageId, context, text);
    });
}

int InsertLanguageString(const char* defaultText, const wchar_t* translatedText, const char* languageId,
                         const char* section, const char* key)
{
    return Guarded((int)kStoreRefusedText, [&](LanguageStore& store) {
        std::string context, msgid = AnsiToUtf8(defaultText), msgstr;
        if (!store.Knows(languageId))
            return (int)kStoreUnknownLanguage;
        if (!ContextOf(section, key, context) || !kiv::rules::IsStorableText(msgid) ||
            !WideToUtf8(translatedText, msgstr) || !kiv::rules::IsStorableText(msgstr))
            return (int)kStoreRefusedText;
        return store.Insert(languageId, context, msgid, msgstr);
    });
}

int UpdateLanguageString(const wchar_t* translatedText, const char* languageId, const char* section, const char* key)
{
    return Guarded((int)kStoreRefusedText, [&](LanguageStore& store) {
        std::string context, msgstr;
        if (!store.Knows(languageId))
            return (int)kStoreUnknownLanguage;
        if (!ContextOf(section, key, context) || !WideToUtf8(translatedText, msgstr) ||
            !kiv::rules::IsStorableText(msgstr))
            return (int)kStoreRefusedText;
        return store.Update(languageId, context, msgstr);
    });
}

// Each export has the type that the contract gives its callers.
static_assert(std::is_same_v<decltype(&GetLanguageID), kiv::siblings::GetLanguageIDFn>);
static_assert(std::is_same_v<decltype(&GetLanguageStrings), kiv::siblings::GetLanguageStringsFn>);
static_assert(std::is_same_v<decltype(&GetLanguageString), kiv::siblings::GetLanguageStringFn>);
static_assert(std::is_same_v<decltype(&InsertLanguageString), kiv::siblings::InsertLanguageStringFn>);
static_assert(std::is_same_v<decltype(&UpdateLanguageString), kiv::siblings::UpdateLanguageStringFn>);

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved)
{
    if (reason == DLL_PROCESS_ATTACH)
        ::DisableThreadLibraryCalls(instance);
    if (reason != DLL_PROCESS_DETACH || !g_store)
    {
        kiv::siblings::ReleaseRuntimeOnUnload(reason, reserved);
        return TRUE;
    }
    try
    {
        g_store->Flush();
    }
    catch (...)
    {}
    // At process exit the memory goes with the process, and other threads may have left the heap locked.
    if (!reserved)
    {
        delete g_store;
        g_store = nullptr;
    }
    kiv::siblings::ReleaseRuntimeOnUnload(reason, reserved);
    return TRUE;
}
