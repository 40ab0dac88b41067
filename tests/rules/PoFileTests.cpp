#include "PoFile.h"

#include <gtest/gtest.h>

using kiv::rules::AppendQuoted;
using kiv::rules::ParsePo;
using kiv::rules::ParsePoHeader;
using kiv::rules::PoEntry;
using kiv::rules::PoError;
using kiv::rules::PoFile;
using kiv::rules::WritePo;

namespace {

PoFile Parsed(std::string_view text)
{
    PoFile file;
    PoError error;
    EXPECT_TRUE(ParsePo(std::string(text), file, &error)) << error.line << ": " << error.message;
    return file;
}

int ErrorLine(std::string_view text)
{
    PoFile file;
    PoError error;
    EXPECT_FALSE(ParsePo(std::string(text), file, &error));
    EXPECT_TRUE(file.entries.empty());
    return error.line;
}

// A new entry whose strings the file keeps.
void AddEntry(PoFile& file, std::string_view context, std::string_view msgid, std::string_view msgstr)
{
    PoEntry& entry = file.entries.emplace_back();
    entry.hasContext = true;
    entry.context = file.Keep(context);
    entry.msgid = file.Keep(msgid);
    entry.msgstr = file.Keep(msgstr);
}

const char kTranslated[] = "# German texts\n"
                           "msgid \"\"\n"
                           "msgstr \"\"\n"
                           "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                           "\n"
                           "#. a button\n"
                           "#: dialog.rc:12\n"
                           "#, fuzzy, c-format\n"
                           "msgctxt \"100\\n1\"\n"
                           "msgid \"OK\"\n"
                           "msgstr \"In Ordnung\"\n"
                           "\n"
                           "msgctxt \"100\\n2\"\n"
                           "msgid \"Cancel\"\n"
                           "msgstr \"\"\n"
                           "\"Abbrechen\"\n";

}  // namespace

TEST(ParsePo, ReadsHeaderContextsTextsAndComments)
{
    PoFile file = Parsed(kTranslated);
    ASSERT_EQ(3u, file.entries.size());
    EXPECT_TRUE(file.entries[0].IsHeader());
    EXPECT_EQ("Content-Type: text/plain; charset=UTF-8\n", file.entries[0].msgstr);
    EXPECT_EQ(std::vector<std::string_view>{"# German texts"}, file.entries[0].comments);
    const PoEntry& ok = file.entries[1];
    EXPECT_TRUE(ok.hasContext);
    EXPECT_EQ("100\n1", ok.context);
    EXPECT_EQ("OK", ok.msgid);
    EXPECT_EQ("In Ordnung", ok.msgstr);
    EXPECT_EQ((std::vector<std::string_view>{"#. a button", "#: dialog.rc:12", "#, fuzzy, c-format"}), ok.comments);
    EXPECT_TRUE(ok.IsFuzzy());
    EXPECT_EQ("Abbrechen", file.entries[2].msgstr);
    EXPECT_FALSE(file.entries[2].IsFuzzy());
    EXPECT_EQ(file.entries[0], *file.Header());
}

TEST(ParsePo, EntryWithoutContextHasNone)
{
    PoFile file = Parsed("msgid \"a\"\nmsgstr \"b\"\n");
    ASSERT_EQ(1u, file.entries.size());
    EXPECT_FALSE(file.entries[0].hasContext);
    EXPECT_FALSE(file.entries[0].IsHeader());
    EXPECT_EQ(nullptr, file.Header());
}

TEST(ParsePo, DecodesEveryEscape)
{
    PoFile file = Parsed("msgid \"\\n\\t\\r\\a\\b\\f\\v\\\\\\\"\\?\\'\"\n"
                         "msgstr \"\\101\\7x\\0101\\x41\\x7e\\303\\244\"\n");
    ASSERT_EQ(1u, file.entries.size());
    EXPECT_EQ("\n\t\r\a\b\f\v\\\"?'", file.entries[0].msgid);
    EXPECT_EQ("A\ax\b1A~\xC3\xA4", file.entries[0].msgstr);
}

