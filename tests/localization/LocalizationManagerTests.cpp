// The singleton, the translation cache and the narrow, wide and BSTR lookups. No sibling
// library is found here unless a test asks for one, so the cache starts empty.
#include "LocalizationTestSupport.h"

#include "LocalizationKeys.h"

#include <cstdint>
#include <cstdlib>
#include <set>
#include <vector>

namespace localization_tests {

using kiv::localization::KeyText;

TEST_F(LocalizationManager, GetCreatesOneInstanceOnFirstUse)
{
    EXPECT_EQ(nullptr, Manager::m_SingletonInstance);
    Manager* first = Manager::Get();
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, Manager::m_SingletonInstance);
    EXPECT_EQ(first, Manager::Get());
    EXPECT_EQ(0, CachedSectionCount(first));
}

TEST_F(LocalizationManager, EmptySettingAnswersTheDefaultAndRecordsTheMiss)
{
    UseLibraries("recording");
    WriteSetting("");
    Manager* m = Manager::Get();
    EXPECT_STREQ("OK", m->GetTranslation("OK", "1", "100"));
    const TranslationEntry* entry = CachedEntry(m, "100", "1");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("OK", entry->defaultText);
    EXPECT_STREQ(L"", entry->translatedText);
    EXPECT_EQ(1, CachedEntryCount(m));
}

TEST_F(LocalizationManager, SetTranslationIsAnsweredTrimmedAndNarrowed)
{
    Manager* m = Manager::Get();
    m->SetTranslation("Cancel", L"  Abbrechen ", "2", "100");
    EXPECT_STREQ(L"  Abbrechen ", CachedEntry(m, "100", "2")->translatedText);
    EXPECT_STREQ("Abbrechen", m->GetTranslation("Cancel", 2, 100));
    const TranslationEntry* entry = CachedEntry(m, "100", "2");
    EXPECT_STREQ(L"Abbrechen", entry->translatedText);
    EXPECT_STREQ("Cancel", entry->defaultText);
}

TEST_F(LocalizationManager, WhiteSpaceOnlyTranslationCountsAsNone)
{
    Manager* m = Manager::Get();
    m->SetTranslation("X", L" \t ", "5", "100");
    const TranslationEntry* before = CachedEntry(m, "100", "5");
    EXPECT_STREQ(L"X", m->GetWideTranslation("X", "5", "100"));
    const TranslationEntry* after = CachedEntry(m, "100", "5");
    ASSERT_NE(nullptr, after);
    EXPECT_NE(before, after);
    EXPECT_STREQ("X", after->defaultText);
    EXPECT_STREQ(L"", after->translatedText);
    // The replaced record is not freed; it keeps its text, trimmed by the lookup.
    EXPECT_STREQ("X", before->defaultText);
    EXPECT_STREQ(L"", before->translatedText);
}

TEST_F(LocalizationManager, WideLookupWithAnEmptyDefaultRecordsNothing)
{
    Manager* m = Manager::Get();
    CStringW text = m->GetWideTranslation("", "1", "100");
    EXPECT_STREQ(L"", text);
    EXPECT_EQ(0, CachedSectionCount(m));
}

TEST_F(LocalizationManager, NarrowLookupWithAnEmptyDefaultRecordsAnEntry)
{
    Manager* m = Manager::Get();
    EXPECT_STREQ("", m->GetTranslation("", "1", "100"));
    const TranslationEntry* entry = CachedEntry(m, "100", "1");
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ("", entry->defaultText);
    EXPECT_STREQ(L"", entry->translatedText);
}

TEST_F(LocalizationManager, BstrLookupWithAnEmptyDefaultRecordsAnEntry)
{
    Manager* m = Manager::Get();
    BSTR text = m->GetBSTRTranlation("", "1", "100");
    ASSERT_NE(nullptr, text);
    EXPECT_EQ(0u, ::SysStringLen(text));
    ::SysFreeString(text);
    ASSERT_NE(nullptr, CachedEntry(m, "100", "1"));
    EXPECT_STREQ("", CachedEntry(m, "100", "1")->defaultText);
}

