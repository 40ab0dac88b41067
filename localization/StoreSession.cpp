#include "StoreSession.h"

#include "KivSiblings.h"

using namespace kiv::siblings;

namespace kiv::localization {

namespace {

template <typename Fn> Fn Bind(HINSTANCE library, const char* exportName)
{
    return reinterpret_cast<Fn>(::GetProcAddress(library, exportName));
}

// The folder of a module with its last backslash, or empty when its name does not fit.
CString FolderOf(HMODULE module)
{
    char path[MAX_PATH * 2] = {};
    DWORD length = ::GetModuleFileNameA(module, path, sizeof(path));
    if (length == 0 || length >= sizeof(path))
        return CString();
    CString folder(path, (int)length);
    return folder.Left(folder.ReverseFind('\\') + 1);
}

// A sibling by its file name, from the program's folder, this library's folder, or the DLL
// folder the process set for itself, in that order: a DLL of that name in the current folder
// or on PATH is anyone's. One already in the process is that one.
HINSTANCE LoadSibling(const char* fileName)
{
    if (::GetModuleHandleA(fileName) != nullptr)
        return AfxLoadLibrary(fileName);
    HMODULE self = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCSTR>(&FolderOf), &self);
    CString folders[3] = {FolderOf(nullptr), FolderOf(self)};
    char dllDirectory[MAX_PATH * 2] = {};
    DWORD length = ::GetDllDirectoryA(sizeof(dllDirectory), dllDirectory);
    if (length > 0 && length < sizeof(dllDirectory))
    {
        folders[2] = CString(dllDirectory, (int)length);
        if (folders[2].Right(1) != "\\")
            folders[2] += '\\';
    }
    for (const CString& folder : folders)
    {
        if (folder.IsEmpty())
            continue;
        CString path = folder + fileName;
        DWORD attributes = ::GetFileAttributesA(path);
        if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            return AfxLoadLibrary(path);
    }
    return nullptr;
}

CString ReadLanguageSetting(IniReaderFn read)
{
    return read("Environment", "LanguageSetting", "");
}

}  // namespace

StoreSession::StoreSession()
{
    m_store = LoadSibling(kStoreLibrary);
    m_util = LoadSibling(kUtilLibrary);
    if (m_store == nullptr || m_util == nullptr)
    {
        AfxFreeLibrary(m_store);
        AfxFreeLibrary(m_util);
        m_store = m_util = nullptr;
        return;
    }
    auto read = Bind<IniReaderFn>(m_util, kIniReaderExport);
    if (read == nullptr)
        return;  // kept: hosts rely on both libraries staying loaded on this path
    m_release = true;
    CString setting = ReadLanguageSetting(read);
    if (setting.IsEmpty())
        return;
    // A store that lacks one of its names answers as a store without that language, rather
    // than being called through a null pointer.
    auto getId = Bind<GetLanguageIDFn>(m_store, kGetLanguageIDExport);
    if (getId != nullptr)
        m_id = getId(setting);
}

StoreSession::~StoreSession()
{
    if (!m_release)
        return;
    AfxFreeLibrary(m_store);
    AfxFreeLibrary(m_util);
}

CStringW** StoreSession::Records()
{
    if (m_id.IsEmpty())
        return nullptr;
    auto getStrings = Bind<GetLanguageStringsFn>(m_store, kGetLanguageStringsExport);
    return getStrings != nullptr ? getStrings(m_id) : nullptr;
}

void StoreSession::Save(const CString& section, const CString& key, const CString& defaultText,
                        const CStringW& translatedText)
{
    if (m_id.IsEmpty())
        return;
    // Each name is looked up anew for every text, as callers of the store have always done.
    auto getString = Bind<GetLanguageStringFn>(m_store, kGetLanguageStringExport);
    if (getString == nullptr)
        return;
    CStringW stored;
    if (getString(m_id, section, key, &stored) != 0)
    {
        auto insert = Bind<InsertLanguageStringFn>(m_store, kInsertLanguageStringExport);
        if (insert != nullptr)
            insert(defaultText, translatedText, m_id, section, key);
    }
    else if (stored != translatedText)
    {
        auto update = Bind<UpdateLanguageStringFn>(m_store, kUpdateLanguageStringExport);
        if (update != nullptr)
            update(translatedText, m_id, section, key);
    }
}

int StoreSession::TranslationMode()
{
    HINSTANCE util = LoadSibling(kUtilLibrary);
    int mode = 0;
    if (util != nullptr)
    {
        auto read = Bind<IniReaderFn>(util, kIniReaderExport);
        if (read == nullptr)
            return 0;  // kept: hosts rely on the library staying loaded on this path
        mode = ReadLanguageSetting(read).IsEmpty() ? 0 : 1;
    }
    AfxFreeLibrary(util);
    return mode;
}

}  // namespace kiv::localization
