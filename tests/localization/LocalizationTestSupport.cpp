#include "LocalizationTestSupport.h"

#include <algorithm>

namespace localization_tests {

namespace {

std::string TempFile(const char* prefix)
{
    char dir[MAX_PATH], file[MAX_PATH];
    ::GetTempPathA(MAX_PATH, dir);
    ::GetTempFileNameA(dir, prefix, 0, file);
    return file;
}

void WriteBytes(const std::string& path, const std::string& bytes)
{
    HANDLE h = ::CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, h) << path;
    DWORD written = 0;
    ::WriteFile(h, bytes.data(), (DWORD)bytes.size(), &written, nullptr);
    ::CloseHandle(h);
}

std::string ReadBytes(const std::string& path)
{
    std::string bytes;
    HANDLE h = ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                             nullptr, OPEN_EXISTING, 0, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return bytes;
    char buffer[4096];
    DWORD n = 0;
    while (::ReadFile(h, buffer, sizeof(buffer), &n, nullptr) && n > 0)
        bytes.append(buffer, n);
    ::CloseHandle(h);
    return bytes;
}

// A folder beside the folder of the test program, with a trailing separator.
std::string BesideProgramFolder(const std::string& name)
{
    char exe[MAX_PATH];
    DWORD n = ::GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string dir(exe, n);
    dir = dir.substr(0, dir.rfind('\\'));
    return dir.substr(0, dir.rfind('\\') + 1) + name + "\\";
}

CMapStringToPtr* KeysOf(Manager* manager, const char* section)
{
    void* keys = nullptr;
    CMapStringToPtr* cache = TestManager::CacheOf(manager);
    return cache != nullptr && cache->Lookup(section, keys) ? static_cast<CMapStringToPtr*>(keys) : nullptr;
}

}  // namespace

const TranslationEntry* CachedEntry(Manager* manager, const char* section, const char* key)
{
    void* entry = nullptr;
    CMapStringToPtr* keys = KeysOf(manager, section);
    return keys != nullptr && keys->Lookup(key, entry) ? static_cast<TranslationEntry*>(entry) : nullptr;
}

std::vector<std::pair<CString, CString>> CacheOrder(Manager* manager)
{
    std::vector<std::pair<CString, CString>> order;
    CMapStringToPtr* cache = TestManager::CacheOf(manager);
    CString section, key;
    void* keys = nullptr;
    void* entry = nullptr;
    for (POSITION pos = cache->GetStartPosition(); pos != nullptr;)
    {
        cache->GetNextAssoc(pos, section, keys);
        auto* keyMap = static_cast<CMapStringToPtr*>(keys);
        for (POSITION pos2 = keyMap->GetStartPosition(); pos2 != nullptr;)
        {
            keyMap->GetNextAssoc(pos2, key, entry);
            order.emplace_back(section, key);
        }
    }
    return order;
}

int CachedEntryCount(Manager* manager)
{
    return (int)CacheOrder(manager).size();
}

int CachedSectionCount(Manager* manager)
{
    return (int)TestManager::CacheOf(manager)->GetCount();
}

std::string LogLine(std::initializer_list<std::string> fields)
{
    std::string line;
    for (const std::string& field : fields)
        line += (&field == fields.begin() ? "" : "\t") + field;
    return line;
}

void LocalizationManager::SetUp()
{
    // A fresh process per test gives a fresh instance; this keeps a whole-program run honest.
    Manager::m_SingletonInstance = nullptr;
    m_ini = TempFile("ini");
    m_control = TempFile("sto");
    m_log = TempFile("log");
    ::SetEnvironmentVariableA("KIV_INI", m_ini.c_str());
    ::SetEnvironmentVariableA("KIV_RECORDING_STORE", m_control.c_str());
    ::SetEnvironmentVariableA("KIV_RECORDING_STORE_LOG", m_log.c_str());
    UseLibraries("none");
    WriteSetting("");
}

void LocalizationManager::TearDown()
{
    ::SetDllDirectoryA(nullptr);
    for (const char* name : {"KIV_INI", "KIV_RECORDING_STORE", "KIV_RECORDING_STORE_LOG"})
        ::SetEnvironmentVariableA(name, nullptr);
    for (const std::string& path : {m_ini, m_control, m_log})
        ::DeleteFileA(path.c_str());
}

void LocalizationManager::UseLibraries(const char* arrangement)
{
    std::string dir = BesideProgramFolder("stores") + arrangement;
    ASSERT_NE(INVALID_FILE_ATTRIBUTES, ::GetFileAttributesA(dir.c_str())) << dir;
    ASSERT_TRUE(::SetDllDirectoryA(dir.c_str()));
}

void LocalizationManager::UseRecordingStore()
{
    UseLibraries("recording");
    WriteStore("language\tGerman\tde\n");
}