TEST_F(LocalizationManager, NumericKeysAndSectionsAreDecimalText)
{
    Manager* m = Manager::Get();
    EXPECT_STREQ("Minus", m->GetTranslation("Minus", -1, 0));
    EXPECT_STREQ(L"Wide", m->GetWideTranslation("Wide", 1005, 2001));
    BSTR text = m->GetBSTRTranlation("Bstr", 7, -20);
    EXPECT_STREQ(L"Bstr", text);
    ::SysFreeString(text);
    ASSERT_NE(nullptr, CachedEntry(m, "0", "-1"));
    EXPECT_STREQ("Minus", CachedEntry(m, "0", "-1")->defaultText);
    ASSERT_NE(nullptr, CachedEntry(m, "2001", "1005"));
    EXPECT_STREQ("Wide", CachedEntry(m, "2001", "1005")->defaultText);
    ASSERT_NE(nullptr, CachedEntry(m, "-20", "7"));
    EXPECT_STREQ("Bstr", CachedEntry(m, "-20", "7")->defaultText);
    EXPECT_EQ(3, CachedEntryCount(m));
}

TEST_F(LocalizationManager, NumericOverloadsFindTheTextsOfTheStringOverloads)
{
    Manager* m = Manager::Get();
    m->SetTranslation("File", L"Datei", "1005", "2001");
    EXPECT_STREQ("Datei", m->GetTranslation("File", 1005, 2001));
    EXPECT_STREQ(L"Datei", m->GetWideTranslation("File", 1005, 2001));
    BSTR text = m->GetBSTRTranlation("File", 1005, 2001);
    EXPECT_STREQ(L"Datei", text);
    ::SysFreeString(text);
    EXPECT_EQ(1, CachedEntryCount(m));
}

TEST_F(LocalizationManager, KeysAndSectionsAreCaseSensitive)
{
    Manager* m = Manager::Get();
    m->SetTranslation("Title", L"Titel", "Title", "Dialog");
    EXPECT_STREQ(L"title", m->GetWideTranslation("title", "title", "Dialog"));
    EXPECT_STREQ(L"Titel", m->GetWideTranslation("Title", "Title", "Dialog"));
    EXPECT_STREQ(L"other", m->GetWideTranslation("other", "Title", "dialog"));
    EXPECT_NE(CachedEntry(m, "Dialog", "Title"), CachedEntry(m, "Dialog", "title"));
    EXPECT_EQ(3, CachedEntryCount(m));
    EXPECT_EQ(2, CachedSectionCount(m));
}

TEST_F(LocalizationManager, KeysAreNotTrimmed)
{
    Manager* m = Manager::Get();
    m->SetTranslation("OK", L"Gut", "1", "100");
    EXPECT_STREQ(L"OK", m->GetWideTranslation("OK", " 1", "100"));
    EXPECT_STREQ(L"OK", m->GetWideTranslation("OK", "1", "100 "));
    EXPECT_EQ(3, CachedEntryCount(m));
}

TEST_F(LocalizationManager, WideHitIsTheTranslationWhateverTheDefault)
{
    Manager* m = Manager::Get();
    m->SetTranslation("File", L"\x30D5\x30A1\x30A4\x30EB", "3", "200");
    const TranslationEntry* entry = CachedEntry(m, "200", "3");
    EXPECT_STREQ(L"\x30D5\x30A1\x30A4\x30EB", m->GetWideTranslation("Something else", "3", "200"));
    EXPECT_EQ(entry, CachedEntry(m, "200", "3"));
    EXPECT_STREQ("File", entry->defaultText);
}

TEST_F(LocalizationManager, NarrowHitIsConvertedInTheAnsiCodePage)
{
    Manager* m = Manager::Get();
    m->SetTranslation("Disk", L"Datentr\x00E4ger", "4", "200");
    EXPECT_STREQ("Datentr\xE4ger", m->GetTranslation("Disk", "4", "200"));
}

TEST_F(LocalizationManager, NarrowHitKeepsPercentSigns)
{
    Manager* m = Manager::Get();
    m->SetTranslation("Done", L"100 %s %d%%", "5", "200");
    EXPECT_STREQ("100 %s %d%%", m->GetTranslation("Done", "5", "200"));
}