TEST(ParsePo, TokensMaySpreadOverLinesAndShareOne)
{
    PoFile file = Parsed("msgid\n  \"a\" \"b\"\n\n\"c\" msgstr\t\"d\"\r\n");
    ASSERT_EQ(1u, file.entries.size());
    EXPECT_EQ("abc", file.entries[0].msgid);
    EXPECT_EQ("d", file.entries[0].msgstr);
}

TEST(ParsePo, ReadsPluralForms)
{
    PoFile file = Parsed("msgid \"file\"\nmsgid_plural \"files\"\nmsgstr[0] \"Datei\"\nmsgstr[1] \"Dateien\"\n");
    ASSERT_EQ(1u, file.entries.size());
    EXPECT_TRUE(file.entries[0].hasPlural);
    EXPECT_EQ("files", file.entries[0].msgidPlural);
    EXPECT_EQ((std::vector<std::string_view>{"Datei", "Dateien"}), file.entries[0].plurals);
}

TEST(ParsePo, EmptyFileAndCommentsOnlyHaveNoEntries)
{
    EXPECT_TRUE(Parsed("").entries.empty());
    PoFile file = Parsed("\n# nothing yet\n\n");
    EXPECT_TRUE(file.entries.empty());
    EXPECT_EQ("\n# nothing yet\n\n", file.Trailer());
}

TEST(ParsePo, SkipsByteOrderMark)
{
    PoFile file = Parsed("\xEF\xBB\xBFmsgid \"a\"\nmsgstr \"b\"\n");
    ASSERT_EQ(1u, file.entries.size());
    EXPECT_EQ("msgid \"a\"\nmsgstr \"b\"\n", file.Text());
}

TEST(ParsePo, TakesTheLineEndOfTheFile)
{
    EXPECT_EQ("\r\n", Parsed("msgid \"a\"\r\nmsgstr \"b\"\r\n").Newline());
    EXPECT_EQ("\n", Parsed("msgid \"a\"\nmsgstr \"b\"\r\n").Newline());
}

TEST(ParsePo, CarriageReturnsAloneEndLinesAsMsgfmtReadsThem)
{
    const std::string text =
        "# comment\rmsgctxt \"1\\n2\"\rmsgid \"a\"\rmsgstr \"b\"\r\r#, fuzzy\rmsgid \"c\"\rmsgstr \"d\"\r";
    PoFile file = Parsed(text);
    ASSERT_EQ(2u, file.entries.size());
    EXPECT_EQ("\r", file.Newline());
    EXPECT_EQ("1\n2", file.entries[0].context);
    EXPECT_EQ(std::vector<std::string_view>{"# comment"}, file.entries[0].comments);
    EXPECT_TRUE(file.entries[1].IsFuzzy());
    EXPECT_EQ(text, WritePo(file));
    // A changed entry is written with the file's own line ends.
    file.entries[0].msgstr = file.Keep("e");
    file.entries[0].MarkChanged();
    std::string written = WritePo(file);
    EXPECT_EQ(std::string::npos, written.find('\n'));
    EXPECT_NE(std::string::npos, written.find("msgstr \"e\"\r"));
}

TEST(ParsePo, CarriageReturnsAloneAfterAByteOrderMarkAreSeenAsLineEnds)
{
    // Found by fuzzing: the lines were looked for where the mark had been, not in the text.
    const std::string text = "msgid \"a\"\rmsgstr \"b\"\r";
    PoFile file = Parsed("\xEF\xBB\xBF" + text);
    ASSERT_EQ(1u, file.entries.size());
    EXPECT_EQ("\r", file.Newline());
    EXPECT_EQ("b", file.entries[0].msgstr);
    EXPECT_EQ(text, WritePo(file));
}

TEST(ParsePo, CommentsAfterTheLastEntryAreTheTrailer)
{
    PoFile file = Parsed("msgid \"a\"\nmsgstr \"b\"\n\n#~ msgid \"old\"\n#~ msgstr \"alt\"\n");
    ASSERT_EQ(1u, file.entries.size());
    EXPECT_EQ("\n#~ msgid \"old\"\n#~ msgstr \"alt\"\n", file.Trailer());
}

