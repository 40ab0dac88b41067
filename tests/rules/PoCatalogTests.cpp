#include "PoCatalog.h"

#include <gtest/gtest.h>

using kiv::rules::IsStorableText;
using kiv::rules::MakeContext;
using kiv::rules::PoCatalog;
using kiv::rules::PoChange;
using kiv::rules::PoError;
using kiv::rules::PoHeaderInfo;
using kiv::rules::PoRecord;

namespace {

const char kHeader[] = "msgid \"\"\n"
                       "msgstr \"\"\n"
                       "\"Language: de\\n\"\n"
                       "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                       "\"X-Language-Names: German , Deutsch,,\\tallemand\\n\"\n";

const PoHeaderInfo kInfo{"de", "2024-05-01 10:00+0000"};

PoCatalog Loaded(const std::string& text)
{
    PoCatalog catalog;
    PoError error;
    EXPECT_TRUE(catalog.Load(text, &error)) << error.line << ": " << error.message;
    return catalog;
}

std::string Entry(std::string_view context, std::string_view msgid, std::string_view msgstr)
{
    return "\nmsgctxt \"" + std::string(context) + "\"\nmsgid \"" + std::string(msgid) + "\"\nmsgstr \"" +
           std::string(msgstr) + "\"\n";
}

}  // namespace

TEST(MakeContext, JoinsSectionAndKeyWithALineFeed)
{
    std::string context;
    ASSERT_TRUE(MakeContext("100", "1", context));
    EXPECT_EQ("100\n1", context);
    ASSERT_TRUE(MakeContext("", "", context));
    EXPECT_EQ("\n", context);
    ASSERT_TRUE(MakeContext("STRINGTABLE", "key\nwith\nbreaks", context));
    EXPECT_EQ("STRINGTABLE\nkey\nwith\nbreaks", context);
}

TEST(MakeContext, RefusesWhatCouldBeReadBackAsAnotherPair)
{
    std::string context = "kept";
    EXPECT_FALSE(MakeContext("a\nb", "c", context));
    EXPECT_FALSE(MakeContext("a\x04", "c", context));
    EXPECT_FALSE(MakeContext("a", "\xFF", context));
    EXPECT_EQ("kept", context);
}

TEST(IsStorableText, RefusesNulContextSeparatorAndBrokenUtf8)
{
    EXPECT_TRUE(IsStorableText("\xF0\x9F\x98\x80 \t\n\x01"));
    EXPECT_FALSE(IsStorableText(std::string_view("a\0b", 3)));
    EXPECT_FALSE(IsStorableText("a\x04"));
    EXPECT_FALSE(IsStorableText("\xC3"));
}

TEST(PoCatalog, FindsSingularEntriesByContext)
{
    PoCatalog catalog = Loaded(std::string(kHeader) + Entry("100\\n1", "OK", "Gut") +
                               "\nmsgctxt \"p\"\nmsgid \"a\"\nmsgid_plural \"b\"\nmsgstr[0] \"c\"\n");
    ASSERT_NE(nullptr, catalog.Find("100\n1"));
    EXPECT_EQ("Gut", catalog.Find("100\n1")->msgstr);
    EXPECT_EQ(nullptr, catalog.Find("100\n2"));
    EXPECT_EQ(nullptr, catalog.Find("100"));
    EXPECT_EQ(nullptr, catalog.Find("p"));
}

TEST(PoCatalog, LanguageNamesAreTheTrimmedCommaSeparatedHeaderField)
{
    EXPECT_EQ((std::vector<std::string>{"German", "Deutsch", "allemand"}), Loaded(kHeader).LanguageNames());
    EXPECT_TRUE(Loaded("msgid \"\"\nmsgstr \"Language: de\\n\"\n").LanguageNames().empty());
    EXPECT_TRUE(Loaded("").LanguageNames().empty());
}

