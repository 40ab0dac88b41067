// Where the manager loads its siblings from: the program's folder, the library's folder or the
// DLL folder the process chose, never a library of the same name in the current folder or on
// PATH. Each case runs a host of its own, with decoys that leave a file when loaded.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include <string>

namespace {

std::string WinePath(const std::string& unixPath)
{
    std::string path = "Z:" + unixPath;
    for (char& c : path)
        if (c == '/')
            c = '\\';
    return path;
}

const std::string kSearch = WinePath(KIV_SEARCH_DIR);

bool Exists(const std::string& path)
{
    return ::GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// An environment variable set for the span of a test, then put back.
class ScopedVariable
{
public:
    ScopedVariable(const char* name, const std::string& value) : m_name(name)
    {
        char old[32768] = {};
        DWORD length = ::GetEnvironmentVariableA(name, old, sizeof(old));
        m_had = length > 0 && length < sizeof(old);
        m_old = old;
        ::SetEnvironmentVariableA(name, value.c_str());
    }
    ~ScopedVariable() { ::SetEnvironmentVariableA(m_name, m_had ? m_old.c_str() : nullptr); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const char* m_name;
    std::string m_old;
    bool m_had = false;
};

class SiblingSearch : public testing::Test
{
protected:
    void SetUp() override
    {
        // A setting that names a language: a host that found the setting reader answers 1.
        m_ini = kSearch + "\\kiv.ini";
        HANDLE file = ::CreateFileA(m_ini.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, file);
        const char text[] = "[Environment]\r\nLanguageSetting=German\r\n";
        DWORD written = 0;
        ::WriteFile(file, text, sizeof(text) - 1, &written, nullptr);
        ::CloseHandle(file);
        RemoveMarkers();
    }
    void TearDown() override
    {
        RemoveMarkers();
        ::DeleteFileA(m_ini.c_str());
    }
    static void RemoveMarkers()
    {
        for (const char* folder : {"\\current", "", "\\program", "\\bare", "\\library"})
            ::DeleteFileA((kSearch + folder + "\\decoy-loaded").c_str());
    }
    // The host's exit code: 1 in translation mode, 0 without the setting reader.
    int RunHost(const std::string& program, const std::string& currentFolder, const std::string& pathPrefix)
    {
        char path[32768] = {};
        ::GetEnvironmentVariableA("PATH", path, sizeof(path));
        ScopedVariable ini("KIV_INI", m_ini);
        ScopedVariable searchPath("PATH", pathPrefix.empty() ? std::string(path) : pathPrefix + ";" + path);
        std::string commandLine = "\"" + program + "\"";
        STARTUPINFOA startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION process = {};
        if (!::CreateProcessA(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                              currentFolder.c_str(), &startup, &process))
            return -1;
        DWORD code = 99;
        if (::WaitForSingleObject(process.hProcess, 60000) == WAIT_OBJECT_0)
            ::GetExitCodeProcess(process.hProcess, &code);
        else
            ::TerminateProcess(process.hProcess, 98);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
        return (int)code;
    }
    std::string m_ini;
};

}  // namespace

TEST_F(SiblingSearch, DecoyLeavesItsFileWhenLoaded)
{
    char old[MAX_PATH * 2] = {};
    ::GetCurrentDirectoryA(sizeof(old), old);
    ASSERT_TRUE(::SetCurrentDirectoryA(kSearch.c_str()));
    HMODULE decoy = ::LoadLibraryA((kSearch + "\\current\\kivutil64.dll").c_str());
    ::SetCurrentDirectoryA(old);
    ASSERT_NE(nullptr, decoy);
    ::FreeLibrary(decoy);
    EXPECT_TRUE(Exists(kSearch + "\\decoy-loaded"));
}

TEST_F(SiblingSearch, LocalizationManagerDoesNotLoadASiblingFromTheCurrentFolder)
{
    EXPECT_EQ(0, RunHost(kSearch + "\\program\\sibling_search_host.exe", kSearch + "\\current", ""));
    EXPECT_FALSE(Exists(kSearch + "\\current\\decoy-loaded"));
}

TEST_F(SiblingSearch, LocalizationManagerDoesNotLoadASiblingFromPath)
{
    EXPECT_EQ(0, RunHost(kSearch + "\\program\\sibling_search_host.exe", kSearch, kSearch + "\\current"));
    EXPECT_FALSE(Exists(kSearch + "\\decoy-loaded"));
}

TEST_F(SiblingSearch, LocalizationManagerLoadsTheSiblingBesideTheLibraryAndNotTheDecoy)
{
    // The library comes from PATH; its setting reader beside it, not the one in the current folder.
    EXPECT_EQ(1, RunHost(kSearch + "\\bare\\sibling_search_host.exe", kSearch + "\\current",
                         kSearch + "\\library;" + kSearch + "\\current"));
    EXPECT_FALSE(Exists(kSearch + "\\current\\decoy-loaded"));
}
