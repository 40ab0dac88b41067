// The language-string store, loaded by name and called through its decorated exports; the
// assertions read the PO files it leaves.
#include "StoreTest.h"
#include "PoText.h"

#include <cstdio>
#include <cstdlib>
#include <set>

using namespace kiv::siblings;

namespace {

const auto& kHeader = kiv_tests::kPoHeader;
const auto Entry = kiv_tests::PoEntry;

// text with every "from" replaced by "to".
std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The German file most tests start from.
const std::string kGerman = std::string(kHeader) + Entry("100", "1", "OK", "In Ordnung") +
                            Entry("100", "2", "Cancel", "Abbrechen") + Entry("STRINGTABLE", "7", "Open", "");

class KivStore : public StoreTest
{};

// "YYYY-MM-DD HH:MM+0000", the form PO tools write.
bool IsRevisionDate(const std::string& date)
{
    const char pattern[] = "dddd-dd-dd dd:dd+0000";
    if (date.size() != sizeof(pattern) - 1)
        return false;
    for (std::size_t i = 0; i < date.size(); ++i)
        if (pattern[i] == 'd' ? !isdigit((unsigned char)date[i]) : date[i] != pattern[i])
            return false;
    return true;
}

}  // namespace

TEST_F(KivStore, ExportsTheFiveFunctionsUnderTheirDecoratedNames)
{
    Load();
    for (const char* name : {kGetLanguageIDExport, kGetLanguageStringsExport, kGetLanguageStringExport,
                             kInsertLanguageStringExport, kUpdateLanguageStringExport})
        EXPECT_NE(nullptr, ::GetProcAddress(m_library, name)) << name;
}

TEST_F(KivStore, IdIsTheFileNameWithoutExtensionInAnyCase)
{
    WriteFile("de.po", kGerman);
    WriteFile("pt_BR.po", kHeader);
    Load();
    EXPECT_STREQ("de", Id("de"));
    EXPECT_STREQ("de", Id("DE"));
    EXPECT_STREQ("pt_BR", Id("pt_br"));
}

TEST_F(KivStore, NamesInTheHeaderGiveTheId)
{
    WriteFile("de.po", kGerman);
    WriteFile("fr.po", Replaced(kHeader, "German, Deutsch",
                                "French,Fran\xC3\xA7"
                                "ais"));
    Load();
    EXPECT_STREQ("de", Id("German"));
    EXPECT_STREQ("de", Id("deutsch"));
    EXPECT_STREQ("de", Id("  GERMAN "));
    EXPECT_STREQ("fr", Id("french"));
    // The setting is ANSI text; the header's names are UTF-8.
    CStringW francais(L"FRAN\x00C7"
                      L"AIS");
    EXPECT_STREQ("fr", Id(CString(francais)));
}

TEST_F(KivStore, UnknownLanguageNameGivesEmptyId)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_STREQ("", Id("Klingon"));
    EXPECT_STREQ("", Id("Germ"));
    EXPECT_STREQ("", Id(""));
    EXPECT_STREQ("", Id(nullptr));
}

TEST_F(KivStore, LanguageIdWithAPathIsRefused)
{
    WriteFile("de.po", kGerman);
    ::CreateDirectoryA(PathOf("sub").c_str(), nullptr);
    WriteFile("sub\\fr.po", kHeader);
    Load();
    for (const char* id : {"..\\lang\\de", "sub\\fr", "sub/fr", ".\\de", "C:de", "..", "de\\..\\de"})
    {
        EXPECT_EQ(nullptr, Strings(id)) << id;
        EXPECT_EQ(kStoreUnknownLanguage, Insert("a", L"b", id, "1", "2")) << id;
        EXPECT_EQ(kStoreUnknownLanguage, Update(L"b", id, "1", "2")) << id;
        CStringW text;
        EXPECT_EQ(kStoreUnknownLanguage, Get(id, "1", "2", &text)) << id;
    }
    EXPECT_STREQ("", Id("sub\\fr"));
    Unload();
    EXPECT_EQ(kHeader, ReadFile("sub\\fr.po"));
    ::DeleteFileA(PathOf("sub\\fr.po").c_str());
    ::RemoveDirectoryA(PathOf("sub").c_str());
}

TEST_F(KivStore, OnlyPoFilesAreLanguages)
{
    WriteFile("es.pot", "");
    WriteFile("it.po.pending", kHeader);
    WriteFile("kiv1A2B.tmp", "");
    ::CreateDirectoryA(PathOf("nl.po").c_str(), nullptr);
    Load();
    EXPECT_STREQ("", Id("es"));
    EXPECT_STREQ("", Id("it"));
    EXPECT_STREQ("", Id("nl"));
    EXPECT_EQ(nullptr, Strings("es"));
    EXPECT_EQ(kStoreUnknownLanguage, Insert("a", L"b", "nl", "1", "2"));
    ::RemoveDirectoryA(PathOf("nl.po").c_str());
}

TEST_F(KivStore, TableHoldsDefaultTranslationKeyAndSectionPerRecord)
{
    WriteFile("de.po", std::string(kHeader) + Entry("100", "1", "OK", "In Ordnung") +
                           "\nmsgctxt \"no key\"\nmsgid \"skipped\"\nmsgstr \"\"\n" +
                           "\nmsgid \"free\"\nmsgstr \"frei\"\n" +
                           Entry("Dlg\xC3\xA4", "K\\nL", "Smile \xF0\x9F\x98\x80",
                                 "L\xC3\xA4"
                                 "cheln"));
    Load();
    CStringW** table = Strings("de");
    ASSERT_NE(nullptr, table);
    ASSERT_NE(nullptr, table[0]);
    EXPECT_STREQ(L"OK", table[0][0]);
    EXPECT_STREQ(L"In Ordnung", table[0][1]);
    EXPECT_STREQ(L"1", table[0][2]);
    EXPECT_STREQ(L"100", table[0][3]);
    ASSERT_NE(nullptr, table[1]);
    EXPECT_STREQ(L"Smile \xD83D\xDE00", table[1][0]);
    EXPECT_EQ(8, table[1][0].GetLength());
    EXPECT_STREQ(L"L\x00E4"
                 L"cheln",
                 table[1][1]);
    EXPECT_STREQ(L"K\nL", table[1][2]);
    EXPECT_STREQ(L"Dlg\x00E4", table[1][3]);
    EXPECT_EQ(nullptr, table[2]);
}

TEST_F(KivStore, UnknownLanguageHasNoTableAndAnEmptyFileAnEmptyOne)
{
    WriteFile("de.po", "");
    Load();
    EXPECT_EQ(nullptr, Strings("fr"));
    EXPECT_EQ(nullptr, Strings(""));
    EXPECT_EQ(nullptr, Strings(nullptr));
    CStringW** table = Strings("de");
    ASSERT_NE(nullptr, table);
    EXPECT_EQ(nullptr, table[0]);
    Unload();
    EXPECT_EQ("", ReadFile("de.po"));
    Remove("de.po");
}