TEST(PoCatalog, RecordsAreTheEntriesWithSectionAndKey)
{
    PoCatalog catalog = Loaded(std::string(kHeader) + Entry("100\\n1", "OK", "Gut") + Entry("nokey", "a", "b") +
                               Entry("S\\nK\\nL", "x", "") + "\nmsgid \"free\"\nmsgstr \"frei\"\n");
    std::vector<PoRecord> records = catalog.Records();
    ASSERT_EQ(2u, records.size());
    EXPECT_EQ("OK", records[0].defaultText);
    EXPECT_EQ("Gut", records[0].translation);
    EXPECT_EQ("1", records[0].key);
    EXPECT_EQ("100", records[0].section);
    EXPECT_EQ("K\nL", records[1].key);
    EXPECT_EQ("S", records[1].section);
    EXPECT_EQ("", records[1].translation);
}

TEST(PoCatalog, ARepeatedContextWithAnotherDefaultTextCountsOnce)
{
    PoCatalog catalog = Loaded(Entry("1\\n2", "a", "first") + Entry("1\\n2", "b", "second"));
    EXPECT_EQ("first", catalog.Find("1\n2")->msgstr);
    ASSERT_EQ(1u, catalog.Records().size());
    EXPECT_EQ("first", catalog.Records()[0].translation);
}

TEST(PoCatalog, RefusesAMessageDefinedTwice)
{
    PoCatalog catalog;
    PoError error;
    EXPECT_FALSE(catalog.Load(Entry("1\\n2", "a", "x") + Entry("1\\n2", "a", "y"), &error));
    EXPECT_EQ("a message is defined twice", error.message);
    EXPECT_FALSE(catalog.Load("msgid \"a\"\nmsgstr \"x\"\n\nmsgid \"a\"\nmsgstr \"y\"\n"));
    EXPECT_TRUE(catalog.Load("msgid \"a\"\nmsgstr \"x\"\n" + Entry("", "a", "y")));
}

// msgfmt reads an entry without context and with an empty msgid as the header, plural forms
// or not; Save would add a header beside it, and the file would define that message twice.
TEST(PoCatalog, RefusesAHeaderWithPluralForms)
{
    const std::string plural = "msgid \"\"\nmsgid_plural \"files\"\nmsgstr[0] \"Datei\"\nmsgstr[1] \"Dateien\"\n";
    PoCatalog catalog;
    PoError error;
    EXPECT_FALSE(catalog.Load(plural, &error));
    EXPECT_EQ("the header has plural forms", error.message);
    EXPECT_FALSE(catalog.Load(Entry("1\\n2", "a", "x") + "\n" + plural));
    // With a context the entry is an ordinary one, and the saved file loads again.
    catalog = Loaded("msgctxt \"1\\n2\"\n" + plural);
    PoCatalog saved = Loaded(catalog.Save(kInfo));
    EXPECT_EQ(2u, saved.File().entries.size());
}

TEST(PoCatalog, RefusesACharsetOtherThanUtf8)
{
    PoCatalog catalog;
    EXPECT_FALSE(catalog.Load("msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=ISO-8859-1\\n\"\n"));
    EXPECT_TRUE(catalog.Load("msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=utf8\\n\"\n"));
    EXPECT_TRUE(catalog.Load("msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=CHARSET\\n\"\n"));
    EXPECT_TRUE(catalog.Load("msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=ASCII\\n\"\n"));
}

TEST(PoCatalog, AFailedLoadLeavesTheCatalogAsItWas)
{
    PoCatalog catalog = Loaded(Entry("1\\n2", "a", "x"));
    EXPECT_FALSE(catalog.Load("msgid \"broken"));
    ASSERT_NE(nullptr, catalog.Find("1\n2"));
    EXPECT_EQ("x", catalog.Find("1\n2")->msgstr);
}

