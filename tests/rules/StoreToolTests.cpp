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