TEST_F(KivStore, TablesStayValidUntilTheLibraryIsUnloaded)
{
    WriteFile("de.po", kGerman);
    Load();
    CStringW** first = Strings("de");
    EXPECT_EQ(first, Strings("de"));
    ASSERT_EQ(kStoreOk, Update(L"Gut", "de", "100", "1"));
    CStringW** second = Strings("de");
    EXPECT_NE(first, second);
    EXPECT_STREQ(L"In Ordnung", first[0][1]);
    EXPECT_STREQ(L"Gut", second[0][1]);
    EXPECT_EQ(nullptr, first[3]);
}

// A record's strings are ordinary shared strings: a copy stays valid after the library is gone.
TEST_F(KivStore, CopyOfARecordOutlivesTheLibrary)
{
    WriteFile("de.po", kGerman);
    Load();
    CStringW copy = Strings("de")[1][1];
    CStringW section = Strings("de")[2][3];
    Unload();
    EXPECT_STREQ(L"Abbrechen", copy);
    EXPECT_STREQ(L"STRINGTABLE", section);
    copy += L"!";
    EXPECT_STREQ(L"Abbrechen!", copy);
}

// Writing to a record copies it first, as for any shared string; nothing else changes.
TEST_F(KivStore, ChangingARecordTouchesNothingElse)
{
    WriteFile("de.po", kGerman);
    Load();
    CStringW** table = Strings("de");
    table[0][3] += L"x";
    table[1][1] = L"Weg";
    table[1][1].MakeUpper();
    EXPECT_STREQ(L"100x", table[0][3]);
    EXPECT_STREQ(L"100", table[1][3]);
    EXPECT_STREQ(L"WEG", table[1][1]);
    EXPECT_STREQ(L"Abbrechen", Held("de", "100", "2"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
}

TEST_F(KivStore, GetLanguageStringAnswersZeroAndTheTranslation)
{
    WriteFile("de.po", kGerman);
    Load();
    CStringW text(L"before");
    EXPECT_EQ(kStoreOk, Get("de", "100", "2", &text));
    EXPECT_STREQ(L"Abbrechen", text);
    text = L"untouched";
    EXPECT_EQ(kStoreNotHeld, Get("de", "100", "3", &text));
    EXPECT_EQ(kStoreNotHeld, Get("de", "200", "1", &text));
    EXPECT_EQ(kStoreNotHeld, Get("de", "100", "1 ", &text));
    EXPECT_STREQ(L"untouched", text);
}

// A miss recorded with an empty translation is held: the caller compares the empty text with its
// own and writes nothing, instead of inserting the same string again after every run.
TEST_F(KivStore, EmptyTranslationIsHeldAsEmptyText)
{
    WriteFile("de.po", kGerman);
    Load();
    CStringW text(L"before");
    EXPECT_EQ(kStoreOk, Get("de", "STRINGTABLE", "7", &text));
    EXPECT_STREQ(L"", text);
}

TEST_F(KivStore, KeysAndSectionsAreCaseSensitive)
{
    WriteFile("de.po", std::string(kHeader) + Entry("Main", "Title", "Title", "Titel"));
    Load();
    EXPECT_STREQ(L"Titel", Held("de", "Main", "Title"));
    EXPECT_STREQ(L"<not held>", Held("de", "Main", "title"));
    EXPECT_STREQ(L"<not held>", Held("de", "main", "Title"));
}

TEST_F(KivStore, BadArgumentsGetAClearAnswer)
{
    WriteFile("de.po", kGerman);
    Load();
    CStringW text;
    EXPECT_EQ(kStoreUnknownLanguage, Get("fr", "100", "1", &text));
    EXPECT_EQ(kStoreUnknownLanguage, Get(nullptr, "100", "1", &text));
    EXPECT_EQ(kStoreRefusedText, Get("de", nullptr, "1", &text));
    EXPECT_EQ(kStoreRefusedText, Get("de", "100", nullptr, &text));
    EXPECT_EQ(kStoreRefusedText, Get("de", "100", "1", nullptr));
    EXPECT_EQ(kStoreUnknownLanguage, Insert("a", L"b", "..\\de", "1", "2"));
    EXPECT_EQ(kStoreRefusedText, Insert("a", L"b", "de", nullptr, "2"));
    EXPECT_EQ(kStoreUnknownLanguage, Update(L"b", "fr", "100", "1"));
    EXPECT_EQ(kStoreRefusedText, Update(L"b", "de", "100", nullptr));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
}

TEST_F(KivStore, InsertIsInTheFileOnceTheLibraryIsUnloaded)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Apply", L"", "de", "100", "3"));
    EXPECT_STREQ(L"", Held("de", "100", "3"));
    EXPECT_EQ(kGerman, ReadFile("de.po"));
    Unload();
    EXPECT_EQ(kGerman + Entry("100", "3", "Apply", ""), ReadFile("de.po"));
}

TEST_F(KivStore, InsertWithANullTranslationOrDefaultStoresEmptyText)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_EQ(kStoreOk, Insert(nullptr, nullptr, "de", "100", "4"));
    Unload();
    EXPECT_EQ(kGerman + Entry("100", "4", "", ""), ReadFile("de.po"));
}

TEST_F(KivStore, FirstWriteOfAnEmptyFileGivesItAHeader)
{
    WriteFile("de.po", "");
    Load();
    EXPECT_EQ(kStoreOk, Insert("OK", L"", "de", "100", "1"));
    Unload();
    std::string text = ReadFile("de.po");
    std::string date = text.substr(text.find("PO-Revision-Date: ") + 18, 21);
    EXPECT_TRUE(IsRevisionDate(date)) << date;
    EXPECT_EQ("msgid \"\"\n"
              "msgstr \"\"\n"
              "\"Project-Id-Version: \\n\"\n"
              "\"PO-Revision-Date: " +
                  date +
                  "\\n\"\n"
                  "\"Last-Translator: \\n\"\n"
                  "\"Language-Team: \\n\"\n"
                  "\"Language: de\\n\"\n"
                  "\"MIME-Version: 1.0\\n\"\n"
                  "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                  "\"Content-Transfer-Encoding: 8bit\\n\"\n" +
                  Entry("100", "1", "OK", ""),
              text);
}

