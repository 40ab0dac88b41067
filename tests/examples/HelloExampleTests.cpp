// examples/hello, the smallest host, started from the build folder of its outside build: its
// dialog shows the German texts of lang/de.po, and a run leaves that file byte for byte as it
// was unless it asks for a text the file lacks.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "PixelProbe.h"
#include "Screenshot.h"
#include "resource.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr DWORD kWaitMs = 30000;

// A folder named by the environment, as Wine sees it: the Unix root is drive Z:.
std::string FolderFromEnvironment(const char* variable)
{
    const char* unixPath = std::getenv(variable);
    std::string folder = unixPath != nullptr ? unixPath : "";
    if (!folder.empty() && folder[0] == '/')
        folder = "Z:" + folder;
    for (char& c : folder)
        if (c == '/')
            c = '\\';
    return folder;
}

std::string ExampleFolder()
{
    return FolderFromEnvironment("KIV_HELLO_DIR");
}

std::string ReadBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

std::wstring Text(HWND hWnd)
{
    wchar_t text[512] = {};
    ::GetWindowTextW(hWnd, text, 512);
    return text;
}

std::wstring ClassName(HWND hWnd)
{
    wchar_t name[64] = {};
    ::GetClassNameW(hWnd, name, 64);
    return name;
}

// One run of hello.exe, started from its folder so that it finds kiv.ini and lang/ there.
class HelloRun
{
public:
    HelloRun(const std::string& folder, const char* switches)
    {
        std::string commandLine = "\"" + folder + "\\hello.exe\" " + switches;
        STARTUPINFOA startup = {};
        startup.cb = sizeof(startup);
        m_bStarted = ::CreateProcessA(nullptr, &commandLine[0], nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                                      &startup, &m_process) != FALSE;
    }
    ~HelloRun()
    {
        if (!m_bStarted)
            return;
        if (::WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT)
            ::TerminateProcess(m_process.hProcess, 99);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    HelloRun(const HelloRun&) = delete;
    HelloRun& operator=(const HelloRun&) = delete;

    bool Started() const { return m_bStarted; }

    // The hello dialog, once it is on the screen; null when it does not come.
    HWND WaitForDialog() const
    {
        return WaitForWindow([](HWND hWnd) { return ::GetDlgItem(hWnd, IDC_GREETING) != nullptr; });
    }
    // A message box: a dialog window without the hello dialog's controls.
    HWND WaitForMessageBox() const
    {
        return WaitForWindow([](HWND hWnd) { return ::GetDlgItem(hWnd, IDC_GREETING) == nullptr; });
    }

    // The exit code once the process has ended, or -1 when it does not end in time.
    long WaitForExit() const
    {
        DWORD code = 0;
        if (::WaitForSingleObject(m_process.hProcess, kWaitMs) != WAIT_OBJECT_0 ||
            !::GetExitCodeProcess(m_process.hProcess, &code))
            return -1;
        return (long)code;
    }

private:
    HWND WaitForWindow(const std::function<bool(HWND)>& matches) const
    {
        for (DWORD start = ::GetTickCount(); ::GetTickCount() - start < kWaitMs; ::Sleep(50))
        {
            Search search{m_process.dwProcessId, &matches, nullptr};
            ::EnumWindows(&HelloRun::Visit, (LPARAM)&search);
            if (search.found != nullptr)
                return search.found;
        }
        return nullptr;
    }

    struct Search
    {
        DWORD processId;
        const std::function<bool(HWND)>* matches;
        HWND found;
    };
    static BOOL CALLBACK Visit(HWND hWnd, LPARAM lParam)
    {
        Search* search = (Search*)lParam;
        DWORD processId = 0;
        ::GetWindowThreadProcessId(hWnd, &processId);
        if (processId != search->processId || !::IsWindowVisible(hWnd) || ClassName(hWnd) != L"#32770" ||
            !(*search->matches)(hWnd))
            return TRUE;
        search->found = hWnd;
        return FALSE;
    }

    PROCESS_INFORMATION m_process = {};
    bool m_bStarted = false;
};

// The text of the first static control with a text: a message box's message.
std::wstring MessageText(HWND hBox)
{
    for (HWND child = ::GetWindow(hBox, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        if (ClassName(child) == L"Static" && !Text(child).empty())
            return Text(child);
    return std::wstring();
}

// Where the screenshots of the example go: screenshots/ in its build folder.
std::wstring ScreenshotPath(const char* name)
{
    std::string folder = ExampleFolder() + "\\screenshots";
    ::CreateDirectoryA(folder.c_str(), nullptr);
    return std::wstring(CStringW((folder + "\\" + name).c_str()));
}

class HelloExample : public testing::Test
{
protected:
    void SetUp() override
    {
        m_folder = ExampleFolder();
        ASSERT_FALSE(m_folder.empty()) << "KIV_HELLO_DIR names the example's build folder";
        m_languageFile = m_folder + "\\lang\\de.po";
        m_original = ReadBytes(m_languageFile);
        ASSERT_FALSE(m_original.empty()) << m_languageFile;
        for (const char* language : {"el", "ja"})
            m_others.emplace_back(LanguageFile(language), ReadBytes(LanguageFile(language)));
        // The example reads the kiv.ini beside it, not one named for the test program.
        ::SetEnvironmentVariableA("KIV_INI", nullptr);
    }
    // The next test starts from the file the example ships, whatever this one did to it.
    void TearDown() override
    {
        if (!m_original.empty() && ReadBytes(m_languageFile) != m_original)
            WriteBytes(m_languageFile, m_original);
        for (const auto& [path, bytes] : m_others)
            if (ReadBytes(path) != bytes)
                WriteBytes(path, bytes);
        ::SetEnvironmentVariableA("KIV_INI", nullptr);
    }

    std::string LanguageFile(const char* language) const { return m_folder + "\\lang\\" + language + ".po"; }

    // Runs that follow read a settings file of the test's own that names this language.
    void ChooseLanguage(const char* name)
    {
        std::string ini = m_folder + "\\kiv-test.ini";
        WriteBytes(ini, std::string("[Environment]\r\nLanguageSetting=") + name +
                            "\r\n[Store]\r\nDirectory=" + m_folder + "\\lang\r\n");
        ::SetEnvironmentVariableA("KIV_INI", ini.c_str());
    }

    // One run that is closed with the given button; the exit code, or -1.
    long RunAndClose(const char* switches, int button)
    {
        HelloRun run(m_folder, switches);
        if (!run.Started())
            return -1;
        HWND hDialog = run.WaitForDialog();
        if (hDialog == nullptr)
            return -1;
        ::PostMessageW(hDialog, WM_COMMAND, button, 0);
        return run.WaitForExit();
    }

    std::string m_folder;
    std::string m_languageFile;
    std::string m_original;
    std::vector<std::pair<std::string, std::string>> m_others;
};

}  // namespace

TEST_F(HelloExample, ShowsTheGermanTextsOfItsLanguageFile)
{
    HelloRun run(m_folder, "");
    ASSERT_TRUE(run.Started());
    HWND hDialog = run.WaitForDialog();
    ASSERT_NE(nullptr, hDialog);
    EXPECT_EQ(L"Hallo KivMFC", Text(hDialog));
    EXPECT_EQ(L"Hallo! Dieser Dialog spricht die Sprache, die kiv.ini w\x00E4hlt.",
              Text(::GetDlgItem(hDialog, IDC_GREETING)));
    EXPECT_EQ(L"Auswahl &merken", Text(::GetDlgItem(hDialog, IDC_REMEMBER)));
    EXPECT_EQ(L"&Tipps beim Start zeigen", Text(::GetDlgItem(hDialog, IDC_SHOW_TIPS)));
    EXPECT_EQ(L"OK", Text(::GetDlgItem(hDialog, IDOK)));
    EXPECT_EQ(L"Abbrechen", Text(::GetDlgItem(hDialog, IDCANCEL)));
    EXPECT_EQ(L"Vorschaubilder", Text(::GetDlgItem(hDialog, IDC_PREVIEWS)));
    EXPECT_EQ(L"&Klein", Text(::GetDlgItem(hDialog, IDC_SMALL)));
    EXPECT_EQ(L"&Gro\x00DF", Text(::GetDlgItem(hDialog, IDC_LARGE)));
    EXPECT_EQ(nullptr, ::GetDlgItem(hDialog, IDC_NEWS));
    ::Sleep(300);  // the first paint of every control
    EXPECT_TRUE(kivtest::SaveWindowPng(hDialog, ScreenshotPath("hello-de.png")));

    ::PostMessageW(hDialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_EQ(0, run.WaitForExit());
    EXPECT_EQ(m_original, ReadBytes(m_languageFile));
}

TEST_F(HelloExample, TenRunsLeaveTheLanguageFileByteForByteTheSame)
{
    for (int i = 0; i < 10; ++i)
    {
        ASSERT_EQ(0, RunAndClose("", i % 2 == 0 ? IDOK : IDCANCEL)) << "run " << i;
        ASSERT_EQ(m_original, ReadBytes(m_languageFile)) << "after run " << i;
    }
}

TEST_F(HelloExample, ATextTheFileLacksIsShownInEnglishAndAddedOnceWithAnEmptyTranslation)
{
    const std::string added = "\nmsgctxt \"STRINGTABLE\\n102\"\n"
                              "msgid \"Printing arrives with the next version.\"\n"
                              "msgstr \"\"\n";
    {
        HelloRun run(m_folder, "/news");
        ASSERT_TRUE(run.Started());
        HWND hDialog = run.WaitForDialog();
        ASSERT_NE(nullptr, hDialog);
        EXPECT_EQ(L"Printing arrives with the next version.", Text(::GetDlgItem(hDialog, IDC_NEWS)));
        EXPECT_TRUE(::IsWindowVisible(::GetDlgItem(hDialog, IDC_NEWS)));
        EXPECT_EQ(L"Abbrechen", Text(::GetDlgItem(hDialog, IDCANCEL)));
        ::PostMessageW(hDialog, WM_COMMAND, IDOK, 0);
        ASSERT_EQ(0, run.WaitForExit());
    }
    EXPECT_EQ(m_original + added, ReadBytes(m_languageFile));
    ASSERT_EQ(0, RunAndClose("/news", IDOK));
    EXPECT_EQ(m_original + added, ReadBytes(m_languageFile));
}

TEST_F(HelloExample, MessageSwitchShowsTheGermanStringTableTextBeforeTheDialog)
{
    HelloRun run(m_folder, "/message");
    ASSERT_TRUE(run.Started());
    HWND hBox = run.WaitForMessageBox();
    ASSERT_NE(nullptr, hBox);
    EXPECT_EQ(L"Willkommen: Diese Meldung stammt aus der Stringtabelle.", MessageText(hBox));
    ::PostMessageW(hBox, WM_COMMAND, IDOK, 0);

    HWND hDialog = run.WaitForDialog();
    ASSERT_NE(nullptr, hDialog);
    EXPECT_EQ(L"Hallo KivMFC", Text(hDialog));
    ::PostMessageW(hDialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_EQ(0, run.WaitForExit());
    EXPECT_EQ(m_original, ReadBytes(m_languageFile));
}

namespace {

// The window's pixels as they are on the screen.
kivtest::PixelProbe ScreenPixels(HWND hWnd, RECT& rect)
{
    ::GetWindowRect(hWnd, &rect);
    kivtest::PixelProbe probe(rect.right - rect.left, rect.bottom - rect.top);
    HDC hScreen = ::GetDC(nullptr);
    ::BitBlt(probe.DC(), 0, 0, probe.Width(), probe.Height(), hScreen, rect.left, rect.top, SRCCOPY);
    ::ReleaseDC(nullptr, hScreen);
    return probe;
}

// Pixels of a button's caption, right of its check mark, that differ from the colour at the
// button's right end (where no caption reaches).
int CaptionInk(HWND hButton)
{
    RECT rect;
    kivtest::PixelProbe probe = ScreenPixels(hButton, rect);
    int height = probe.Height();
    COLORREF background = probe.Pixel(probe.Width() - 2, height / 2);
    int ink = 0;
    for (int y = 0; y < height; ++y)
        for (int x = height; x < probe.Width() * 2 / 3; ++x)
            ink += probe.Pixel(x, y) != background ? 1 : 0;
    return ink;
}

}  // namespace

TEST_F(HelloExample, ShowsGreekAndJapaneseCaptionsAsWideTextOnItsButtons)
{
    std::vector<int> inkPerLanguage;
    for (const char* language : {"Greek", "Japanese"})
    {
        ChooseLanguage(language);
        HelloRun run(m_folder, "");
        ASSERT_TRUE(run.Started());
        HWND hDialog = run.WaitForDialog();
        ASSERT_NE(nullptr, hDialog) << language;
        ::Sleep(300);  // the first paint of every control
        EXPECT_EQ(language[0] == 'G' ? L"\x0393\x03B5\x03B9\x03B1 \x03C3\x03BF\x03C5, KivMFC"
                                     : L"\x3053\x3093\x306B\x3061\x306F KivMFC",
                  Text(hDialog));
        for (int id : {IDC_REMEMBER, IDC_SHOW_TIPS, IDC_SMALL, IDC_LARGE})
            EXPECT_GT(CaptionInk(::GetDlgItem(hDialog, id)), 20) << language << " control " << id;
        inkPerLanguage.push_back(CaptionInk(::GetDlgItem(hDialog, IDC_REMEMBER)));
        std::string name = std::string("hello-") + (language[0] == 'G' ? "el" : "ja") + ".png";
        EXPECT_TRUE(kivtest::SaveWindowPng(hDialog, ScreenshotPath(name.c_str())));
        ::PostMessageW(hDialog, WM_COMMAND, IDCANCEL, 0);
        EXPECT_EQ(0, run.WaitForExit());
    }
    // Two scripts, two different captions on the same button.
    EXPECT_NE(inkPerLanguage[0], inkPerLanguage[1]);
    // Every text of both files is translated: the runs leave them as they were.
    for (const auto& [path, bytes] : m_others)
        EXPECT_EQ(bytes, ReadBytes(path)) << path;
}