TEST_F(LocalizationManager, BstrHitIsANewStringOfTheTranslation)
{
    Manager* m = Manager::Get();
    m->SetTranslation("Open",
                      L" \x00D6"
                      L"ffnen",
                      "6", "200");
    BSTR text = m->GetBSTRTranlation("Open", "6", "200");
    ASSERT_NE(nullptr, text);
    EXPECT_EQ(6u, ::SysStringLen(text));
    EXPECT_STREQ(L"\x00D6"
                 L"ffnen",
                 text);
    ::SysFreeString(text);
    EXPECT_EQ(1, CachedEntryCount(m));
}

TEST_F(LocalizationManager, BstrMissIsTheDefaultAndIsRecorded)
{
    Manager* m = Manager::Get();
    BSTR text = m->GetBSTRTranlation("Save", "7", "200");
    EXPECT_STREQ(L"Save", text);
    ::SysFreeString(text);
    ASSERT_NE(nullptr, CachedEntry(m, "200", "7"));
    EXPECT_STREQ("Save", CachedEntry(m, "200", "7")->defaultText);
    EXPECT_STREQ(L"", CachedEntry(m, "200", "7")->translatedText);
}

TEST_F(LocalizationManager, RepeatedMissIsRecordedWithTheLatestDefault)
{
    Manager* m = Manager::Get();
    m->GetTranslation("First", "1", "300");
    m->GetWideTranslation("Second", "1", "300");
    EXPECT_STREQ("Second", CachedEntry(m, "300", "1")->defaultText);
    EXPECT_EQ(1, CachedEntryCount(m));
}

TEST_F(LocalizationManager, SetTranslationReplacesTheEntry)
{
    Manager* m = Manager::Get();
    m->SetTranslation("Yes", L"Ja", "6", "100");
    m->SetTranslation("Yes!", L"Oui", "6", "100");
    EXPECT_STREQ(L"Oui", m->GetWideTranslation("Yes", "6", "100"));
    EXPECT_STREQ("Yes!", CachedEntry(m, "100", "6")->defaultText);
    EXPECT_EQ(1, CachedEntryCount(m));
}

TEST_F(LocalizationManager, ManyKeysInOneSectionStayFindable)
{
    Manager* m = Manager::Get();
    for (int key = 0; key < 5000; ++key)
        m->SetTranslation("Text", L"T" + CStringW(KeyText(key)), KeyText(key), "STRINGTABLE");
    EXPECT_EQ(5000, CachedEntryCount(m));
    EXPECT_EQ(1, CachedSectionCount(m));
    int found = 0;
    for (int key = 0; key < 5000; ++key)
        found += m->GetWideTranslation("Text", KeyText(key), "STRINGTABLE") == L"T" + CStringW(KeyText(key));
    EXPECT_EQ(5000, found);
    EXPECT_EQ(5000, CachedEntryCount(m));
}

TEST_F(LocalizationManager, AssignmentSharesTheCache)
{
    Manager* m = Manager::Get();
    m->SetTranslation("A", L"B", "1", "s");
    TestManager other;
    CMapStringToPtr* own = other.Cache();
    static_cast<Manager&>(other) = *m;
    EXPECT_EQ(TestManager::CacheOf(m), other.Cache());
    EXPECT_STREQ(L"B", other.GetWideTranslation("A", "1", "s"));
    other.SetTranslation("C", L"D", "2", "s");
    EXPECT_STREQ(L"D", m->GetWideTranslation("C", "2", "s"));
    other.Cache() = own;  // its own cache back, so the shared one is destroyed once
}

TEST_F(LocalizationManager, TextAskedAgainWithAnotherDefaultAnswersThatDefault)
{
    Manager* m = Manager::Get();
    EXPECT_STREQ(L"First", m->GetWideTranslation("First", "1", "s"));
    EXPECT_STREQ(L"First", m->GetWideTranslation("First", "1", "s"));
    EXPECT_STREQ(L"Second", m->GetWideTranslation("Second", "1", "s"));
    EXPECT_STREQ("Second", CachedEntry(m, "s", "1")->defaultText);
    EXPECT_EQ(1, CachedEntryCount(m));
}