TEST(PoCatalog, InsertAppendsAndRefusesAHeldContext)
{
    PoCatalog catalog = Loaded(std::string(kHeader) + Entry("1\\n2", "a", "x"));
    EXPECT_FALSE(catalog.IsChanged());
    EXPECT_EQ(PoCatalog::kAlreadyHeld, catalog.Insert("1\n2", "other", "y"));
    EXPECT_EQ("x", catalog.Find("1\n2")->msgstr);
    EXPECT_FALSE(catalog.IsChanged());
    EXPECT_EQ(PoCatalog::kDone, catalog.Insert("1\n3", "b", ""));
    EXPECT_TRUE(catalog.IsChanged());
    EXPECT_EQ(std::string(kHeader) + Entry("1\\n2", "a", "x") + Entry("1\\n3", "b", ""), catalog.Save(kInfo));
}

TEST(PoCatalog, UpdateChangesThatEntryOnly)
{
    const std::string text = std::string(kHeader) + Entry("1\\n2", "a", "x") + Entry("1\\n3", "b", "y");
    PoCatalog catalog = Loaded(text);
    EXPECT_EQ(PoCatalog::kUnchanged, catalog.Update("1\n2", "x"));
    EXPECT_EQ(PoCatalog::kNotHeld, catalog.Update("1\n4", "x"));
    EXPECT_EQ(text, catalog.Save(kInfo));
    EXPECT_EQ(PoCatalog::kDone, catalog.Update("1\n3", "z"));
    EXPECT_EQ(std::string(kHeader) + Entry("1\\n2", "a", "x") + Entry("1\\n3", "b", "z"), catalog.Save(kInfo));
}

TEST(PoCatalog, AnEmptyUpdateKeepsTheTranslation)
{
    const std::string text = std::string(kHeader) + Entry("1\\n2", "a", "x") + Entry("1\\n3", "b", "");
    PoCatalog catalog = Loaded(text);
    EXPECT_EQ(PoCatalog::kKeptTranslation, catalog.Update("1\n2", ""));
    EXPECT_EQ(PoCatalog::kUnchanged, catalog.Update("1\n3", ""));
    EXPECT_FALSE(catalog.IsChanged());
    EXPECT_EQ(text, catalog.Save(kInfo));
}

TEST(PoCatalog, ApplyDropsAHeldInsertionAndInsertsAnUpdateOfAMissingEntry)
{
    PoCatalog catalog = Loaded(Entry("1\\n2", "a", "x"));
    EXPECT_EQ(PoCatalog::kAlreadyHeld, catalog.Apply({PoChange::kInsert, "1\n2", "b", "y"}));
    EXPECT_EQ(PoCatalog::kDone, catalog.Apply({PoChange::kUpdate, "1\n2", "", "z"}));
    EXPECT_EQ(PoCatalog::kDone, catalog.Apply({PoChange::kUpdate, "1\n5", "ignored", "w"}));
    EXPECT_EQ("z", catalog.Find("1\n2")->msgstr);
    EXPECT_EQ("a", catalog.Find("1\n2")->msgid);
    EXPECT_EQ("", catalog.Find("1\n5")->msgid);
    EXPECT_EQ("w", catalog.Find("1\n5")->msgstr);
}

TEST(PoCatalog, SaveGivesAFileWithoutHeaderAHeader)
{
    PoCatalog catalog = Loaded("# notes\nmsgctxt \"1\\n2\"\nmsgid \"a\"\nmsgstr \"b\"\n");
    EXPECT_EQ("msgid \"\"\n"
              "msgstr \"\"\n"
              "\"Project-Id-Version: \\n\"\n"
              "\"PO-Revision-Date: 2024-05-01 10:00+0000\\n\"\n"
              "\"Last-Translator: \\n\"\n"
              "\"Language-Team: \\n\"\n"
              "\"Language: de\\n\"\n"
              "\"MIME-Version: 1.0\\n\"\n"
              "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
              "\"Content-Transfer-Encoding: 8bit\\n\"\n"
              "\n"
              "# notes\nmsgctxt \"1\\n2\"\nmsgid \"a\"\nmsgstr \"b\"\n",
              catalog.Save(kInfo));
    EXPECT_EQ("b", catalog.Find("1\n2")->msgstr);
}

