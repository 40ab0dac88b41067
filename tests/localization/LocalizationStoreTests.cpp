// The manager against its sibling libraries: the setting reader, the store's start-up load
// and the writing back at Dispose, read from the recording store's log, and every
// arrangement in which a library or one of its names is missing.
#include "GuiObjects.h"
#include "LocalizationTestSupport.h"

#include "ImageTables.h"
#include "KivSiblings.h"

#include <algorithm>

namespace localization_tests {

namespace {

const char kGerman[] = "language\tGerman\tde\n";

std::vector<std::string> Lines(std::initializer_list<std::string> lines)
{
    return std::vector<std::string>(lines);
}

}  // namespace

// The names the manager requests, written out here as the libraries must export them, and
// read back from the export tables of the real siblings and of the store double.
TEST_F(LocalizationManager, SiblingExportTablesHoldTheDecoratedNames)
{
    const std::vector<std::string> storeNames = {
        "?GetLanguageID@@YA?AV?$CStringT@DV?$StrTraitMFC_DLL@DV?$ChTraitsCRT@D@ATL@@@@@ATL@@PBD@Z",
        "?GetLanguageString@@YAHPBD00PAV?$CStringT@GV?$StrTraitMFC_DLL@GV?$ChTraitsCRT@G@ATL@@@@@ATL@@@Z",
        "?GetLanguageStrings@@YAPAPAV?$CStringT@GV?$StrTraitMFC_DLL@GV?$ChTraitsCRT@G@ATL@@@@@ATL@@PBD@Z",
        "?InsertLanguageString@@YAHPBDPBG000@Z", "?UpdateLanguageString@@YAHPBGPBD11@Z"};
    const std::vector<std::string> utilNames = {
        "?kivGetIniString@@YA?AV?$CStringT@DV?$StrTraitMFC_DLL@DV?$ChTraitsCRT@D@ATL@@@@@ATL@@QEBD00@Z"};
    for (const char* arrangement : {"real", "recording"})
    {
        UseLibraries(arrangement);
        HMODULE store = ::LoadLibraryA("kivstore64.dll");
        HMODULE util = ::LoadLibraryA("kivutil64.dll");
        ASSERT_NE(nullptr, store) << arrangement;
        ASSERT_NE(nullptr, util) << arrangement;
        std::vector<std::string> exported = kiv_test::ExportNames(store);
        std::sort(exported.begin(), exported.end());
        EXPECT_EQ(storeNames, exported) << arrangement;
        EXPECT_EQ(utilNames, kiv_test::ExportNames(util)) << arrangement;
        ::FreeLibrary(store);
        ::FreeLibrary(util);
    }
}

TEST_F(LocalizationManager, SiblingLibrariesExportTheRequestedNames)
{
    using namespace kiv::siblings;
    UseLibraries("recording");
    HMODULE store = ::LoadLibraryA(kStoreLibrary);
    HMODULE util = ::LoadLibraryA(kUtilLibrary);
    ASSERT_NE(nullptr, store);
    ASSERT_NE(nullptr, util);
    EXPECT_NE(nullptr, ::GetProcAddress(util, kIniReaderExport));
    for (const char* name : {kGetLanguageIDExport, kGetLanguageStringsExport, kGetLanguageStringExport,
                             kInsertLanguageStringExport, kUpdateLanguageStringExport})
        EXPECT_NE(nullptr, ::GetProcAddress(store, name)) << name;
    ::FreeLibrary(store);
    ::FreeLibrary(util);
}

TEST_F(LocalizationManager, EmptySettingCallsNoStoreFunction)
{
    UseLibraries("recording");
    WriteStore(kGerman);
    WriteSetting("");
    long loaded = LoadedLibraries();
    Manager::Get()->GetTranslation("OK", "1", "100");
    Manager::Dispose();
    EXPECT_EQ(Lines({}), StoreLog());
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
}

TEST_F(LocalizationManager, StartUpAsksTheStoreForTheLanguageAndItsStrings)
{
    UseLibraries("recording");
    WriteStore(kGerman);
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager::Get();
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"})}), StoreLog());
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
}

TEST_F(LocalizationManager, StoreRecordIsPreloadedOneUnitPerField)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "record\tHello\tHallo\t10\t200\n");
    WriteSetting("German");
    Manager* m = Manager::Get();
    EXPECT_EQ(1, CachedEntryCount(m));
    const TranslationEntry* entry = CachedEntry(m, "2", "1");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("H", entry->defaultText);
    EXPECT_STREQ(L"H", entry->translatedText);
    EXPECT_STREQ(L"H", m->GetWideTranslation("Hello", "1", "2"));
    EXPECT_STREQ(L"Hello", m->GetWideTranslation("Hello", "10", "200"));
}