TEST_F(LocalizationManager, EntryADerivedClassPutIntoTheCacheIsFound)
{
    TestManager manager;
    manager.SetTranslation("A", L"B", "1", "s");
    void* keys = nullptr;
    ASSERT_TRUE(manager.Cache()->Lookup("s", keys));
    static_cast<CMapStringToPtr*>(keys)->SetAt("2", new TranslationEntry{"C", L"D"});
    EXPECT_STREQ(L"D", manager.GetWideTranslation("C", "2", "s"));
    EXPECT_STREQ(L"B", manager.GetWideTranslation("A", "1", "s"));
    manager.SetTranslation("C", L"E", "2", "s");
    EXPECT_STREQ(L"E", manager.GetWideTranslation("C", "2", "s"));
}

TEST_F(LocalizationManager, SavingDestroysTheCacheOnce)
{
    TestManager manager;
    manager.SetTranslation("A", L"B", "1", "s");
    manager.SaveTranslations();
    EXPECT_EQ(nullptr, manager.Cache());
    manager.SaveTranslations();
    EXPECT_EQ(nullptr, manager.Cache());
    // Without a cache every lookup answers its default.
    EXPECT_STREQ(L"A", manager.GetWideTranslation("A", "1", "s"));
}

TEST_F(LocalizationManager, DisposeLeavesTheInstancePointerAsItWas)
{
    Manager* m = Manager::Get();
    m->GetTranslation("OK", "1", "100");
    Manager::Dispose();
    EXPECT_EQ(m, Manager::m_SingletonInstance);
}

TEST_F(LocalizationManager, DisposeWithoutAnInstanceDoesNothing)
{
    long loaded = LoadedLibraries();
    Manager::Dispose();
    EXPECT_EQ(nullptr, Manager::m_SingletonInstance);
    EXPECT_EQ(loaded, LoadedLibraries());
}

// Entries come from blocks of their own: a freed one is taken again, many at once are all
// distinct and usable, a class derived from the entry still gets memory of its own size, and
// two threads making entries at once never get the same one.
TEST(TranslationEntry, EntriesComeFromBlocksAndAFreedOneIsTakenAgain)
{
    auto* first = new TranslationEntry;
    first->defaultText = "OK";
    first->translatedText = L"In Ordnung";
    const std::uintptr_t freed = reinterpret_cast<std::uintptr_t>(first);
    delete first;
    auto* again = new TranslationEntry;
    EXPECT_EQ(freed, reinterpret_cast<std::uintptr_t>(again));
    EXPECT_STREQ("", again->defaultText);
    EXPECT_STREQ(L"", again->translatedText);
    delete again;

    std::vector<TranslationEntry*> many;
    for (int i = 0; i < 10000; ++i)
    {
        many.push_back(new TranslationEntry);
        many.back()->defaultText.Format("%d", i);
    }
    std::set<TranslationEntry*> distinct(many.begin(), many.end());
    EXPECT_EQ(many.size(), distinct.size());
    for (int i = 0; i < 10000; ++i)
        EXPECT_EQ(i, std::atoi(many[i]->defaultText)) << i;
    for (TranslationEntry* entry : many)
        delete entry;

    struct Larger : TranslationEntry
    {
        char more[64] = "beyond the entry";
    };
    auto* larger = new Larger;
    EXPECT_STREQ("beyond the entry", larger->more);
    delete larger;
}

TEST(TranslationEntry, TwoThreadsMakingEntriesAtOnceGetDistinctOnes)
{
    constexpr int kEach = 20000;
    struct Work
    {
        std::vector<TranslationEntry*> made;
    } works[2];
    auto run = [](LPVOID parameter) -> DWORD {
        auto* work = static_cast<Work*>(parameter);
        for (int i = 0; i < kEach; ++i)
        {
            work->made.push_back(new TranslationEntry);
            if (i % 3 == 0)
            {
                delete work->made.back();
                work->made.pop_back();
            }
        }
        return 0;
    };
    HANDLE threads[2];
    for (int i = 0; i < 2; ++i)
        threads[i] = ::CreateThread(nullptr, 0, run, &works[i], 0, nullptr);
    ::WaitForMultipleObjects(2, threads, TRUE, INFINITE);
    std::set<TranslationEntry*> distinct;
    for (Work& work : works)
    {
        distinct.insert(work.made.begin(), work.made.end());
        ::CloseHandle(threads[&work - works]);
    }
    EXPECT_EQ(works[0].made.size() + works[1].made.size(), distinct.size());
    for (Work& work : works)
        for (TranslationEntry* entry : work.made)
            delete entry;
}

}  // namespace localization_tests