TEST_F(KivStore, InsertOfAHeldStringChangesNothing)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_EQ(kStoreAlreadyHeld, Insert("Okay", L"Jawohl", "de", "100", "1"));
    EXPECT_STREQ(L"In Ordnung", Held("de", "100", "1"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
}

TEST_F(KivStore, UpdateReplacesThatTranslationInItsPlace)
{
    const std::string before = std::string(kHeader) + "\n# translator's note\n#: main.rc:40\n" +
                               "msgctxt \"100\\n1\"\nmsgid \"OK\"\nmsgstr \"In Ordnung\"\n" +
                               "\n\n   msgctxt   \"100\\n2\"\nmsgid \"Cancel\"   \"\"\nmsgstr \"Abbrechen\"\n" +
                               Entry("100", "3", "Help", "Hilfe") + "\n#~ msgid \"Old\"\n#~ msgstr \"Alt\"\n";
    WriteFile("de.po", before);
    Load();
    EXPECT_EQ(kStoreOk, Update(L"Gut", "de", "100", "1"));
    EXPECT_EQ(kStoreOk, Update(L"Hilfe", "de", "100", "3"));
    Unload();
    std::string expected = before;
    expected.replace(expected.find("In Ordnung"), 10, "Gut");
    EXPECT_EQ(expected, ReadFile("de.po"));
}

TEST_F(KivStore, AnEmptyUpdateNeverErasesATranslatorsText)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_EQ(kStoreKeptTranslation, Update(L"", "de", "100", "1"));
    EXPECT_STREQ(L"In Ordnung", Held("de", "100", "1"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
}

TEST_F(KivStore, UpdateOfAStringNotHeldAnswersNotHeld)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_EQ(kStoreNotHeld, Update(L"Neu", "de", "100", "9"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
}

TEST_F(KivStore, NewEntriesFollowTheOldOnesInCallOrder)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Zoom", L"", "de", "300", "9"));
    EXPECT_EQ(kStoreOk, Insert("About", L"", "de", "200", "1"));
    EXPECT_EQ(kStoreOk, Insert("Print", L"Drucken", "de", "300", "2"));
    Unload();
    const std::string first = kGerman + Entry("300", "9", "Zoom", "") + Entry("200", "1", "About", "") +
                              Entry("300", "2", "Print", "Drucken");
    EXPECT_EQ(first, ReadFile("de.po"));
    // A later run changes a text where it stands and adds after the last.
    Load();
    EXPECT_EQ(kStoreOk, Update(L"Info", "de", "200", "1"));
    EXPECT_EQ(kStoreOk, Insert("Exit", L"", "de", "100", "0"));
    Unload();
    std::string second = first;
    second.replace(second.find("msgid \"About\"\nmsgstr \"\""), 23, "msgid \"About\"\nmsgstr \"Info\"");
    EXPECT_EQ(second + Entry("100", "0", "Exit", ""), ReadFile("de.po"));
}

TEST_F(KivStore, HostileTextsRoundTrip)
{
    const wchar_t* texts[] = {L"\"quoted\" and \\back\\slashed\\",
                              L"line\nfeeds\n\nand\ttabs\r\nand returns",
                              L"\x0001\x0007\x001B[0m\x007F\x0085",
                              L"\x00C4rger \x20AC \x4E2D\x6587 \x05E2\x05D1 \xD83D\xDE00 \xDBFF\xDFFF",
                              L"msgid \"x\"\nmsgstr \"y\"\n#, fuzzy",
                              L"\\n \\x41 \\101 %s %d {0}",
                              L" padded  "};
    WriteFile("de.po", kHeader);
    Load();
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(kStoreOk, Insert("", texts[i], "de", "S", std::to_string(i).c_str())) << i;
    Unload();
    Load();
    for (int i = 0; i < 7; ++i)
        EXPECT_STREQ(texts[i], Held("de", "S", std::to_string(i).c_str())) << i;
    CStringW** table = Strings("de");
    for (int i = 0; i < 7; ++i)
        EXPECT_STREQ(texts[i], table[i][1]) << i;
    EXPECT_NE(std::string::npos, ReadFile("de.po").find("msgctxt \"S\\n0\"\nmsgid \"\"\n"
                                                        "msgstr \"\\\"quoted\\\" and \\\\back\\\\slashed\\\\\"\n"));
    EXPECT_NE(std::string::npos, ReadFile("de.po").find("msgstr \"\\001\\a\\033[0m\x7F\xC2\x85\"\n"));
}

TEST_F(KivStore, LongTextsRoundTrip)
{
    WriteFile("de.po", kHeader);
    std::wstring longText;  // no line feed at its end, as its default text
    for (int i = 0; i < 4999; ++i)
        longText += i % 100 == 99 ? L'\n' : static_cast<wchar_t>(L'a' + i % 26);
    std::string longDefault(20000, 'x');
    Load();
    EXPECT_EQ(kStoreOk, Insert(longDefault.c_str(), longText.c_str(), "de", "S", "long"));
    Unload();
    Load();
    EXPECT_STREQ(longText.c_str(), Held("de", "S", "long"));
    EXPECT_EQ(CStringW(longDefault.c_str()), Strings("de")[0][0]);
}

TEST_F(KivStore, NarrowTextsAreTakenInTheAnsiCodePage)
{
    WriteFile("de.po", kHeader);
    // Characters every ANSI code page of a Latin-script system has: a-umlaut and sharp s.
    CString section(CStringW(L"Dialog\x00E4"));
    CString defaultText(CStringW(L"Gr\x00FC\x00DF"
                                 L"e"));
    ASSERT_EQ(CStringW(L"Dialog\x00E4"), CStringW(section)) << "ANSI code page " << ::GetACP();
    Load();
    EXPECT_EQ(kStoreOk, Insert(defaultText, L"", "de", section, "1"));
    Unload();
    EXPECT_EQ(kHeader + Entry("Dialog\xC3\xA4", "1",
                              "Gr\xC3\xBC\xC3\x9F"
                              "e",
                              ""),
              ReadFile("de.po"));
    Load();
    EXPECT_STREQ(L"Gr\x00FC\x00DF"
                 L"e",
                 Strings("de")[0][0]);
    EXPECT_STREQ(L"", Held("de", section, "1"));
}

TEST_F(KivStore, TextsAPoFileCannotHoldAreRefusedAndNothingIsWritten)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_EQ(kStoreRefusedText, Insert("a", L"lone \xD800 surrogate", "de", "S", "1"));
    EXPECT_EQ(kStoreRefusedText, Insert("a", L"\xDC00", "de", "S", "2"));
    EXPECT_EQ(kStoreRefusedText, Insert("a", L"separator \x0004", "de", "S", "3"));
    EXPECT_EQ(kStoreRefusedText, Insert("sep\x04", L"", "de", "S", "4"));
    EXPECT_EQ(kStoreRefusedText, Insert("a", L"", "de", "S\x04", "5"));
    // A line feed in the section could be read back as part of the key.
    EXPECT_EQ(kStoreRefusedText, Insert("a", L"", "de", "S\nT", "6"));
    EXPECT_EQ(kStoreRefusedText, Update(L"\xD83D", "de", "100", "1"));
    EXPECT_STREQ(L"<not held>", Held("de", "S", "1"));
    EXPECT_STREQ(L"In Ordnung", Held("de", "100", "1"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
}

TEST_F(KivStore, KeyWithLineFeedsIsOneKey)
{
    WriteFile("de.po", kHeader);
    Load();
    EXPECT_EQ(kStoreOk, Insert("a", L"b", "de", "S", "K\nL"));
    Unload();
    EXPECT_EQ(kHeader + Entry("S", "K\\nL", "a", "b"), ReadFile("de.po"));
    Load();
    EXPECT_STREQ(L"K\nL", Strings("de")[0][2]);
    EXPECT_STREQ(L"S", Strings("de")[0][3]);
}

// msgfmt -c refuses a translation whose leading or trailing line feed differs from its default
// text. The translation is kept, and the entry flagged fuzzy so that the file stays valid and a
// translator sees it needs review; until then the store answers no translation for it.
TEST_F(KivStore, TranslationWithOtherOuterLineFeedsIsKeptAndFlaggedFuzzy)
{
    WriteFile("de.po", kHeader);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Line\n", L"Zeile", "de", "S", "1"));
    EXPECT_EQ(kStoreOk, Insert("Line\n", L"", "de", "S", "2"));
    EXPECT_EQ(kStoreOk, Insert("\nLine", L"\nZeile", "de", "S", "3"));
    Unload();
    EXPECT_EQ(kHeader + std::string("\n#, fuzzy") + Entry("S", "1", "Line\\n", "Zeile") +
                  Entry("S", "2", "Line\\n", "") +
                  "\nmsgctxt \"S\\n3\"\nmsgid \"\"\n\"\\n\"\n\"Line\"\nmsgstr \"\"\n\"\\n\"\n\"Zeile\"\n",
              ReadFile("de.po"));
    Load();
    EXPECT_STREQ(L"", Held("de", "S", "1"));
    EXPECT_EQ(kStoreOk, Update(L"Zeile\n", "de", "S", "2"));
    Unload();
    EXPECT_NE(std::string::npos, ReadFile("de.po").find("\n#, fuzzy\nmsgctxt \"S\\n1\""));
    EXPECT_EQ(std::string::npos, ReadFile("de.po").find("\n#, fuzzy\nmsgctxt \"S\\n2\""));
}

// As gettext at run time: a fuzzy translation waits for a translator to confirm it. The entry
// is held (no insertion), answers an empty translation, and is written back as it was.
TEST_F(KivStore, FuzzyTranslationIsNotHandedOutAndTheEntryIsKept)
{
    const std::string fuzzy =
        "\n#, fuzzy\n#| msgid \"Open\"\nmsgctxt \"100\\n1\"\nmsgid \"Open...\"\nmsgstr \"\u00D6ffnen\"\n";
    WriteFile("de.po", kHeader + fuzzy + Entry("100", "2", "Close", "Schlie\u00DFen"));
    Load();
    EXPECT_STREQ(L"", Held("de", "100", "1"));
    EXPECT_STREQ(L"Schlie\u00DFen", Held("de", "100", "2"));
    CStringW** records = Strings("de");
    ASSERT_NE(nullptr, records[0]);
    ASSERT_NE(nullptr, records[1]);
    EXPECT_EQ(nullptr, records[2]);
    EXPECT_STREQ(L"Open...", records[0][0]);
    EXPECT_STREQ(L"", records[0][1]);
    EXPECT_STREQ(L"Schlie\u00DFen", records[1][1]);
    EXPECT_EQ(kStoreAlreadyHeld, Insert("Open...", L"", "de", "100", "1"));
    EXPECT_EQ(kStoreOk, Insert("Print", L"", "de", "100", "3"));
    Unload();
    EXPECT_EQ(kHeader + fuzzy + Entry("100", "2", "Close", "Schlie\u00DFen") + Entry("100", "3", "Print", ""),
              ReadFile("de.po"));
}

// A file as msgmerge and PO editors leave it: plural forms, a fuzzy guess with its previous
// text, obsolete entries, comments of every kind. It is used as gettext uses it and kept byte
// for byte, with the new text added after its last entry, before the obsolete ones.
TEST_F(KivStore, FileOfPoToolsIsUsedAsGettextDoesAndKeptByteForByte)
{
    const std::string file =
        "# German translation.\n"
        "msgid \"\"\nmsgstr \"\"\n\"Project-Id-Version: Sample 1.0\\n\"\n\"PO-Revision-Date: 2026-11-20 "
        "10:00+0100\\n\"\n"
        "\"Last-Translator: Anna Berg <anna@example.com>\\n\"\n\"Language-Team: German\\n\"\n\"Language: de\\n\"\n"
        "\"MIME-Version: 1.0\\n\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
        "\"Content-Transfer-Encoding: 8bit\\n\"\n\"Plural-Forms: nplurals=2; plural=(n != 1);\\n\"\n"
        "\n#. the first button\n#: dialog.rc:12\nmsgctxt \"100\\n1\"\nmsgid \"OK\"\nmsgstr \"OK\"\n"
        "\n#, fuzzy\n#| msgid \"Open\"\nmsgctxt \"100\\n2\"\nmsgid \"Open...\"\nmsgstr \"\xC3\x96"
        "ffnen\"\n"
        "\nmsgctxt \"100\\n3\"\nmsgid \"%d file\"\nmsgid_plural \"%d files\"\n"
        "msgstr[0] \"%d Datei\"\nmsgstr[1] \"%d Dateien\"\n"
        "\n#~ msgctxt \"100\\n9\"\n#~ msgid \"Gone\"\n#~ msgstr \"Weg\"\n";
    WriteFile("de.po", file);
    Load();
    EXPECT_STREQ(L"OK", Held("de", "100", "1"));
    EXPECT_STREQ(L"", Held("de", "100", "2"));  // fuzzy: not handed out
    CStringW** records = Strings("de");
    ASSERT_NE(nullptr, records[0]);
    ASSERT_NE(nullptr, records[1]);
    EXPECT_EQ(nullptr, records[2]);  // neither the plural entry nor the obsolete one is a record
    EXPECT_EQ(kStoreOk, Insert("Close", L"Schlie\u00DFen", "de", "100", "4"));
    Unload();
    std::size_t obsolete = file.find("\n#~ ");
    std::string added = Entry("100", "4", "Close",
                              "Schlie\xC3\x9F"
                              "en");
    EXPECT_EQ(file.substr(0, obsolete) + added + file.substr(obsolete), ReadFile("de.po"));
}

TEST_F(KivStore, FileWithCrLfKeepsItsLineEnds)
{
    const std::string before =
        Replaced(kHeader, "\n", "\r\n") + "\r\nmsgctxt \"1\\n2\"\r\nmsgid \"a\"\r\nmsgstr \"b\"\r\n";
    WriteFile("de.po", before);
    Load();
    EXPECT_EQ(kStoreOk, Insert("c", L"d", "de", "1", "3"));
    Unload();
    EXPECT_EQ(before + "\r\nmsgctxt \"1\\n3\"\r\nmsgid \"c\"\r\nmsgstr \"d\"\r\n", ReadFile("de.po"));
}

// Carriage returns alone end the lines of some editors' files, and msgfmt reads them: so does
// the store, and what it adds ends its lines the same way.
TEST_F(KivStore, FileWithCarriageReturnsAloneIsReadAndKeepsItsLineEnds)
{
    const std::string before = Replaced(kHeader, "\n", "\r") + "\rmsgctxt \"1\\n2\"\rmsgid \"a\"\rmsgstr \"b\"\r";
    WriteFile("de.po", before);
    Load();
    EXPECT_STREQ(L"b", Held("de", "1", "2"));
    EXPECT_EQ(kStoreOk, Insert("c", L"d", "de", "1", "3"));
    Unload();
    EXPECT_EQ(before + "\rmsgctxt \"1\\n3\"\rmsgid \"c\"\rmsgstr \"d\"\r", ReadFile("de.po"));
}

// A file the store cannot read is a translator's work in progress: it is never overwritten, the
// language answers nothing, and what the program adds waits in a side file beside it.
TEST_F(KivStore, UnreadableFileIsNeverOverwritten)
{
    const std::string broken = kGerman + "\nmsgctxt \"100\\n5\"\nmsgid \"Half\nmsgstr \"\"\n";
    WriteFile("de.po", broken);
    Load();
    EXPECT_STREQ("de", Id("de"));
    EXPECT_STREQ("de", Id("German"));
    CStringW** table = Strings("de");
    ASSERT_NE(nullptr, table);
    EXPECT_EQ(nullptr, table[0]);
    EXPECT_STREQ(L"<not held>", Held("de", "100", "1"));
    EXPECT_EQ(kStoreSetAside, Insert("Apply", L"", "de", "100", "3"));
    EXPECT_EQ(kStoreSetAside, Update(L"Gut", "de", "100", "1"));
    Unload();
    EXPECT_EQ(broken, ReadFile("de.po"));
    std::string side = ReadFile("de.po.pending");
    EXPECT_EQ(0u, side.find("msgid \"\"\nmsgstr \"\"\n\"Project-Id-Version: \\n\"\n")) << side;
    EXPECT_NE(std::string::npos,
              side.find(Entry("100", "3", "Apply", "") + "\n#. translation update; the default text is not known" +
                        Entry("100", "1", "", "Gut")))
        << side;
    Remove("de.po");
}

TEST_F(KivStore, SetAsideChangesJoinTheFileOnceItCanBeRead)
{
    WriteFile("de.po", "msgid \"broken");
    Load();
    EXPECT_EQ(kStoreSetAside, Insert("Apply", L"", "de", "100", "3"));
    EXPECT_EQ(kStoreSetAside, Update(L"Gut", "de", "100", "1"));
    EXPECT_EQ(kStoreSetAside, Update(L"Neu", "de", "100", "8"));
    Unload();
    ASSERT_TRUE(Exists("de.po.pending"));
    // The translator repairs the file.
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_STREQ(L"", Held("de", "100", "3"));
    EXPECT_STREQ(L"Gut", Held("de", "100", "1"));
    Unload();
    EXPECT_FALSE(Exists("de.po.pending"));
    std::string expected = kGerman + Entry("100", "3", "Apply", "") + Entry("100", "8", "", "Neu");
    expected.replace(expected.find("In Ordnung"), 10, "Gut");
    EXPECT_EQ(expected, ReadFile("de.po"));
}

TEST_F(KivStore, SetAsideInsertionOfAStringTheRepairedFileHoldsIsDropped)
{
    WriteFile("de.po", "msgid \"broken");
    Load();
    EXPECT_EQ(kStoreSetAside, Insert("OK", L"", "de", "100", "1"));
    Unload();
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_STREQ(L"In Ordnung", Held("de", "100", "1"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
    EXPECT_FALSE(Exists("de.po.pending"));
}

TEST_F(KivStore, UnreadableSideFileIsNotOverwrittenAndTheChangesGoToTheNextOne)
{
    WriteFile("de.po", "msgid \"broken");
    WriteFile("de.po.pending", "msgid \"also broken");
    Load();
    EXPECT_EQ(kStoreSetAside, Insert("OK", L"Gut", "de", "100", "1"));
    Unload();
    EXPECT_EQ("msgid \"broken", ReadFile("de.po"));
    EXPECT_EQ("msgid \"also broken", ReadFile("de.po.pending"));
    ASSERT_TRUE(Exists("de.po.2.pending"));
    EXPECT_NE(std::string::npos, ReadFile("de.po.2.pending").find(Entry("100", "1", "OK", "Gut")));

    // A later run adds to the same side file, not a third one.
    Load();
    EXPECT_EQ(kStoreSetAside, Insert("Cancel", L"", "de", "100", "2"));
    Unload();
    EXPECT_NE(std::string::npos, ReadFile("de.po.2.pending").find(Entry("100", "2", "Cancel", "")));
    EXPECT_FALSE(Exists("de.po.3.pending"));

    // Once the language file can be read, the kept changes join it and their side file goes;
    // the one nobody could read stays for a person to look at.
    WriteFile("de.po", kHeader);
    Load();
    EXPECT_STREQ(L"Gut", Held("de", "100", "1"));
    Unload();
    EXPECT_NE(std::string::npos, ReadFile("de.po").find(Entry("100", "1", "OK", "Gut")));
    EXPECT_NE(std::string::npos, ReadFile("de.po").find(Entry("100", "2", "Cancel", "")));
    EXPECT_FALSE(Exists("de.po.2.pending"));
    EXPECT_EQ("msgid \"also broken", ReadFile("de.po.pending"));
    Remove("de.po");
    Remove("de.po.pending");
}

TEST_F(KivStore, ReadOnlyFileIsNotReplacedAndTheChangesWaitBesideIt)
{
    WriteFile("de.po", kGerman);
    ::SetFileAttributesA(PathOf("de.po").c_str(), FILE_ATTRIBUTE_READONLY);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Apply", L"Anwenden", "de", "100", "3"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
    EXPECT_NE(std::string::npos, ReadFile("de.po.pending").find(Entry("100", "3", "Apply", "Anwenden")));
    ::SetFileAttributesA(PathOf("de.po").c_str(), FILE_ATTRIBUTE_NORMAL);
    Load();
    EXPECT_STREQ(L"Anwenden", Held("de", "100", "3"));
    Unload();
    EXPECT_EQ(kGerman + Entry("100", "3", "Apply", "Anwenden"), ReadFile("de.po"));
    EXPECT_FALSE(Exists("de.po.pending"));
}

// A file another program holds open cannot be replaced; the changes wait beside it until it can.
TEST_F(KivStore, OpenFileIsNotReplacedAndTheChangesWaitBesideIt)
{
    WriteFile("de.po", kGerman);
    HANDLE reader =
        ::CreateFileA(PathOf("de.po").c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, reader);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Apply", L"", "de", "100", "3"));
    Unload();
    ::CloseHandle(reader);
    EXPECT_EQ(kGerman, ReadFile("de.po"));
    EXPECT_NE(std::string::npos, ReadFile("de.po.pending").find(Entry("100", "3", "Apply", "")));
    Load();
    EXPECT_STREQ(L"", Held("de", "100", "3"));
    Unload();
    EXPECT_EQ(kGerman + Entry("100", "3", "Apply", ""), ReadFile("de.po"));
    EXPECT_FALSE(Exists("de.po.pending"));
}

// A temporary file left by a write that never finished is not a language and disturbs nothing.
TEST_F(KivStore, TemporaryFileLeftByAnInterruptedWriteIsIgnored)
{
    WriteFile("de.po", kGerman);
    WriteFile("kiv3F2A.tmp", kGerman.substr(0, 100));
    Load();
    EXPECT_STREQ("", Id("kiv3F2A"));
    EXPECT_EQ(kStoreOk, Insert("Apply", L"", "de", "100", "3"));
    Unload();
    EXPECT_EQ(kGerman + Entry("100", "3", "Apply", ""), ReadFile("de.po"));
    EXPECT_EQ(kGerman.substr(0, 100), ReadFile("kiv3F2A.tmp"));
    WIN32_FIND_DATAA found;
    HANDLE search = ::FindFirstFileA(PathOf("*.tmp").c_str(), &found);
    ASSERT_NE(INVALID_HANDLE_VALUE, search);
    EXPECT_STREQ("kiv3F2A.tmp", found.cFileName);
    EXPECT_FALSE(::FindNextFileA(search, &found));
    ::FindClose(search);
}

TEST_F(KivStore, ChangesMadeByAnotherProgramMeanwhileAreKept)
{
    WriteFile("de.po", kGerman);
    Load();
    EXPECT_STREQ(L"In Ordnung", Held("de", "100", "1"));
    EXPECT_EQ(kStoreOk, Insert("Apply", L"", "de", "100", "3"));
    // A translator saves the file while the program runs.
    std::string edited = kGerman;
    edited.replace(edited.find("Abbrechen"), 9, "Verwerfen");
    WriteFile("de.po", edited);
    Unload();
    EXPECT_EQ(edited + Entry("100", "3", "Apply", ""), ReadFile("de.po"));
}

// Once its table is handed out, a language no longer holds its file's entries beside the table:
// it answers from the table's own strings, whatever the holder of the table does with it.
TEST_F(KivStore, AfterTheTableIsTakenLookupsAnswerFromItsOwnStrings)
{
    const std::string menu = "Men\xC3\xBC";  // a section in UTF-8, asked for in ANSI
    WriteFile("de.po", kGerman +
                           Entry("200", "1", "Close",
                                 "Schlie\xC3\x9F"
                                 "en") +
                           Entry(menu, "1", "Help", "Hilfe") + Entry("300", "1", "Undo", "") +
                           "\n#, fuzzy\nmsgctxt \"300\\n2\"\nmsgid \"Redo\"\nmsgstr \"Wiederholen\"\n");
    Load();
    CStringW** table = Strings("de");
    ASSERT_NE(nullptr, table);
    // Equal keys of several sections may share one string; writing to one leaves the others.
    ASSERT_STREQ(L"1", table[0][2]);
    ASSERT_STREQ(L"1", table[3][2]);
    table[0][2] += L"0";
    table[3][2].MakeUpper();
    table[3][1] = L"changed";
    EXPECT_STREQ(L"1", table[4][2]);
    EXPECT_STREQ(L"In Ordnung", Held("de", "100", "1"));
    EXPECT_STREQ(L"Schlie\x00DF"
                 L"en",
                 Held("de", "200", "1"));
    EXPECT_STREQ(L"Hilfe", Held("de", "Men\xFC", "1"));
    EXPECT_STREQ(L"", Held("de", "300", "1"));
    EXPECT_STREQ(L"", Held("de", "300", "2"));  // fuzzy: no translation yet
    CStringW text(L"untouched");
    EXPECT_EQ(kStoreNotHeld, Get("de", "100", "10", &text));
    EXPECT_EQ(kStoreNotHeld, Get("de", "10", "01", &text));
    EXPECT_EQ(kStoreNotHeld, Get("de", "\xFF", "1", &text));
    EXPECT_STREQ(L"untouched", text);
    EXPECT_EQ(kStoreRefusedText, Get("de", "100", "1", nullptr));
    EXPECT_STREQ("de", Id("German"));
    EXPECT_EQ(table, Strings("de"));  // the same table while nothing changed
    Unload();
    EXPECT_EQ(kGerman +
                  Entry("200", "1", "Close",
                        "Schlie\xC3\x9F"
                        "en") +
                  Entry(menu, "1", "Help", "Hilfe") + Entry("300", "1", "Undo", "") +
                  "\n#, fuzzy\nmsgctxt \"300\\n2\"\nmsgid \"Redo\"\nmsgstr \"Wiederholen\"\n",
              ReadFile("de.po"));
}

// The first change after the table was handed out reads the file again: what another program
// wrote meanwhile is the file the change is made in.
TEST_F(KivStore, AChangeAfterTheTableIsTakenIsMadeInTheFileAsItIsThen)
{
    WriteFile("de.po", kGerman);
    Load();
    ASSERT_NE(nullptr, Strings("de"));
    std::string edited = kGerman + Entry("100", "3", "Apply", "Anwenden");
    edited.replace(edited.find("Abbrechen"), 9, "Verwerfen");
    WriteFile("de.po", edited);
    EXPECT_EQ(kStoreAlreadyHeld, Insert("Apply", L"", "de", "100", "3"));
    EXPECT_EQ(kStoreOk, Insert("Help", L"Hilfe", "de", "100", "4"));
    EXPECT_EQ(kStoreOk, Update(L"Gut", "de", "100", "1"));
    EXPECT_STREQ(L"Verwerfen", Held("de", "100", "2"));
    CStringW** table = Strings("de");
    ASSERT_NE(nullptr, table);
    EXPECT_STREQ(L"Hilfe", table[4][1]);
    Unload();
    EXPECT_EQ(Replaced(edited, "In Ordnung", "Gut") + Entry("100", "4", "Help", "Hilfe"), ReadFile("de.po"));
}

// A file that can no longer be read when the first change comes: the change waits beside it.
TEST_F(KivStore, AChangeAfterTheTableIsTakenWaitsBesideAFileThatCannotBeReadAnyMore)
{
    WriteFile("de.po", kGerman);
    Load();
    ASSERT_NE(nullptr, Strings("de"));
    WriteFile("de.po", "msgid \"broken");
    EXPECT_EQ(kStoreSetAside, Insert("Help", L"Hilfe", "de", "100", "4"));
    Unload();
    EXPECT_EQ("msgid \"broken", ReadFile("de.po"));
    EXPECT_NE(std::string::npos, ReadFile("de.po.pending").find("Hilfe"));
    ::DeleteFileA(PathOf("de.po").c_str());  // written by the test, not by the store
}

// Not even the header is completed when no text changed: the file stays as its translator left it.
TEST_F(KivStore, NothingChangedNothingWritten)
{
    const std::string before = Replaced(kHeader, "UTF-8", "CHARSET") + Entry("100", "1", "OK", "Gut");
    WriteFile("de.po", before);
    Load();
    EXPECT_EQ(kStoreOk, Update(L"Gut", "de", "100", "1"));
    EXPECT_EQ(kStoreAlreadyHeld, Insert("OK", L"", "de", "100", "1"));
    EXPECT_NE(nullptr, Strings("de"));
    Unload();
    EXPECT_EQ(before, ReadFile("de.po"));
    Load();
    EXPECT_EQ(kStoreOk, Update(L"Prima", "de", "100", "1"));
    Unload();
    // Only the charset line of the header changes with the text.
    EXPECT_EQ(Replaced(Replaced(before, "Gut", "Prima"), "CHARSET", "UTF-8"), ReadFile("de.po"));
}

// A host that exits without releasing the library still leaves its texts in the file.
TEST_F(KivStore, ChangesAreWrittenWhenTheProcessEndsWithoutReleasingTheLibrary)
{
    WriteFile("de.po", kGerman);
    std::string command = "\"" + ProgramFolder() + "kivstore_save_helper.exe\" Apply Anwenden de 200 1 exit";
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(
        ::CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process));
    ASSERT_EQ(WAIT_OBJECT_0, ::WaitForSingleObject(process.hProcess, 60000));
    DWORD exitCode = 1;
    ::GetExitCodeProcess(process.hProcess, &exitCode);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    EXPECT_EQ(0u, exitCode);
    EXPECT_EQ(kGerman + Entry("200", "1", "Apply", "Anwenden"), ReadFile("de.po"));
}

// The file keeps the name the folder gives it, in its own spelling.
TEST_F(KivStore, FileKeepsItsSpelling)
{
    WriteFile("Fr.PO", kHeader);
    Load();
    EXPECT_STREQ("Fr", Id("fr"));
    EXPECT_EQ(kStoreOk, Insert("Apply", L"Appliquer", "fr", "100", "3"));
    Unload();
    EXPECT_EQ(kHeader + Entry("100", "3", "Apply", "Appliquer"), ReadFile("Fr.PO"));
    WIN32_FIND_DATAA found;
    HANDLE search = ::FindFirstFileA(PathOf("*.po").c_str(), &found);
    ASSERT_NE(INVALID_HANDLE_VALUE, search);
    EXPECT_STREQ("Fr.PO", found.cFileName);
    EXPECT_FALSE(::FindNextFileA(search, &found));
    ::FindClose(search);
}

TEST_F(KivStore, FolderRelativeToTheProgram)
{
    WriteFile("de.po", kGerman);
    std::string relative = Folder().substr(ProgramFolder().size());
    WriteSettings("[Store]\r\nDirectory=" + relative + "\r\n");
    Load();
    EXPECT_STREQ("de", Id("Deutsch"));
}

TEST_F(KivStore, DefaultFolderIsLangBesideTheProgram)
{
    WriteSettings("[Other]\r\nKey=1\r\n");
    std::string lang = ProgramFolder() + "lang\\";
    ::CreateDirectoryA(lang.c_str(), nullptr);
    std::string path = lang + "kivstore-default-folder.po";
    HANDLE file = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ::CloseHandle(file);
    Load();
    EXPECT_STREQ("kivstore-default-folder", Id("KIVSTORE-DEFAULT-FOLDER"));
    Unload();
    ::DeleteFileA(path.c_str());
    ::RemoveDirectoryA(lang.c_str());
}

// The calls a host's localization makes: read the language at start, then at the end insert
// what the store lacks, update what differs and leave what is equal.
TEST_F(KivStore, StartAndEndOfAHostRun)
{
    WriteFile("de.po", kGerman);
    WriteSettings("[Store]\r\nDirectory=" + Folder() + "\r\n[Environment]\r\nLanguageSetting=German\r\n");
    Load();
    CString id = Id("German");
    ASSERT_STREQ("de", id);
    CStringW** table = Strings(id);
    int records = 0;
    while (table[records])
        ++records;
    EXPECT_EQ(3, records);
    Unload();

    Load();
    CStringW stored;
    EXPECT_EQ(kStoreNotHeld, Get(id, "100", "3", &stored));
    EXPECT_EQ(kStoreOk, Insert("Apply", L"", id, "100", "3"));
    EXPECT_EQ(kStoreOk, Get(id, "100", "1", &stored));
    EXPECT_EQ(kStoreOk, Update(L"Einverstanden", id, "100", "1"));
    EXPECT_EQ(kStoreOk, Get(id, "100", "2", &stored));
    EXPECT_STREQ(L"Abbrechen", stored);
    Unload();
    std::string expected = kGerman + Entry("100", "3", "Apply", "");
    expected.replace(expected.find("In Ordnung"), 10, "Einverstanden");
    EXPECT_EQ(expected, ReadFile("de.po"));
}

TEST_F(KivStore, LanguagesAreWrittenEachToItsOwnFile)
{
    WriteFile("de.po", kGerman);
    WriteFile("fr.po", kHeader);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Apply", L"Appliquer", "fr", "100", "3"));
    EXPECT_STREQ(L"<not held>", Held("de", "100", "3"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("de.po"));
    EXPECT_EQ(kHeader + Entry("100", "3", "Apply", "Appliquer"), ReadFile("fr.po"));
}

// A caller that keeps one unit of each field of the records it read hands them back as new
// texts; those echoes are not written, while a real one-character text is.
TEST_F(KivStore, EchoOfTheFirstUnitsOfARecordIsNotWritten)
{
    const std::string file = std::string(kHeader) + Entry("200", "10", "Hello", "Hallo");
    WriteFile("de.po", file);
    Load();
    EXPECT_EQ(kStoreEchoNotWritten, Insert("H", L"H", "de", "2", "1"));
    EXPECT_STREQ(L"<not held>", Held("de", "2", "1"));
    Unload();
    EXPECT_EQ(file, ReadFile("de.po"));
}

TEST_F(KivStore, EchoOfARecordWithAnEmptyTranslationIsNotWritten)
{
    const std::string file = std::string(kHeader) + Entry("STRINGTABLE", "7", "Open", "");
    WriteFile("de.po", file);
    Load();
    EXPECT_EQ(kStoreEchoNotWritten, Insert("O", L"", "de", "S", "7"));
    Unload();
    EXPECT_EQ(file, ReadFile("de.po"));
}

TEST_F(KivStore, EchoOfANonAsciiRecordIsRecognisedThroughTheAnsiCodePage)
{
    const std::string file = std::string(kHeader) + Entry("\xC3\x9C"
                                                          "bersicht",
                                                          "Titel", "\xC3\x84nderung", "\xE6\x97\xA5\xE6\x9C\xAC");
    WriteFile("de.po", file);
    Load();
    EXPECT_EQ(kStoreEchoNotWritten, Insert("\xC4", L"\x65E5", "de", "\xDC", "T"));
    Unload();
    EXPECT_EQ(file, ReadFile("de.po"));
}

TEST_F(KivStore, OneCharacterTextThatEchoesNoRecordIsWritten)
{
    const std::string file = std::string(kHeader) + Entry("200", "10", "Hello", "Hallo");
    WriteFile("de.po", file);
    Load();
    EXPECT_EQ(kStoreOk, Insert("X", L"", "de", "2", "1"));
    EXPECT_EQ(kStoreOk, Insert("H", L"", "de", "2", "2"));
    Unload();
    EXPECT_EQ(file + Entry("2", "1", "X", "") + Entry("2", "2", "H", ""), ReadFile("de.po"));
}

TEST_F(KivStore, EchoWhoseSectionAndKeyTheFileHoldsIsAlreadyHeld)
{
    const std::string file = std::string(kHeader) + Entry("2", "1", "A", "B");
    WriteFile("de.po", file);
    Load();
    EXPECT_EQ(kStoreAlreadyHeld, Insert("A", L"B", "de", "2", "1"));
    Unload();
    EXPECT_EQ(file, ReadFile("de.po"));
}

TEST_F(KivStore, LongerTextsAreNeverTakenForEchoes)
{
    const std::string file = std::string(kHeader) + Entry("200", "10", "Hello", "Hallo");
    WriteFile("de.po", file);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Hi", L"H", "de", "2", "1"));
    Unload();
    EXPECT_EQ(file + Entry("2", "1", "Hi", "H"), ReadFile("de.po"));
}

TEST_F(KivStore, TextInsertedInThisRunIsARecordWhoseEchoIsNotWritten)
{
    WriteFile("de.po", kHeader);
    Load();
    EXPECT_EQ(kStoreOk, Insert("Print", L"", "de", "100", "9"));
    EXPECT_EQ(kStoreOk, Insert("Q", L"", "de", "5", "5"));
    EXPECT_EQ(kStoreEchoNotWritten, Insert("P", L"", "de", "1", "9"));
    Unload();
    EXPECT_EQ(std::string(kHeader) + Entry("100", "9", "Print", "") + Entry("5", "5", "Q", ""), ReadFile("de.po"));
}

// Hostile input: what a store folder, a settings file and texts may be, and nothing breaks.

TEST_F(KivStore, StoreFolderThatIsAFileHoldsNoLanguage)
{
    WriteFile("not-a-folder", kGerman);
    WriteSettings("[Store]\r\nDirectory=" + PathOf("not-a-folder") + "\r\n");
    Load();
    EXPECT_STREQ("", Id("de"));
    EXPECT_EQ(nullptr, Strings("de"));
    EXPECT_EQ(kStoreUnknownLanguage, Insert("OK", L"", "de", "1", "1"));
    Unload();
    EXPECT_EQ(kGerman, ReadFile("not-a-folder"));
}

TEST_F(KivStore, SectionAndKeyOf64KilobytesRoundTrip)
{
    WriteFile("de.po", kHeader);
    std::string section(65536, 's');
    std::string key(65536, 'k');
    Load();
    EXPECT_EQ(kStoreOk, Insert("Text", L"Text", "de", section.c_str(), key.c_str()));
    Unload();
    Load();
    EXPECT_STREQ(L"Text", Held("de", section.c_str(), key.c_str()));
    CStringW** records = Strings("de");
    ASSERT_NE(nullptr, records[0]);
    EXPECT_EQ(65536, records[0][3].GetLength());
    EXPECT_EQ(65536, records[0][2].GetLength());
}

TEST_F(KivStore, FileOf50MegabytesWithALineOf1MegabyteIsReadAndKept)
{
    std::string file = kHeader;
    std::string line(1 << 20, 'x');
    file += Entry("L", "1", "long", line.c_str());
    std::string filler(400, 'y');
    for (int i = 0; file.size() < (50u << 20); ++i)
        file += Entry("S", std::to_string(i).c_str(), "t", filler.c_str());
    WriteFile("de.po", file);
    Load();
    EXPECT_EQ(1 << 20, Held("de", "L", "1").GetLength());
    EXPECT_EQ(kStoreOk, Insert("new", L"neu", "de", "N", "1"));
    Unload();
    std::string after = ReadFile("de.po");
    EXPECT_EQ(0, after.compare(0, file.size(), file));
    EXPECT_EQ(file + Entry("N", "1", "new", "neu"), after);
}

namespace {

// Starts the saving helper, lets it run for a moment and kills it.
void KillSaverAfter(DWORD milliseconds)
{
    std::string command = ProgramFolder() + "kivstore_kill_helper.exe";
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(
        ::CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process));
    ::Sleep(milliseconds);
    ::TerminateProcess(process.hProcess, 9);
    ::WaitForSingleObject(process.hProcess, 30000);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

}  // namespace

namespace {

// The keys a language holds (section and key) by their records.
std::set<std::string> HeldKeys(CStringW** records)
{
    std::set<std::string> keys;
    for (int i = 0; records != nullptr && records[i] != nullptr; ++i)
        keys.insert(std::string(CString(records[i][3])) + "/" + std::string(CString(records[i][2])));
    return keys;
}

}  // namespace

// A process killed at any instant of its saves leaves the old file or a new one, whole: it
// reads, holds every text it held, and each save's texts entirely or not at all (the saver
// adds 50 at a time). KIV_KILL_ROUNDS sets the number of kills (./kiv kills runs a thousand).
TEST_F(KivStore, KilledWhileSavingLeavesAWholeFileEveryTime)
{
    std::string file = kHeader;
    for (int i = 0; i < 2000; ++i)
        file += Entry("S", std::to_string(i).c_str(), "Text of the program", "Text des Programms");
    WriteFile("de.po", file);
    std::srand(20261124);
    const char* rounds = std::getenv("KIV_KILL_ROUNDS");
    const int kills = rounds != nullptr && std::atoi(rounds) > 0 ? std::atoi(rounds) : 25;
    std::set<std::string> before;
    int checked = 0, lost = 0, torn = 0;
    for (int round = 0; round < kills; ++round)
    {
        KillSaverAfter(300 + (DWORD)(std::rand() % 1200));
        Load();
        CStringW** records = Strings("de");
        ASSERT_NE(nullptr, records) << "round " << round << ": the file does not read";
        std::set<std::string> now = HeldKeys(records);
        ++checked;
        for (const std::string& key : before)
            lost += now.count(key) == 0 ? 1 : 0;
        torn += (now.size() - 2000) % 50 != 0 ? 1 : 0;
        EXPECT_STREQ(L"Text des Programms", Held("de", "S", "1999")) << "round " << round;
        Unload();
        before = std::move(now);
    }
    EXPECT_EQ(0, lost) << "texts a file held and a later one lacked";
    EXPECT_EQ(0, torn) << "files that hold part of a save";
    EXPECT_GT(before.size(), 2000u);  // some saves got through
    std::printf("kills: %d, files checked: %d, entries lost: %d, files with part of a save: %d, texts added by saves "
                "that got through: %d\n",
                kills, checked, lost, torn, (int)before.size() - 2000);
}
