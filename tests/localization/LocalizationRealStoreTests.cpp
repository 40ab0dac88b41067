// The manager with the real store: a host in translation mode asks for texts and sets
// translations, disposes, and the language's PO file then holds them. Each test keeps its
// store in store-files/<test>/ beside the test program's folder; once they have run, msgfmt -c
// checks every file they left.
#include "LocalizationTestSupport.h"
#include "PoText.h"

namespace localization_tests {

namespace {

const auto& kHeader = kiv_tests::kPoHeader;
const auto Entry = kiv_tests::PoEntry;

}  // namespace

TEST_F(LocalizationManager, HostInTranslationModeLeavesItsTextsInTheLanguageFile)
{
    UseRealStore(kHeader);
    Manager* m = Manager::Get();
    EXPECT_EQ(1, m->IsTranslationMode());
    m->SetTranslation("Cancel", L"Abbrechen", "2", "100");
    m->SetTranslation("Language", L"\x65E5\x672C\x8A9E", "3", "100");
    EXPECT_STREQ(L"Abbrechen", m->GetWideTranslation("Cancel", 2, 100));
    EXPECT_STREQ("OK", m->GetTranslation("OK", 1, 100));
    EXPECT_STREQ(L"Say \"hi\" \\ now", m->GetWideTranslation("Say \"hi\" \\ now", "Title", "Main"));
    BSTR text = m->GetBSTRTranlation("Open", 7, 0);
    ::SysFreeString(text);
    Manager::Dispose();
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));

    std::string file = LanguageFile();
    EXPECT_EQ(0u, file.find(kHeader)) << file;
    for (const std::string& entry :
         {Entry("100", "1", "OK", ""), Entry("100", "2", "Cancel", "Abbrechen"),
          Entry("100", "3", "Language", "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E"),
          Entry("Main", "Title", "Say \\\"hi\\\" \\\\ now", ""), Entry("0", "7", "Open", "")})
        EXPECT_NE(std::string::npos, file.find(entry)) << entry << "\nin\n" << file;
}

TEST_F(LocalizationManager, TranslatorsEntriesThatTheHostDoesNotAskForAreKept)
{
    UseRealStore(std::string(kHeader) + Entry("300", "5", "Close",
                                              "Schlie\xC3\x9F"
                                              "en"));
    Manager* m = Manager::Get();
    m->GetTranslation("OK", 1, 100);
    Manager::Dispose();
    std::string file = LanguageFile();
    EXPECT_NE(std::string::npos, file.find(Entry("300", "5", "Close",
                                                 "Schlie\xC3\x9F"
                                                 "en")))
        << file;
    EXPECT_NE(std::string::npos, file.find(Entry("100", "1", "OK", ""))) << file;
}

// The preload keeps one character per field, so a text the store translates is a miss for the
// manager and goes back empty at disposal; the store keeps the translator's text.
TEST_F(LocalizationManager, AskedTextsKeepTheirStoredTranslations)
{
    UseRealStore(std::string(kHeader) + Entry("100", "2", "Cancel", "Abbrechen"));
    Manager* m = Manager::Get();
    EXPECT_STREQ("Cancel", m->GetTranslation("Cancel", 2, 100));
    Manager::Dispose();
    std::string file = LanguageFile();
    EXPECT_NE(std::string::npos, file.find(Entry("100", "2", "Cancel", "Abbrechen"))) << file;
}

TEST_F(LocalizationManager, StoreRecordsArePreloadedOneCharacterPerField)
{
    UseRealStore(std::string(kHeader) + Entry("700", "90", "Yes", "Ja"));
    Manager* m = Manager::Get();
    EXPECT_STREQ(L"J", m->GetWideTranslation("Yes", 9, 7));
    EXPECT_STREQ(L"Yes", m->GetWideTranslation("Yes", 90, 700));
    ASSERT_NE(nullptr, CachedEntry(m, "7", "9"));
    EXPECT_STREQ("Y", CachedEntry(m, "7", "9")->defaultText);
}

}  // namespace localization_tests

namespace localization_tests {

namespace {

// A file a translator filled: translated, untranslated and non-ASCII entries, and one the host
// never asks for.
const std::string kTranslated = std::string(kHeader) + Entry("100", "1", "OK", "") +
                                Entry("100", "2", "Cancel", "Abbrechen") +
                                Entry("100", "3", "Language", "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E") +
                                Entry("300", "5", "Close",
                                      "Schlie\xC3\x9F"
                                      "en");

}  // namespace

TEST_F(LocalizationManager, StoreTranslationsReachTheCacheInFullWhenTheHostLoadsThem)
{
    UseRealStore(kTranslated);
    Manager* m = Manager::Get();
    EXPECT_EQ(4, KivLoadStoreTranslations());
    EXPECT_STREQ(L"Abbrechen", m->GetWideTranslation("Cancel", 2, 100));
    EXPECT_STREQ("Abbrechen", m->GetTranslation("Cancel", 2, 100));
    EXPECT_STREQ(L"\x65E5\x672C\x8A9E", m->GetWideTranslation("Language", 3, 100));
    EXPECT_STREQ("OK", m->GetTranslation("OK", 1, 100));
    ASSERT_NE(nullptr, CachedEntry(m, "300", "5"));
    EXPECT_STREQ("Close", CachedEntry(m, "300", "5")->defaultText);
    Manager::Dispose();
    EXPECT_EQ(kTranslated, LanguageFile());
}

TEST_F(LocalizationManager, TenHostRunsLeaveTheLanguageFileByteForByteTheSame)
{
    UseRealStore(kTranslated);
    for (int run = 0; run < 10; ++run)
    {
        ASSERT_EQ(0u, RunHost()) << "run " << run;
        ASSERT_EQ(kTranslated, LanguageFile()) << "after run " << run;
    }
}

TEST_F(LocalizationManager, HostRunThatAsksForANewTextAddsExactlyThatEntry)
{
    UseRealStore(kTranslated);
    ASSERT_EQ(0u, RunHost("Print"));
    EXPECT_EQ(kTranslated + Entry("100", "9", "Print", ""), LanguageFile());
    ASSERT_EQ(0u, RunHost("Print"));
    EXPECT_EQ(kTranslated + Entry("100", "9", "Print", ""), LanguageFile());
}

}  // namespace localization_tests
