#include "StoreTool.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace fs = std::filesystem;
using kiv::tools::FormatSpecifiers;
using kiv::tools::PseudoText;
using kiv::tools::RunStoreTool;

namespace {

const char kHeader[] = "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                       "\"Language: de\\n\"\n\"X-Language-Names: German, Deutsch\\n\"\n";

std::string Entry(const char* section, const char* key, const char* text, const char* translation,
                  const char* flags = nullptr)
{
    std::string entry = "\n";
    if (flags)
        entry += std::string("#, ") + flags + "\n";
    return entry + "msgctxt \"" + section + "\\n" + key + "\"\nmsgid \"" + text + "\"\nmsgstr \"" + translation +
           "\"\n";
}

class StoreTool : public testing::Test
{
protected:
    void SetUp() override
    {
        m_folder = fs::temp_directory_path() /
                   ("kivstore-tool-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    void TearDown() override { fs::remove_all(m_folder); }

    void Write(const std::string& name, const std::string& bytes)
    {
        std::ofstream(m_folder / name, std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name)
    {
        std::ifstream in(m_folder / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    int Run(std::vector<std::string> args)
    {
        args.insert(args.begin(), {"--store", m_folder.string()});
        m_out.str("");
        m_err.str("");
        return RunStoreTool(args, m_out, m_err);
    }
    void WriteGerman()
    {
        Write("de.po", kHeader + Entry("100", "1", "OK", "OK") + Entry("100", "2", "Cancel", "") +
                           Entry("100", "3", "Open",
                                 "\xC3\x96"
                                 "ffnen",
                                 "fuzzy") +
                           Entry("STRINGTABLE", "7", "%d files", "%d Dateien"));
    }

    fs::path m_folder;
    std::ostringstream m_out, m_err;
};

bool MsgfmtAccepts(const fs::path& file)
{
    if (std::system("msgfmt --version >/dev/null 2>&1") != 0)
        return true;  // no gettext on this machine: nothing to ask
    std::string command = "msgfmt -c -o /dev/null '" + file.string() + "' 2>/dev/null";
    return std::system(command.c_str()) == 0;
}

}  // namespace

TEST_F(StoreTool, StatsCountsTextsPerLanguageAndSection)
{
    WriteGerman();
    ASSERT_EQ(0, Run({"stats"}));
    EXPECT_NE(std::string::npos, m_out.str().find("de: 4 texts, 2 translated, 1 missing, 1 fuzzy"));
    EXPECT_NE(std::string::npos, m_out.str().find("  100: 3 texts, 1 translated, 1 missing, 1 fuzzy"));
    EXPECT_NE(std::string::npos, m_out.str().find("  STRINGTABLE: 1 texts, 1 translated"));
}

TEST_F(StoreTool, MissingListsUntranslatedAndFuzzyTextsOfALanguageByAnyOfItsNames)
{
    WriteGerman();
    ASSERT_EQ(0, Run({"missing", "Deutsch"}));
    EXPECT_EQ("100\t2\tCancel\n100\t3\tfuzzy\tOpen\n", m_out.str());
    ASSERT_EQ(0, Run({"missing", "de", "--section", "STRINGTABLE"}));
    EXPECT_EQ("", m_out.str());
}

TEST_F(StoreTool, UnknownLanguageAndMissingFolderFailClearly)
{
    WriteGerman();
    EXPECT_EQ(1, Run({"missing", "fr"}));
    EXPECT_NE(std::string::npos, m_err.str().find("no language \"fr\""));
    std::ostringstream out, err;
    EXPECT_EQ(1, RunStoreTool({"--store", (m_folder / "none").string(), "stats"}, out, err));
    EXPECT_NE(std::string::npos, err.str().find("does not exist"));
    EXPECT_EQ(2, Run({"frobnicate"}));
}

TEST_F(StoreTool, MergeAddsCapturedTextsAndKeepsTranslations)
{
    WriteGerman();
    Write("capture.po",
          kHeader + Entry("100", "1", "OK", "") + Entry("100", "9", "Print", "") + Entry("100", "2", "Close", ""));
    ASSERT_EQ(0, Run({"merge", "de", (m_folder / "capture.po").string()}));
    std::string merged = Read("de.po");
    EXPECT_NE(std::string::npos, merged.find(Entry("100", "1", "OK", "OK")));
    EXPECT_NE(std::string::npos, merged.find(Entry("100", "9", "Print", "")));
    EXPECT_NE(std::string::npos, m_out.str().find("1 new texts; 1 texts whose default text differs"));
    EXPECT_TRUE(MsgfmtAccepts(m_folder / "de.po"));
}

TEST_F(StoreTool, MergeNeverWritesOverAFileItCannotRead)
{
    Write("de.po", "msgid \"broken");
    Write("capture.po", kHeader + Entry("100", "9", "Print", ""));
    EXPECT_EQ(1, Run({"merge", "de", (m_folder / "capture.po").string()}));
    EXPECT_EQ("msgid \"broken", Read("de.po"));
}

TEST_F(StoreTool, PseudoLocaleIsMadeFromTheCapturedTexts)
{
    WriteGerman();
    ASSERT_EQ(0, Run({"pseudo"}));
    std::string pseudo = Read("qps-ploc.po");
    EXPECT_NE(std::string::npos, pseudo.find("Language: qps-ploc"));
    EXPECT_NE(std::string::npos, pseudo.find("msgid \"Cancel\"\nmsgstr \"" + PseudoText("Cancel") + "\""));
    EXPECT_TRUE(MsgfmtAccepts(m_folder / "qps-ploc.po"));
}

TEST(StoreToolPseudo, TextIsAccentedLongerAndBracketed)
{
    EXPECT_EQ("[\xC3\x96p\xC3\xA9\xC3\xB1~~]", PseudoText("Open"));
    std::string files = PseudoText("%d files");
    EXPECT_EQ("[%d f\xC3\xADl\xC3\xA9s~~~]", files);  // 8 characters: 35 % is 3 more
    EXPECT_EQ(0u, PseudoText("&Save").find("[&"));
}

TEST(StoreToolFormat, SpecifiersAreFoundInOrderAndDoubledPercentIsNone)
{
    EXPECT_EQ((std::vector<std::string>{"%d", "%s"}), FormatSpecifiers("%d of %s"));
    EXPECT_EQ((std::vector<std::string>{"%5.2f"}), FormatSpecifiers("100%% %5.2f"));
    EXPECT_TRUE(FormatSpecifiers("up by 50 %").empty());
}

TEST_F(StoreTool, CheckReportsDifferentFormatSpecifiersAndTooLongTranslations)
{
    std::string longText(300, 'x');
    Write("de.po", kHeader + Entry("1", "1", "%d files", "%s Dateien") + Entry("1", "2", "Long", longText.c_str()) +
                       Entry("1", "3", "%d of %d", "%d von %d"));
    EXPECT_EQ(1, Run({"check"}));
    EXPECT_NE(std::string::npos, m_out.str().find("de.po: 1 1: format specifiers differ"));
    EXPECT_NE(std::string::npos, m_out.str().find("de.po: 1 2: the translation has 300 UTF-16 units"));
    EXPECT_EQ(std::string::npos, m_out.str().find("1 3:"));
}

TEST_F(StoreTool, CheckSaysWhyAFileCannotBeUsed)
{
    Write("de.po", "\xFF\xFEm\0s\0");
    Write("fr.po",
          "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=ISO-8859-1\\n\"\n\"Language: fr\\n\"\n");
    Write("it.po", "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=CHARSET\\n\"\n");
    Write("nl.po", std::string(kHeader) + "msgid \"unclosed\n");
    Write("sv.po", kHeader + Entry("1", "1", "Line\\n", "Zeile"));
    Write("es.po", kHeader + Entry("1", "1", "OK", "Vale"));
    EXPECT_EQ(1, Run({"check"}));
    std::string out = m_out.str();
    EXPECT_NE(std::string::npos, out.find("de.po: saved as UTF-16"));
    EXPECT_NE(std::string::npos, out.find("fr.po: declares the charset ISO-8859-1"));
    EXPECT_NE(std::string::npos, out.find("it.po: a template (.pot) copied in"));
    EXPECT_NE(std::string::npos, out.find("nl.po:6:"));
    EXPECT_NE(std::string::npos, out.find("sv.po: 1 1: the translation begins or ends with a line feed"));
    EXPECT_NE(std::string::npos, out.find("es.po: ok"));
    EXPECT_EQ(0, Run({"check", "es"}));
}

namespace {

const char kFullHeader[] = "msgid \"\"\nmsgstr \"\"\n\"Project-Id-Version: gallery 1\\n\"\n"
                           "\"PO-Revision-Date: 2026-01-01 00:00+0000\\n\"\n\"Language: de\\n\"\n"
                           "\"MIME-Version: 1.0\\n\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                           "\"Content-Transfer-Encoding: 8bit\\n\"\n";
const char kGermanPlural[] = "\"Plural-Forms: nplurals=2; plural=(n != 1);\\n\"\n";

std::string Plural(const char* flags, const char* one, const char* many, std::vector<const char*> forms)
{
    std::string entry = "\n";
    if (flags)
        entry += std::string("#, ") + flags + "\n";
    entry += std::string("msgid \"") + one + "\"\nmsgid_plural \"" + many + "\"\n";
    for (std::size_t i = 0; i < forms.size(); ++i)
        entry += "msgstr[" + std::to_string(i) + "] \"" + forms[i] + "\"\n";
    return entry;
}

struct Verdict
{
    const char* name;
    std::string file;
    bool accepted;  // what msgfmt -c says of it
    const char* said;
};

}  // namespace

TEST_F(StoreTool, CheckGivesMsgfmtsVerdictOnPluralFormsAndCFormat)
{
    std::string h = kFullHeader, p = h + kGermanPlural;
    const Verdict verdicts[] = {
        {"plural-no-header", h + Plural(nullptr, "file", "files", {"Datei", "Dateien"}), false, "lacks"},
        {"plural-ok", p + Plural(nullptr, "file", "files", {"Datei", "Dateien"}), true, "ok"},
        {"plural-one-form", p + Plural(nullptr, "file", "files", {"Datei"}), false, "1 plural forms"},
        {"plural-three-forms", p + Plural(nullptr, "file", "files", {"a", "b", "c"}), false, "3 plural forms"},
        {"plural-untranslated", h + Plural(nullptr, "file", "files", {"", ""}), true, "ok"},
        {"plural-invalid", h + "\"Plural-Forms: nplurals=2; plural=(n != 1;\\n\"\n", false, "invalid"},
        {"plural-too-large", h + "\"Plural-Forms: nplurals=2; plural=n%3;\\n\"\n", false, "as large as 2"},
        {"plural-negative", h + "\"Plural-Forms: nplurals=2; plural=n-1;\\n\"\n", false, "negative"},
        {"c-format-type", h + "\n#, c-format\nmsgid \"%d files\"\nmsgstr \"%s Dateien\"\n", false, "argument 1 is int"},
        {"c-format-missing", h + "\n#, c-format\nmsgid \"%d files\"\nmsgstr \"Dateien\"\n", false, "takes 0"},
        {"c-format-width", h + "\n#, c-format\nmsgid \"%d files\"\nmsgstr \"%5d Dateien\"\n", true, "ok"},
        {"c-format-positional", h + "\n#, c-format\nmsgid \"%d in %s\"\nmsgstr \"%2$s: %1$d\"\n", true, "ok"},
        {"c-format-fuzzy", h + "\n#, fuzzy, c-format\nmsgid \"%d files\"\nmsgstr \"%s Dateien\"\n", true, "ok"},
        {"no-flag", h + "\nmsgid \"%d files\"\nmsgstr \"%s Dateien\"\n", true, "ok"},
        {"plural-form-of-one", p + Plural("c-format", "%d file", "%d files", {"eine Datei", "%d Dateien"}), true, "ok"},
        {"plural-form-of-many", p + Plural("c-format", "%d file", "%d files", {"%d Datei", "Dateien"}), false,
         "msgstr[1]"},
        {"plural-form-type", p + Plural("c-format", "%d file", "%d files", {"%s Datei", "%d Dateien"}), false,
         "msgstr[0]"},
        {"line-feed", h + "\nmsgid \"a\"\nmsgstr \"b\\n\"\n", false, "line feed"},
        {"no-header", "msgid \"a\"\nmsgstr \"b\"\n", false, "no header"},
    };
    for (const Verdict& verdict : verdicts)
    {
        SCOPED_TRACE(verdict.name);
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
        Write("de.po", verdict.file);
        EXPECT_EQ(verdict.accepted ? 0 : 1, Run({"check"})) << m_out.str();
        EXPECT_NE(std::string::npos, m_out.str().find(verdict.said)) << m_out.str();
        EXPECT_EQ(verdict.accepted, MsgfmtAccepts(m_folder / "de.po"));
    }
}

TEST_F(StoreTool, FileItCannotReadFailsEveryCommandAndIsLeftAsItIs)
{
    const std::string broken = std::string(kHeader) + "msgid \"unclosed\n";
    Write("de.po", broken);
    EXPECT_EQ(1, Run({"stats"}));
    EXPECT_NE(std::string::npos, m_err.str().find("de.po:6: ")) << m_err.str();
    EXPECT_EQ(1, Run({"missing", "de"}));
    EXPECT_EQ(1, Run({"check", "de"}));
    Write("capture.po", kHeader + Entry("100", "9", "Print", ""));
    EXPECT_EQ(1, Run({"merge", "de", (m_folder / "capture.po").string()}));
    EXPECT_EQ(broken, Read("de.po"));
    EXPECT_FALSE(fs::exists(m_folder / "de.po.new"));
}

TEST_F(StoreTool, MissingCaptureFileFailsAndTheLanguageIsNotWritten)
{
    WriteGerman();
    const std::string before = Read("de.po");
    EXPECT_EQ(1, Run({"merge", "de", (m_folder / "no-such-capture.po").string()}));
    EXPECT_NE(std::string::npos, m_err.str().find("cannot read"));
    EXPECT_EQ(before, Read("de.po"));
}

TEST_F(StoreTool, PseudoLeavesAPseudoLocaleItCannotReadAsItIs)
{
    WriteGerman();
    Write("qps-ploc.po", "msgid \"broken");
    EXPECT_EQ(1, Run({"pseudo"}));
    EXPECT_NE(std::string::npos, m_err.str().find("left as it is"));
    EXPECT_EQ("msgid \"broken", Read("qps-ploc.po"));
}

TEST_F(StoreTool, StoreFolderThatIsAFileAndBadCommandLinesFailClearly)
{
    Write("file", "not a folder");
    std::ostringstream out, err;
    EXPECT_EQ(1, RunStoreTool({"--store", (m_folder / "file").string(), "stats"}, out, err));
    EXPECT_NE(std::string::npos, err.str().find("is not a folder"));
    EXPECT_EQ(2, Run({"missing"}));
    EXPECT_EQ(2, Run({"merge", "de"}));
    EXPECT_EQ(2, Run({"missing", "de", "--section"}));
    EXPECT_EQ(2, RunStoreTool({}, out, err));
    EXPECT_EQ(0, RunStoreTool({"--help"}, out, err));
}

// The commands over the gallery's own store, as a host developer runs them before a release.
TEST_F(StoreTool, GalleryStoreIsCompleteCheckedAndMakesAPseudoLocale)
{
    for (const char* language : {"de", "el", "ja"})
        fs::copy_file(fs::path(KIV_SOURCE_DIR) / "gallery" / "lang" / (std::string(language) + ".po"),
                      m_folder / (std::string(language) + ".po"));
    ASSERT_EQ(0, Run({"stats"}));
    std::string stats = m_out.str();
    for (const char* language : {"de: ", "el: ", "ja: "})
    {
        std::size_t at = stats.find(language);
        ASSERT_NE(std::string::npos, at) << stats;
        EXPECT_NE(std::string::npos, stats.find("translated, 0 missing, 0 fuzzy", at)) << stats;
    }
    for (const char* language : {"de", "el", "ja", "Deutsch"})
    {
        ASSERT_EQ(0, Run({"missing", language})) << language;
        EXPECT_EQ("", m_out.str()) << language;
    }
    ASSERT_EQ(0, Run({"check"})) << m_out.str();
    EXPECT_EQ("de.po: ok\nel.po: ok\nja.po: ok\n", m_out.str());

    ASSERT_EQ(0, Run({"pseudo"})) << m_err.str();
    ASSERT_TRUE(MsgfmtAccepts(m_folder / "qps-ploc.po"));
    ASSERT_EQ(0, Run({"stats"}));
    std::size_t german = m_out.str().find("de: "), pseudo = m_out.str().find("qps-ploc: ");
    ASSERT_NE(std::string::npos, pseudo);
    std::string count = m_out.str().substr(german + 4, m_out.str().find(' ', german + 4) - german - 4);
    EXPECT_EQ(0u, m_out.str().find("qps-ploc: " + count + " texts, " + count + " translated", pseudo) - pseudo)
        << m_out.str();
    EXPECT_EQ(0, Run({"check", "qps-ploc"})) << m_out.str();
    std::string file = Read("qps-ploc.po");
    EXPECT_NE(std::string::npos, file.find("msgid \"Show &rulers\"\nmsgstr \"" + PseudoText("Show &rulers") + "\""));
}