TEST(ParsePo, RefusesBrokenSyntaxAtItsLine)
{
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"b\\q\"\n"));
    EXPECT_EQ(1, ErrorLine("msgid \"a\nmsgstr \"b\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\n# comment\nmsgstr \"b\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"b\" msgid \"c\"\nmsgstr \"d\"\n"));
    EXPECT_EQ(3, ErrorLine("msgid \"a\"\nmsgstr \"b\"\nmsgstr \"c\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\n"));
    EXPECT_EQ(1, ErrorLine("msgstr \"a\"\n"));
    EXPECT_EQ(1, ErrorLine("msgid a\nmsgstr \"b\"\n"));
    EXPECT_EQ(4, ErrorLine("msgid \"a\"\nmsgid_plural \"b\"\nmsgstr[0] \"c\"\nmsgstr[2] \"d\"\n"));
    EXPECT_EQ(3, ErrorLine("msgid \"a\"\nmsgid_plural \"b\"\nmsgstr \"c\"\n"));
    EXPECT_EQ(1, ErrorLine("msgid \"a\\\"\nmsgstr \"b\"\n"));
    EXPECT_EQ(1, ErrorLine("domain \"x\"\n"));
}

TEST(ParsePo, RefusesWhatIsNotUtf8Text)
{
    EXPECT_EQ(3, ErrorLine("msgid \"a\"\nmsgstr \"b\"\n# \xFF\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"\\xff\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"\\303\"\n"));
    const char withNul[] = "msgid \"a\"\nmsgstr \"\0\"\n";
    EXPECT_EQ(2, ErrorLine(std::string_view(withNul, sizeof(withNul) - 1)));
}

TEST(ParsePo, RefusesTheContextSeparatorAndNul)
{
    EXPECT_EQ(1, ErrorLine("msgctxt \"a\x04\"\nmsgid \"a\"\nmsgstr \"b\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"\\004\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"\\x04\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"\\0\"\n"));
    EXPECT_EQ(2, ErrorLine("msgid \"a\"\nmsgstr \"\\x100\"\n"));
}

TEST(ParsePoHeader, ReadsTheFirstEntryOnly)
{
    std::string header;
    ASSERT_TRUE(ParsePoHeader("msgid \"\"\nmsgstr \"X-Language-Names: de\\n\"\n\nmsgid broken", header));
    EXPECT_EQ("X-Language-Names: de\n", header);
    EXPECT_FALSE(ParsePoHeader("msgid \"a\"\nmsgstr \"\"\n", header));
    EXPECT_FALSE(ParsePoHeader("msgid \"\"\nmsgstr \"\\xff\"\n", header));
    EXPECT_FALSE(ParsePoHeader("", header));
}

TEST(WritePo, UnchangedFileIsWrittenByteForByte)
{
    const std::string text =
        std::string(kTranslated) + "\n\n  # odd  \r\nmsgid  \"x\"   \"y\"\r\n\tmsgstr\n\"z\"\n\n#~ old\n";
    EXPECT_EQ(text, WritePo(Parsed(text)));
    EXPECT_EQ("msgid \"a\"\nmsgstr \"b\"", WritePo(Parsed("msgid \"a\"\nmsgstr \"b\"")));
}

TEST(WritePo, ChangedEntryIsTheOnlyPartWrittenAnew)
{
    PoFile file = Parsed(kTranslated);
    file.entries[1].msgstr = "Gut";
    file.entries[1].MarkChanged();
    std::string expected = kTranslated;
    expected.replace(expected.find("In Ordnung"), 10, "Gut");
    EXPECT_EQ(expected, WritePo(file));
}

TEST(WritePo, NewEntriesGoAfterTheLastEntryAndBeforeTheTrailer)
{
    PoFile file = Parsed("msgid \"a\"\nmsgstr \"b\"\n\n#~ msgid \"old\"\n");
    AddEntry(file, "7\n8", "c", "d");
    EXPECT_EQ("msgid \"a\"\nmsgstr \"b\"\n\nmsgctxt \"7\\n8\"\nmsgid \"c\"\nmsgstr \"d\"\n\n#~ msgid \"old\"\n",
              WritePo(file));
}