TEST_F(LocalizationManager, StoreRecordUnitsOutsideAsciiAreConvertedOneByOne)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "record\t\xC3\x9C"
                                      "bersicht\t\xC3\x96"
                                      "ffnen\t\xC3\xA4"
                                      "1\t\xE6\x97\xA5\xE6\x9C\xAC\n");
    WriteSetting("German");
    Manager* m = Manager::Get();
    EXPECT_EQ(1, CachedEntryCount(m));
    const TranslationEntry* entry = CachedEntry(m, "?", "\xE4");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("\xDC", entry->defaultText);
    EXPECT_STREQ(L"\x00D6", entry->translatedText);
}

TEST_F(LocalizationManager, PreloadKeepsTableOrderSoLaterRecordsWin)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "record\tAlpha\tEins\t10\t20\nrecord\tBeta\tZwei\t11\t21\n");
    WriteSetting("German");
    Manager* m = Manager::Get();
    EXPECT_EQ(1, CachedEntryCount(m));
    EXPECT_STREQ("B", CachedEntry(m, "2", "1")->defaultText);
    EXPECT_STREQ(L"Z", CachedEntry(m, "2", "1")->translatedText);
}

TEST_F(LocalizationManager, EmptyStoreFieldsArePreloadedEmpty)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "record\t\t\t5\t6\n");
    WriteSetting("German");
    Manager* m = Manager::Get();
    const TranslationEntry* entry = CachedEntry(m, "6", "5");
    ASSERT_NE(nullptr, entry);
    EXPECT_EQ(0, entry->defaultText.GetLength());
    EXPECT_EQ(0, entry->translatedText.GetLength());
    EXPECT_STREQ(L"Five", m->GetWideTranslation("Five", "5", "6"));
}

TEST_F(LocalizationManager, NullTableLeavesTheCacheEmpty)
{
    UseLibraries("recording");
    WriteStore(kGerman);
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"})}), StoreLog());
    EXPECT_STREQ("OK", m->GetTranslation("OK", "1", "100"));
    EXPECT_EQ(loaded, LoadedLibraries());
}

TEST_F(LocalizationManager, TableWithANullFirstSlotLeavesTheCacheEmpty)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "table\tempty\nrecord\tHello\tHallo\t10\t200\n");
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"})}), StoreLog());
    EXPECT_STREQ(L"Hello", m->GetWideTranslation("Hello", "1", "2"));
    EXPECT_EQ(loaded, LoadedLibraries());
}

TEST_F(LocalizationManager, EmptyLanguageIdStopsAtTheLanguage)
{
    UseLibraries("recording");
    WriteStore(kGerman);
    WriteSetting("Klingon");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_STREQ("OK", m->GetTranslation("OK", "1", "100"));
    Manager::Dispose();
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "Klingon"}), LogLine({"GetLanguageID", "Klingon"})}), StoreLog());
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
}

TEST_F(LocalizationManager, DisposeInsertsATextTheStoreLacks)
{
    UseLibraries("recording");
    WriteStore(kGerman);
    WriteSetting("German");
    Manager::Get()->GetTranslation("Three", "3", "100");
    Manager::Dispose();
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"}),
                     LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageString", "de", "100", "3", ""}),
                     LogLine({"InsertLanguageString", "Three", "", "de", "100", "3"})}),
              StoreLog());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
}

TEST_F(LocalizationManager, DisposeUpdatesADifferingTranslation)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "string\tde\t100\t2\tZwei\n");
    WriteSetting("German");
    Manager::Get()->SetTranslation("Two", L"Deux", "2", "100");
    Manager::Dispose();
    std::vector<std::string> log = StoreLog();
    ASSERT_EQ(5u, log.size());
    EXPECT_EQ(LogLine({"GetLanguageString", "de", "100", "2", ""}), log[3]);
    EXPECT_EQ(LogLine({"UpdateLanguageString", "Deux", "de", "100", "2"}), log[4]);
}