TEST(PoCatalog, SaveNamesUtf8InAHeaderThatNamesNoCharset)
{
    PoCatalog catalog = Loaded("#, fuzzy\nmsgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=CHARSET\\n\"\n"
                               "\"Language: \\n\"\n");
    EXPECT_EQ("#, fuzzy\nmsgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n\"Language: \\n\"\n",
              catalog.Save(kInfo));
    catalog = Loaded("msgid \"\"\nmsgstr \"Language: fr\"\n");
    EXPECT_EQ("msgid \"\"\nmsgstr \"\"\n\"Language: fr\\n\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n",
              catalog.Save(kInfo));
}

// msgfmt -c refuses a translation whose leading or trailing line feed differs from its default
// text; the translation is kept and the entry flagged fuzzy, which msgfmt leaves unchecked.
TEST(PoCatalog, SaveFlagsATranslationWithOtherOuterLineFeedsFuzzy)
{
    PoCatalog catalog = Loaded(std::string(kHeader) + Entry("1\\n1", "a\\n", "b") + Entry("1\\n2", "a", "\\nb") +
                               Entry("1\\n3", "\\na\\n", "\\nb\\n") + Entry("1\\n4", "a\\n", "") +
                               Entry("1\\n5", "", "\\nb") + Entry("1\\n6", "a", "b\\nc"));
    std::string saved = catalog.Save(kInfo);
    EXPECT_EQ(std::string(kHeader) + "\n#, fuzzy" + Entry("1\\n1", "a\\n", "b") +
                  "\n#, fuzzy\nmsgctxt \"1\\n2\"\nmsgid \"a\"\nmsgstr \"\"\n\"\\n\"\n\"b\"\n" +
                  Entry("1\\n3", "\\na\\n", "\\nb\\n") + Entry("1\\n4", "a\\n", "") + Entry("1\\n5", "", "\\nb") +
                  Entry("1\\n6", "a", "b\\nc"),
              saved);
    EXPECT_EQ("b", catalog.Find("1\n1")->msgstr);
}

TEST(PoCatalog, KeptChangesReadBackFromTheSideFile)
{
    PoCatalog side;
    side.Keep({PoChange::kInsert, "1\n2", "a", ""});
    side.Keep({PoChange::kUpdate, "1\n3", "", "y"});
    side.Keep({PoChange::kUpdate, "1\n2", "", "x"});
    side.Keep({PoChange::kInsert, "1\n3", "b", "z"});
    side.Keep({PoChange::kUpdate, "1\n4", "", "w"});
    PoCatalog back = Loaded(side.Save(kInfo));
    EXPECT_EQ((std::vector<PoChange>{{PoChange::kInsert, "1\n2", "a", "x"},
                                     {PoChange::kInsert, "1\n3", "b", "z"},
                                     {PoChange::kUpdate, "1\n4", "", "w"}}),
              back.KeptChanges());
}

// gettext uses no fuzzy translation at run time: the record is there, its translation is not.
TEST(PoCatalog, RecordsGiveNoTranslationForAFuzzyEntry)
{
    PoCatalog catalog = Loaded("msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n\n"
                               "#, c-format, fuzzy\nmsgctxt \"1\\n2\"\nmsgid \"a %d\"\nmsgstr \"b %d\"\n\n"
                               "#, c-format\nmsgctxt \"1\\n3\"\nmsgid \"c %d\"\nmsgstr \"d %d\"\n");
    std::vector<kiv::rules::PoRecord> records = catalog.Records();
    ASSERT_EQ(2u, records.size());
    EXPECT_EQ("a %d", records[0].defaultText);
    EXPECT_EQ("", records[0].translation);
    EXPECT_EQ("d %d", records[1].translation);
    ASSERT_NE(nullptr, catalog.Find("1\n2"));
    EXPECT_EQ("b %d", catalog.Find("1\n2")->msgstr);  // kept in the file as the translator left it
    EXPECT_EQ("", catalog.Find("1\n2")->Translation());
}
