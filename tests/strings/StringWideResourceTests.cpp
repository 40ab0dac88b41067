// strStringW(id): the resource string, translated through the LocalizationManager while
// the setting Environment/LanguageSetting is non-empty.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include "strings_tests_res.h"

namespace {

// A settings file of the test's own, named by KIV_INI while it lives; its store folder is
// an empty one, so the manager's cache holds only what the tests put there.
class TranslationSetting
{
public:
    explicit TranslationSetting(bool on)
    {
        char dir[MAX_PATH], file[MAX_PATH];
        ::GetTempPathA(MAX_PATH, dir);
        ::GetTempFileNameA(dir, "kiv", 0, file);
        m_path = file;
        m_store = m_path + ".store";
        ::CreateDirectoryA(m_store, nullptr);
        CString text;
        text.Format("[Environment]\r\nLanguageSetting=%s\r\n[Store]\r\nDirectory=%s\r\n", on ? "de" : "",
                    m_store.GetString());
        HANDLE h = ::CreateFileA(m_path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(h, text.GetString(), (DWORD)text.GetLength(), &written, nullptr);
        ::CloseHandle(h);
        ::SetEnvironmentVariableA("KIV_INI", m_path);
    }
    ~TranslationSetting()
    {
        ::SetEnvironmentVariableA("KIV_INI", nullptr);
        ::DeleteFileA(m_path);
        ::RemoveDirectoryA(m_store);
    }

private:
    CString m_path;
    CString m_store;
};

CString Key(unsigned int id)
{
    CString key;
    key.Format("%d", id);
    return key;
}

}  // namespace

TEST(strStringW, ResourceStringOutsideTranslationModeIsWidened)
{
    TranslationSetting setting(false);
    ASSERT_EQ(0, LocalizationManager::Get()->IsTranslationMode());
    LocalizationManager::Get()->SetTranslation("Hello, resources", L"Hallo", Key(IDS_STR_HELLO), "STRINGTABLE");
    EXPECT_STREQ(L"Hello, resources", strStringW(IDS_STR_HELLO));
    EXPECT_STREQ(L"Gr\u00f6\u00dfe", strStringW(IDS_STR_UMLAUT));
    EXPECT_STREQ(L"", strStringW(IDS_STR_MISSING));
}

TEST(strStringW, ResourceStringWithoutStoredTranslationIsWidened)
{
    TranslationSetting setting(true);
    ASSERT_EQ(1, LocalizationManager::Get()->IsTranslationMode());
    EXPECT_STREQ(L"Hello, resources", strStringW(IDS_STR_HELLO));
    EXPECT_STREQ(L"Gr\u00f6\u00dfe", strStringW(IDS_STR_UMLAUT));
    EXPECT_STREQ(L"", strStringW(IDS_STR_MISSING));
    EXPECT_STREQ(L"", strStringW(IDS_STR_EMPTY));
}

TEST(strStringW, ResourceStringWithStoredTranslationIsTheTranslation)
{
    TranslationSetting setting(true);
    LocalizationManager::Get()->SetTranslation("Hello, resources", L"Hallo, \u20ac 100%s", Key(IDS_STR_HELLO),
                                               "STRINGTABLE");
    strStringW s(IDS_STR_HELLO);
    EXPECT_STREQ(L"Hallo, \u20ac 100%s", s);
    EXPECT_EQ(14, s.GetCharLength());
}

TEST(strStringW, TranslationWinsEvenOverAnEmptyResourceString)
{
    TranslationSetting setting(true);
    LocalizationManager::Get()->SetTranslation("", L"Nur \u00fcbersetzt", Key(IDS_STR_EMPTY), "STRINGTABLE");
    LocalizationManager::Get()->SetTranslation("", L"Ohne Ressource", Key(IDS_STR_MISSING), "STRINGTABLE");
    EXPECT_STREQ(L"Nur \u00fcbersetzt", strStringW(IDS_STR_EMPTY));
    EXPECT_STREQ(L"Ohne Ressource", strStringW(IDS_STR_MISSING));
}

TEST(strStringW, TranslationIsLookedUpUnderStringTableAndTheDecimalIdentifier)
{
    TranslationSetting setting(true);
    LocalizationManager::Get()->SetTranslation("Gr\xf6\xdf"
                                               "e",
                                               L"Size", Key(IDS_STR_UMLAUT), "DIALOG");
    LocalizationManager::Get()->SetTranslation("Gr\xf6\xdf"
                                               "e",
                                               L"Size", "0xCA", "STRINGTABLE");
    EXPECT_STREQ(L"Gr\u00f6\u00dfe", strStringW(IDS_STR_UMLAUT));
    LocalizationManager::Get()->SetTranslation("Gr\xf6\xdf"
                                               "e",
                                               L"Gr\u00f6\u00dfe (de)", "202", "STRINGTABLE");
    EXPECT_STREQ(L"Gr\u00f6\u00dfe (de)", strStringW(IDS_STR_UMLAUT));
}

TEST(strStringW, TranslationModeIsAskedAtEachConstruction)
{
    LocalizationManager::Get()->SetTranslation("Hello, resources", L"Hallo", Key(IDS_STR_HELLO), "STRINGTABLE");
    {
        TranslationSetting setting(true);
        EXPECT_STREQ(L"Hallo", strStringW(IDS_STR_HELLO));
    }
    {
        TranslationSetting setting(false);
        EXPECT_STREQ(L"Hello, resources", strStringW(IDS_STR_HELLO));
    }
}

// The narrow resource constructor never translates.
TEST(strString, ResourceConstructorIgnoresTranslationMode)
{
    TranslationSetting setting(true);
    LocalizationManager::Get()->SetTranslation("Hello, resources", L"Hallo", Key(IDS_STR_HELLO), "STRINGTABLE");
    EXPECT_STREQ(L"Hallo", strStringW(IDS_STR_HELLO));
    EXPECT_STREQ("Hello, resources", strString(IDS_STR_HELLO));
}
