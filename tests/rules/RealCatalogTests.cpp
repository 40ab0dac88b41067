// The store's reading and writing of PO files as real tools write them: catalogs that Debian
// packages install, turned back into PO files by msgunfmt, in a dozen languages and scripts.
#include "PoCatalog.h"
#include "PoFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;
using kiv::rules::ParsePo;
using kiv::rules::PoCatalog;
using kiv::rules::PoFile;

namespace {

const char* const kLanguages[] = {"ar", "de", "el", "fr", "he", "hi", "ja", "ko", "ru", "uk", "zh_CN", "tr"};

std::string ReadAll(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

bool Shell(const std::string& command)
{
    return std::system((command + " 2>/dev/null").c_str()) == 0;
}

// The first compiled catalog of a language in the system's locale folder.
fs::path CatalogOf(const char* language)
{
    fs::path folder = fs::path("/usr/share/locale") / language / "LC_MESSAGES";
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        if (entry.path().extension() == ".mo")
            return entry.path();
    return {};
}

}  // namespace

TEST(RealCatalogs, EveryOriginalEntryIsKeptAndMsgfmtAcceptsTheSavedFile)
{
    if (!Shell("msgunfmt --version >/dev/null"))
        GTEST_SKIP() << "gettext is not installed";
    fs::path folder = fs::temp_directory_path() / "kiv-real-catalogs";
    fs::remove_all(folder);
    fs::create_directories(folder);
    int tried = 0;
    for (const char* language : kLanguages)
    {
        fs::path catalog = CatalogOf(language);
        if (catalog.empty())
            continue;
        fs::path po = folder / (std::string(language) + ".po");
        ASSERT_TRUE(Shell("msgunfmt -o '" + po.string() + "' '" + catalog.string() + "'")) << catalog;
        std::string original = ReadAll(po);
        PoFile before;
        ASSERT_TRUE(ParsePo(original, before)) << language;

        PoCatalog store;
        ASSERT_TRUE(store.Load(original)) << language;
        EXPECT_EQ(PoCatalog::kDone, store.Insert("100\n1", "OK", "\xE2\x9C\x93"));
        EXPECT_EQ(PoCatalog::kDone, store.Insert("100\n2", "Line\n\"quoted\"", ""));
        std::string saved = store.Save({language, "2026-11-24 10:00+0000"});
        fs::path out = folder / (std::string(language) + "-saved.po");
        std::ofstream(out, std::ios::binary) << saved;

        PoFile after;
        ASSERT_TRUE(ParsePo(saved, after)) << language;
        ASSERT_EQ(before.entries.size() + 2, after.entries.size()) << language;
        for (std::size_t i = 0; i < before.entries.size(); ++i)
            if (!before.entries[i].IsHeader())
                EXPECT_TRUE(before.entries[i] == after.entries[i]) << language << " entry " << i;
        EXPECT_TRUE(Shell("msgfmt -c -o /dev/null '" + out.string() + "'")) << language;
        ++tried;
    }
    fs::remove_all(folder);
    if (tried < 10)
        GTEST_SKIP() << "only " << tried << " languages have catalogs on this machine";
}
