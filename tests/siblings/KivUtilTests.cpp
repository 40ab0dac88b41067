// The setting reader, loaded by name and called through its decorated export.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "KivIni.h"

namespace {

const char kReaderName[] =
    "?kivGetIniString@@YA?AV?$CStringT@DV?$StrTraitMFC_DLL@DV?$ChTraitsCRT@D@ATL@@@@@ATL@@QEBD00@Z";
typedef CString (*IniReader)(const char*, const char*, const char*);

// A settings file of the test's own, named by KIV_INI while the test runs.
class KivGetIniString : public testing::Test
{
protected:
    void SetUp() override
    {
        char dir[MAX_PATH], file[MAX_PATH];
        ::GetTempPathA(MAX_PATH, dir);
        ::GetTempFileNameA(dir, "kiv", 0, file);
        m_path = file;
        ::SetEnvironmentVariableA("KIV_INI", m_path);
        m_lib = ::LoadLibraryA("kivutil64.dll");
        ASSERT_NE(nullptr, m_lib);
        m_read = reinterpret_cast<IniReader>(::GetProcAddress(m_lib, kReaderName));
        ASSERT_NE(nullptr, m_read);
    }
    void TearDown() override
    {
        ::SetEnvironmentVariableA("KIV_INI", nullptr);
        ::DeleteFileA(m_path);
        if (m_lib)
            ::FreeLibrary(m_lib);
    }
    void Write(const char* text)
    {
        HANDLE h = ::CreateFileA(m_path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(h, text, (DWORD)strlen(text), &written, nullptr);
        ::CloseHandle(h);
    }

    CString m_path;
    HMODULE m_lib = nullptr;
    IniReader m_read = nullptr;
};

}  // namespace

TEST_F(KivGetIniString, ReadsTheValueOfTheNamedFile)
{
    Write("[Environment]\r\nLanguageSetting=German\r\n");
    EXPECT_STREQ("German", m_read("Environment", "LanguageSetting", ""));
}

TEST_F(KivGetIniString, MissingKeySectionOrFileGivesTheDefault)
{
    Write("[Environment]\r\nOther=1\r\n");
    EXPECT_STREQ("dflt", m_read("Environment", "LanguageSetting", "dflt"));
    EXPECT_STREQ("dflt", m_read("Nowhere", "LanguageSetting", "dflt"));
    ::DeleteFileA(m_path);
    EXPECT_STREQ("", m_read("Environment", "LanguageSetting", ""));
}

TEST_F(KivGetIniString, EmptyValueIsEmpty)
{
    Write("[Environment]\r\nLanguageSetting=\r\n");
    EXPECT_STREQ("", m_read("Environment", "LanguageSetting", "dflt"));
}

TEST_F(KivGetIniString, AChangeOfTheFileShowsAtTheNextCall)
{
    Write("[Environment]\r\nLanguageSetting=de\r\n");
    EXPECT_STREQ("de", m_read("Environment", "LanguageSetting", ""));
    Write("[Environment]\r\nLanguageSetting=\r\n");
    EXPECT_STREQ("", m_read("Environment", "LanguageSetting", ""));
}

TEST_F(KivGetIniString, SettingsFileThatIsAFolderGivesTheDefault)
{
    ::DeleteFileA(m_path);
    ASSERT_TRUE(::CreateDirectoryA(m_path, nullptr));
    EXPECT_STREQ("dflt", m_read("Environment", "LanguageSetting", "dflt"));
    EXPECT_STREQ("", m_read("Environment", "LanguageSetting", ""));
    ::RemoveDirectoryA(m_path);
}

TEST_F(KivGetIniString, NullSectionOrKeyGivesTheDefaultNotAList)
{
    Write("[Environment]\r\nLanguageSetting=German\r\n");
    EXPECT_STREQ("", m_read(nullptr, "LanguageSetting", nullptr));
    EXPECT_STREQ("dflt", m_read("Environment", nullptr, "dflt"));
}

TEST_F(KivGetIniString, LongValuesAreNotCut)
{
    CString value('x', 3000);
    Write("[S]\r\nK=" + value + "\r\n");
    EXPECT_EQ(value, m_read("S", "K", ""));
}

TEST(KivIniPath, WithoutTheVariableTheFileIsBesideTheExecutable)
{
    ::SetEnvironmentVariableA("KIV_INI", nullptr);
    char exe[MAX_PATH];
    ::GetModuleFileNameA(nullptr, exe, MAX_PATH);
    CString expected(exe);
    expected = expected.Left(expected.ReverseFind('\\') + 1) + "kiv.ini";
    EXPECT_EQ(expected, KivIniPath());
}