TEST_F(LocalizationManager, DisposeUpdatesATranslationThatDiffersOnlyInCase)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "string\tde\t100\t2\tzwei\n");
    WriteSetting("German");
    Manager::Get()->SetTranslation("Two", L"Zwei", "2", "100");
    Manager::Dispose();
    std::vector<std::string> log = StoreLog();
    ASSERT_EQ(5u, log.size());
    EXPECT_EQ(LogLine({"UpdateLanguageString", "Zwei", "de", "100", "2"}), log[4]);
}

TEST_F(LocalizationManager, DisposeWritesNothingForAnEqualTranslation)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "string\tde\t100\t1\tEins\n");
    WriteSetting("German");
    Manager::Get()->SetTranslation("One", L"Eins", "1", "100");
    Manager::Dispose();
    std::vector<std::string> log = StoreLog();
    ASSERT_EQ(4u, log.size());
    EXPECT_EQ(LogLine({"GetLanguageString", "de", "100", "1", ""}), log[3]);
}

TEST_F(LocalizationManager, DisposeWalksTheCacheInItsOwnOrder)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "string\tde\t100\t1\tEins\nstring\tde\t100\t2\tZwei\n"
                                      "string\tde\tSTRINGTABLE\t7\tDatentr\xC3\xA4ger voll\n");
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("One", L"Eins", "1", "100");
    m->SetTranslation("Two", L"Deux", "2", "100");
    m->GetTranslation("Three", "3", "100");
    m->GetWideTranslation("Disk full", 7, 0);
    m->SetTranslation("Disk full", L"Datentr\x00E4ger voll", "7", "STRINGTABLE");
    m->SetTranslation("Open",
                      L"\x00D6"
                      L"ffnen",
                      "1005", "2001");
    std::vector<std::string> expected = {LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"}),
                                         LogLine({"GetLanguageID", "German"})};
    for (const auto& [section, key] : CacheOrder(m))
    {
        expected.push_back(LogLine({"GetLanguageString", "de", section.GetString(), key.GetString(), ""}));
        CString where = section + "/" + key;
        if (where == "100/2")
            expected.push_back(LogLine({"UpdateLanguageString", "Deux", "de", "100", "2"}));
        else if (where == "100/3")
            expected.push_back(LogLine({"InsertLanguageString", "Three", "", "de", "100", "3"}));
        else if (where == "0/7")
            expected.push_back(LogLine({"InsertLanguageString", "Disk full", "", "de", "0", "7"}));
        else if (where == "2001/1005")
            expected.push_back(LogLine({"InsertLanguageString", "Open",
                                        "\xC3\x96"
                                        "ffnen",
                                        "de", "2001", "1005"}));
    }
    ASSERT_EQ(6u, CacheOrder(m).size());
    Manager::Dispose();
    EXPECT_EQ(expected, StoreLog());
}

TEST_F(LocalizationManager, PreloadedEntriesAreWrittenBackUnderTheirOneCharacterNames)
{
    UseLibraries("recording");
    WriteStore(std::string(kGerman) + "record\tHello\tHallo\t10\t200\n");
    WriteSetting("German");
    Manager::Get();
    Manager::Dispose();
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"}),
                     LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageString", "de", "2", "1", ""}),
                     LogLine({"InsertLanguageString", "H", "H", "de", "2", "1"})}),
              StoreLog());
}

TEST_F(LocalizationManager, TranslationsAreWrittenAsCachedUntilALookupTrimsThem)
{
    UseLibraries("recording");
    WriteStore(kGerman);
    WriteSetting("German");
    Manager* m = Manager::Get();
    m->SetTranslation("Cancel", L" Abbrechen ", "2", "100");
    m->SetTranslation("Close",
                      L" Schlie\x00DF"
                      L"en ",
                      "3", "100");
    m->GetWideTranslation("Close", "3", "100");
    Manager::Dispose();
    std::vector<std::string> log = StoreLog();
    ASSERT_EQ(7u, log.size());
    std::vector<std::string> inserts = {log[4], log[6]};
    std::sort(inserts.begin(), inserts.end());
    EXPECT_EQ(LogLine({"InsertLanguageString", "Cancel", " Abbrechen ", "de", "100", "2"}), inserts[0]);
    EXPECT_EQ(LogLine({"InsertLanguageString", "Close",
                       "Schlie\xC3\x9F"
                       "en",
                       "de", "100", "3"}),
              inserts[1]);
}

