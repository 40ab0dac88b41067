// What the localization tests share: a fixture that gives each test its own settings file,
// store answers and store log and points the DLL search path at one arrangement of the
// sibling libraries; a view of the manager's cache; and a watcher of message boxes.
#pragma once

#include <KivMFC.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace localization_tests {

using Manager = ::LocalizationManager;

// A manager of the tests' own: it may construct, destroy and inspect one as a derived
// class of the library's may.
class TestManager : public Manager
{
public:
    TestManager() = default;
    ~TestManager() = default;
    using Manager::SaveTranslations;

    CMapStringToPtr*& Cache() { return m_pTranslationCache; }
    // The cache of any manager, reached through the member as a derived class may.
    static CMapStringToPtr* CacheOf(Manager* manager) { return manager->*(&TestManager::m_pTranslationCache); }
};

// The entry of (section, key) in a manager's cache, or null.
const TranslationEntry* CachedEntry(Manager* manager, const char* section, const char* key);
// Entries over all sections; sections; (section, key) in the cache's own order.
int CachedEntryCount(Manager* manager);
int CachedSectionCount(Manager* manager);
std::vector<std::pair<CString, CString>> CacheOrder(Manager* manager);

// One line of the recording store's log, built from its fields.
std::string LogLine(std::initializer_list<std::string> fields);

// Each test in a fresh state: no instance yet, its own files, no sibling library found
// until it picks an arrangement.
class LocalizationManager : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // Points the DLL search path at stores/<arrangement> (see the suite's CMakeLists.txt).
    void UseLibraries(const char* arrangement);
    // The recording store and the setting reader, with German known to the store as "de".
    void UseRecordingStore();
    // Writes the setting Environment/LanguageSetting, or the whole settings file.
    void WriteSetting(const char* value);
    void WriteSettings(const std::string& text);
    // The recording store's answers, lines of its control file (UTF-8).
    void WriteStore(const std::string& control);
    // The recording store's calls so far, one line each (UTF-8).
    std::vector<std::string> StoreLog();

    // The real store and the setting reader, with a store folder of the test's own,
    // store-files/<test>/ beside the program's folder, holding de.po; the setting names the
    // language by one of the names in the file's header.
    void UseRealStore(const std::string& languageFile);
    std::string LanguageFile();
    // Runs localization_host_run once with the real siblings (and a new text to ask for, when
    // given) and answers its exit code.
    DWORD RunHost(const std::string& newText = std::string());

    static bool IsLoaded(const char* library) { return ::GetModuleHandleA(library) != nullptr; }
    static long LoadedLibraries() { return AfxGetModuleState()->m_nLoadedLibraries; }

    std::string m_ini, m_control, m_log, m_storeFolder;
};

// What a message box showed: read from the real box when it is activated, then closed.
struct SeenBox
{
    std::wstring caption;
    std::wstring text;
    std::vector<int> buttons;  // control ids of the visible buttons, in Z order
    bool hasIcon = false;      // an icon static that holds an icon
    bool owned = false;
};

// Watches the calling thread for message boxes while it lives, and presses each box's
// first button.
class BoxWatcher
{
public:
    BoxWatcher();
    ~BoxWatcher();
    std::vector<SeenBox> boxes;

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);
    static BoxWatcher* s_current;
    HHOOK m_hook = nullptr;
    std::vector<HWND> m_seen;
};

}  // namespace localization_tests