TEST(WritePo, EntryAfterALastLineWithoutLineEndStartsOnANewLine)
{
    PoFile file = Parsed("msgid \"a\"\nmsgstr \"b\"");
    AddEntry(file, "k", "c", "");
    EXPECT_EQ("msgid \"a\"\nmsgstr \"b\"\n\nmsgctxt \"k\"\nmsgid \"c\"\nmsgstr \"\"\n", WritePo(file));
}

TEST(WritePo, NewEntryUsesTheLineEndOfTheFile)
{
    PoFile file = Parsed("msgid \"a\"\r\nmsgstr \"b\"\r\n");
    AddEntry(file, "k", "x\ny", "");
    EXPECT_EQ("msgid \"a\"\r\nmsgstr \"b\"\r\n\r\nmsgctxt \"k\"\r\nmsgid \"\"\r\n\"x\\n\"\r\n\"y\"\r\nmsgstr \"\"\r\n",
              WritePo(file));
}

TEST(WritePo, TextWithInnerLineFeedsIsOneStringPerLine)
{
    PoFile file;
    AddEntry(file, "1\n2", "one\ntwo\n", "eins\n\nzwei");
    EXPECT_EQ("msgctxt \"1\\n2\"\nmsgid \"\"\n\"one\\n\"\n\"two\\n\"\nmsgstr \"\"\n\"eins\\n\"\n\"\\n\"\n\"zwei\"\n",
              WritePo(file));
}

TEST(WritePo, WritesCommentsAndPluralsOfAChangedEntry)
{
    PoFile file =
        Parsed("# t\n#| msgid \"f\"\nmsgid \"file\"\nmsgid_plural \"files\"\nmsgstr[0] \"D\"\nmsgstr[1] \"Ds\"\n");
    file.SetFuzzy(file.entries[0]);
    EXPECT_EQ(
        "# t\n#, fuzzy\n#| msgid \"f\"\nmsgid \"file\"\nmsgid_plural \"files\"\nmsgstr[0] \"D\"\nmsgstr[1] \"Ds\"\n",
        WritePo(file));
}

TEST(AppendQuoted, EscapesQuotesBackslashesAndControlCharacters)
{
    std::string out;
    AppendQuoted(out, "say \"hi\"\\\t\r\a\b\f\v\x01"
                      "7\x1f\x7f\xC3\xA4");
    EXPECT_EQ("\"say \\\"hi\\\"\\\\\\t\\r\\a\\b\\f\\v\\0017\\037\x7f\xC3\xA4\"", out);
}

TEST(PoEntry, FuzzyJoinsTheExistingFlags)
{
    PoFile file = Parsed("#, c-format\nmsgid \"a\"\nmsgstr \"b\"\n");
    PoEntry& entry = file.entries[0];
    EXPECT_FALSE(entry.IsChanged());
    file.SetFuzzy(entry);
    EXPECT_EQ(std::vector<std::string_view>{"#, c-format, fuzzy"}, entry.comments);
    EXPECT_TRUE(entry.IsChanged());
    file.SetFuzzy(entry);
    EXPECT_EQ(std::vector<std::string_view>{"#, c-format, fuzzy"}, entry.comments);
}

TEST(PoEntry, FuzzyIsAFlagNotAWordInAComment)
{
    PoFile file = Parsed("# fuzzy\n#, no-fuzzy-thing\nmsgid \"a\"\nmsgstr \"b\"\n");
    EXPECT_FALSE(file.entries[0].IsFuzzy());
}

TEST(PoRoundTrip, HostileTextsSurviveWritingAndReading)
{
    const std::string texts[] = {"",
                                 "\"quoted\" \\back\\slash\\",
                                 "\n",
                                 "\nline\n\nfeeds\n\n",
                                 "tab\there\r\nwindows",
                                 "\x01\x02\x03\x05\x1b[0m\x7f",
                                 "\xC3\xA4\xC3\xB6\xC3\xBC \xE4\xB8\xAD\xE6\x96\x87 \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF",
                                 "msgid \"x\"\nmsgstr \"y\"",
                                 "# not a comment",
                                 "\\n \\x41 \\101"};
    PoFile file;
    for (const std::string& text : texts)
        AddEntry(file, text + "\n" + text, text, text);
    PoFile back = Parsed(WritePo(file));
    EXPECT_EQ(file, back);
}