void LocalizationManager::WriteSetting(const char* value)
{
    WriteSettings(std::string("[Environment]\r\nLanguageSetting=") + value + "\r\n");
}

void LocalizationManager::WriteSettings(const std::string& text)
{
    WriteBytes(m_ini, text);
}

void LocalizationManager::WriteStore(const std::string& control)
{
    WriteBytes(m_control, control);
}

DWORD LocalizationManager::RunHost(const std::string& newText)
{
    char exe[MAX_PATH];
    DWORD n = ::GetModuleFileNameA(nullptr, exe, MAX_PATH);
    std::string program(exe, n);
    program = program.substr(0, program.rfind('\\') + 1) + "localization_host_run.exe";
    std::string libraries = BesideProgramFolder("stores") + "real";
    std::string command = "\"" + program + "\" \"" + libraries + "\"";
    if (!newText.empty())
        command += " \"" + newText + "\"";
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessA(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &process))
        return (DWORD)-1;
    ::WaitForSingleObject(process.hProcess, 60000);
    DWORD code = (DWORD)-1;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

void LocalizationManager::UseRealStore(const std::string& languageFile)
{
    UseLibraries("real");
    std::string files = BesideProgramFolder("store-files");
    ::CreateDirectoryA(files.c_str(), nullptr);
    m_storeFolder = files + testing::UnitTest::GetInstance()->current_test_info()->name() + "\\";
    ::CreateDirectoryA(m_storeFolder.c_str(), nullptr);
    WriteBytes(m_storeFolder + "de.po", languageFile);
    WriteSettings("[Environment]\r\nLanguageSetting=Deutsch\r\n[Store]\r\nDirectory=" + m_storeFolder + "\r\n");
}

std::string LocalizationManager::LanguageFile()
{
    return ReadBytes(m_storeFolder + "de.po");
}

std::vector<std::string> LocalizationManager::StoreLog()
{
    std::vector<std::string> lines;
    std::string bytes = ReadBytes(m_log);
    for (size_t start = 0; start < bytes.size();)
    {
        size_t end = bytes.find('\n', start);
        lines.push_back(bytes.substr(start, end - start));
        start = end == std::string::npos ? bytes.size() : end + 1;
    }
    return lines;
}

BoxWatcher* BoxWatcher::s_current = nullptr;

BoxWatcher::BoxWatcher()
{
    s_current = this;
    m_hook = ::SetWindowsHookExW(WH_CBT, Hook, nullptr, ::GetCurrentThreadId());
}

BoxWatcher::~BoxWatcher()
{
    ::UnhookWindowsHookEx(m_hook);
    s_current = nullptr;
}

namespace {

std::wstring TextOf(HWND window)
{
    wchar_t text[1024] = {};
    ::GetWindowTextW(window, text, 1024);
    return text;
}

BOOL CALLBACK ReadChild(HWND child, LPARAM lParam)
{
    auto* box = reinterpret_cast<SeenBox*>(lParam);
    char cls[64] = {};
    ::GetClassNameA(child, cls, sizeof(cls));
    LONG style = ::GetWindowLongW(child, GWL_STYLE);
    if ((style & WS_VISIBLE) == 0)
        return TRUE;
    if (strcmp(cls, "Button") == 0)
        box->buttons.push_back(::GetDlgCtrlID(child));
    else if (strcmp(cls, "Static") == 0 && (style & SS_TYPEMASK) == SS_ICON)
        box->hasIcon |= ::SendMessageW(child, STM_GETICON, 0, 0) != 0;
    else if (strcmp(cls, "Static") == 0)
        box->text += TextOf(child);
    return TRUE;
}

}  // namespace

LRESULT CALLBACK BoxWatcher::Hook(int code, WPARAM wParam, LPARAM lParam)
{
    HWND window = reinterpret_cast<HWND>(wParam);
    char cls[64] = {};
    if (code == HCBT_ACTIVATE && s_current != nullptr && ::GetClassNameA(window, cls, sizeof(cls)) &&
        strcmp(cls, "#32770") == 0 &&
        std::find(s_current->m_seen.begin(), s_current->m_seen.end(), window) == s_current->m_seen.end())
    {
        s_current->m_seen.push_back(window);
        SeenBox box;
        box.caption = TextOf(window);
        box.owned = ::GetWindow(window, GW_OWNER) != nullptr;
        ::EnumChildWindows(window, ReadChild, reinterpret_cast<LPARAM>(&box));
        if (!box.buttons.empty())
            ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(box.buttons[0], BN_CLICKED),
                           reinterpret_cast<LPARAM>(::GetDlgItem(window, box.buttons[0])));
        s_current->boxes.push_back(box);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace localization_tests