TEST_F(LocalizationManager, DestructorWritesNothingToTheStore)
{
    UseLibraries("recording");
    WriteStore(kGerman);
    WriteSetting("German");
    {
        TestManager manager;
        manager.GetTranslation("Three", "3", "100");
    }
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"})}), StoreLog());
}

TEST_F(LocalizationManager, MissingStoreLibraryLeavesTheCacheEmptyAndWritesNothing)
{
    UseLibraries("util-only");
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_STREQ("OK", m->GetTranslation("OK", "1", "100"));
    EXPECT_EQ(1, CachedEntryCount(m));
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
    Manager::Dispose();
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
}

TEST_F(LocalizationManager, MissingSettingReaderLibraryLeavesTheCacheEmptyAndWritesNothing)
{
    UseLibraries("store-only");
    WriteStore(std::string(kGerman) + "record\tHello\tHallo\t10\t200\n");
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_STREQ(L"Hello", m->GetWideTranslation("Hello", "1", "2"));
    EXPECT_EQ(0, m->IsTranslationMode());
    Manager::Dispose();
    EXPECT_EQ(Lines({}), StoreLog());
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
}

TEST_F(LocalizationManager, WithoutSiblingLibrariesEveryLookupAnswersTheDefault)
{
    UseLibraries("none");
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_EQ(0, m->IsTranslationMode());
    EXPECT_STREQ("OK", m->GetTranslation("OK", 1, 100));
    EXPECT_STREQ(L"Cancel", m->GetWideTranslation("Cancel", 2, 100));
    Manager::Dispose();
    EXPECT_EQ(loaded, LoadedLibraries());
}

TEST_F(LocalizationManager, ReaderWithoutTheRequestedNameLeavesBothLibrariesLoaded)
{
    UseLibraries("short-reader");
    WriteStore(std::string(kGerman) + "record\tHello\tHallo\t10\t200\n");
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(loaded + 2, LoadedLibraries());
    EXPECT_TRUE(IsLoaded("kivstore64.dll"));
    EXPECT_TRUE(IsLoaded("kivutil64.dll"));
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_STREQ("OK", m->GetTranslation("OK", "1", "100"));
    EXPECT_EQ(1, CachedEntryCount(m));
    Manager::Dispose();
    EXPECT_EQ(loaded + 4, LoadedLibraries());
    EXPECT_EQ(Lines({}), StoreLog());
}

TEST_F(LocalizationManager, StoreWithoutItsNamesAnswersAsAStoreWithoutTheLanguage)
{
    UseLibraries("unnamed");
    WriteSetting("German");
    long loaded = LoadedLibraries();
    Manager* m = Manager::Get();
    EXPECT_EQ(0, CachedSectionCount(m));
    EXPECT_STREQ("OK", m->GetTranslation("OK", "1", "100"));
    Manager::Dispose();
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
}

TEST_F(LocalizationManager, StoreWithoutItsWritingNamesIsOnlyRead)
{
    UseLibraries("read-only");
    WriteStore(std::string(kGerman) + "record\tHello\tHallo\t10\t200\n");
    WriteSetting("German");
    Manager* m = Manager::Get();
    EXPECT_STREQ("H", CachedEntry(m, "2", "1")->defaultText);
    m->GetTranslation("Three", "3", "100");
    Manager::Dispose();
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"}),
                     LogLine({"GetLanguageID", "German"})}),
              StoreLog());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
}

// The setting reader is loaded and released at every call; each load used to keep the buffer
// its C++ runtime makes for exceptions (some 75 KB), which a host asking at every dialog lost.
TEST_F(LocalizationManager, IsTranslationModeAThousandTimesKeepsNoMemoryOfTheSettingReader)
{
    UseLibraries("recording");
    Manager* m = Manager::Get();
    WriteSetting("German");
    EXPECT_EQ(1, m->IsTranslationMode());
    const SIZE_T before = kivtest::PrivateBytes();
    for (int i = 0; i < 1000; ++i)
        m->IsTranslationMode();
    const SIZE_T after = kivtest::PrivateBytes();
    EXPECT_LT(after, before + 1024 * 1024) << (after - before) / 1000 << " bytes kept per call";
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
}

TEST_F(LocalizationManager, IsTranslationModeFollowsTheSettingFile)
{
    UseLibraries("recording");
    Manager* m = Manager::Get();
    long loaded = LoadedLibraries();
    WriteSetting("German");
    EXPECT_EQ(1, m->IsTranslationMode());
    WriteSetting("");
    EXPECT_EQ(0, m->IsTranslationMode());
    WriteSetting("de");
    EXPECT_EQ(1, m->IsTranslationMode());
    ::DeleteFileA(m_ini.c_str());
    EXPECT_EQ(0, m->IsTranslationMode());
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivutil64.dll"));
    EXPECT_EQ(Lines({}), StoreLog());
}

TEST_F(LocalizationManager, IsTranslationModeNeedsOnlyTheSettingReader)
{
    UseLibraries("util-only");
    WriteSetting("German");
    EXPECT_EQ(1, Manager::Get()->IsTranslationMode());
}

TEST_F(LocalizationManager, IsTranslationModeWithoutTheReaderIsZeroAndKeepsTheLibrary)
{
    UseLibraries("short-reader");
    WriteSetting("German");
    Manager* m = Manager::Get();
    long loaded = LoadedLibraries();
    EXPECT_EQ(0, m->IsTranslationMode());
    EXPECT_EQ(loaded + 1, LoadedLibraries());
    EXPECT_TRUE(IsLoaded("kivutil64.dll"));
}

}  // namespace localization_tests

namespace localization_tests {

TEST_F(LocalizationManager, StorePreloadEntersEveryRecordInFull)
{
    UseLibraries("recording");
    WriteStore("language\tGerman\tde\nrecord\tHello\tHallo\t10\t200\nrecord\tOpen\t\t7\tSTRINGTABLE\n");
    WriteSetting("German");
    Manager* m = Manager::Get();
    long loaded = LoadedLibraries();
    EXPECT_EQ(2, KivLoadStoreTranslations());
    const TranslationEntry* hello = CachedEntry(m, "200", "10");
    ASSERT_NE(nullptr, hello);
    EXPECT_STREQ("Hello", hello->defaultText);
    EXPECT_STREQ(L"Hallo", hello->translatedText);
    EXPECT_STREQ(L"Hallo", m->GetWideTranslation("Hello", 10, 200));
    EXPECT_STREQ("Open", m->GetTranslation("Open", "7", "STRINGTABLE"));
    // The manager's own one-unit entries stay as they were.
    ASSERT_NE(nullptr, CachedEntry(m, "2", "1"));
    EXPECT_STREQ(L"H", CachedEntry(m, "2", "1")->translatedText);
    EXPECT_EQ(loaded, LoadedLibraries());
    EXPECT_FALSE(IsLoaded("kivstore64.dll"));
    EXPECT_EQ(Lines({LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"}),
                     LogLine({"GetLanguageID", "German"}), LogLine({"GetLanguageStrings", "de"})}),
              StoreLog());
}

TEST_F(LocalizationManager, StorePreloadWithTranslationOffEntersNothing)
{
    UseLibraries("recording");
    WriteStore("language\tGerman\tde\nrecord\tHello\tHallo\t10\t200\n");
    WriteSetting("");
    Manager* m = Manager::Get();
    EXPECT_EQ(0, KivLoadStoreTranslations());
    EXPECT_EQ(0, CachedEntryCount(m));
    EXPECT_EQ(Lines({}), StoreLog());
}

TEST_F(LocalizationManager, StorePreloadWithoutTheStoreEntersNothing)
{
    UseLibraries("util-only");
    WriteSetting("German");
    Manager* m = Manager::Get();
    EXPECT_EQ(0, KivLoadStoreTranslations());
    EXPECT_EQ(0, CachedEntryCount(m));
    EXPECT_STREQ("OK", m->GetTranslation("OK", 1, 100));
}

TEST_F(LocalizationManager, PreloadedEntriesEqualTheStoresAndCauseNoWriteAtDispose)
{
    UseLibraries("recording");
    WriteStore("language\tGerman\tde\nrecord\tHello\tHallo\t10\t200\nstring\tde\t200\t10\tHallo\n");
    WriteSetting("German");
    Manager::Get();
    KivLoadStoreTranslations();
    Manager::Dispose();
    std::vector<std::string> log = StoreLog();
    EXPECT_EQ(0, std::count_if(log.begin(), log.end(),
                               [](const std::string& line) { return line.rfind("UpdateLanguageString", 0) == 0; }));
    EXPECT_EQ(0, std::count_if(log.begin(), log.end(), [](const std::string& line) {
                  return line.rfind("InsertLanguageString\tHello", 0) == 0;
              }));
}

}  // namespace localization_tests
