#include "StoreTool.h"

#include "PoCatalog.h"
#include "PoChecks.h"
#include "PoFile.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>

namespace fs = std::filesystem;
using kiv::rules::PluralForms;
using kiv::rules::PoCatalog;
using kiv::rules::PoEntry;
using kiv::rules::PoError;

namespace kiv::tools {

namespace {

constexpr std::size_t kLongestTranslation = 255;  // UTF-16 units a dialog control can take
constexpr char kPseudoLanguage[] = "qps-ploc";

const char kUsage[] =
    "usage: kivstore [--store FOLDER] COMMAND\n"
    "  stats                      texts, translated, missing and fuzzy per language and section\n"
    "  missing LANG [--section S] what a translator still has to do\n"
    "  merge LANG CAPTURE.po      adds the texts of a capture to a language, keeping its translations\n"
    "  pseudo                     writes the pseudo-locale qps-ploc.po from the captured texts\n"
    "  check [LANG...]            what msgfmt -c checks, format specifiers, texts too long to show\n"
    "The store folder is ./lang unless --store names another.\n";

bool ReadBytes(const fs::path& path, std::string& bytes)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return !in.bad();
}

// Through a new file beside it, so the file is always the old or the new one.
bool WriteBytes(const fs::path& path, const std::string& bytes)
{
    fs::path temporary = path;
    temporary += ".new";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out || !out.write(bytes.data(), (std::streamsize)bytes.size()))
            return false;
    }
    std::error_code error;
    fs::rename(temporary, path, error);
    return !error;
}

std::string Today()
{
    std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    char text[32] = {};
    std::strftime(text, sizeof(text), "%Y-%m-%d %H:%M+0000", std::gmtime(&now));
    return text;
}

bool IsLanguageFile(const fs::path& path)
{
    return path.extension() == ".po" && fs::is_regular_file(path);
}

// A store entry: a section and a key in its context, no plural forms.
bool IsStoreEntry(const PoEntry& entry)
{
    return entry.hasContext && !entry.hasPlural && entry.context.find('\n') != std::string_view::npos;
}

std::string_view SectionOf(const PoEntry& entry)
{
    return entry.context.substr(0, entry.context.find('\n'));
}

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return (char)std::tolower(c); });
    return text;
}

class StoreTool
{
public:
    StoreTool(std::ostream& out, std::ostream& err) : m_out(out), m_err(err) {}
    int Run(std::vector<std::string> args);

private:
    int Stats();
    int Missing(const std::string& language, const std::string& section);
    int Merge(const std::string& language, const std::string& capture);
    int Pseudo();
    int Check(const std::vector<std::string>& languages);
    bool CheckFile(const fs::path& path);
    void CheckPluralForms(const std::string& name, const PoCatalog& catalog, const std::string& header,
                          std::vector<bool>& oneNumber, int& problems);
    void CheckEntry(const fs::path& path, const PoEntry& entry, const std::vector<bool>& oneNumber, int& problems);

    std::vector<fs::path> LanguageFiles();
    std::optional<fs::path> FindLanguage(const std::string& name);
    bool Load(const fs::path& path, PoCatalog& catalog);
    int Fail(const std::string& message)
    {
        m_err << "kivstore: " << message << "\n";
        return 1;
    }

    std::ostream& m_out;
    std::ostream& m_err;
    fs::path m_folder = "lang";
};

std::vector<fs::path> StoreTool::LanguageFiles()
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder))
        if (IsLanguageFile(entry.path()))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

bool StoreTool::Load(const fs::path& path, PoCatalog& catalog)
{
    std::string bytes;
    if (!ReadBytes(path, bytes))
        return Fail("cannot read " + path.string()) == 0;
    PoError error;
    if (!catalog.Load(std::move(bytes), &error))
        return Fail(path.filename().string() + ":" + std::to_string(error.line) + ": " + error.message +
                    " (kivstore check tells more)") == 0;
    return true;
}

// The language by its file name or by a name its header lists, without case.
std::optional<fs::path> StoreTool::FindLanguage(const std::string& name)
{
    std::string wanted = Lower(name);
    for (const fs::path& path : LanguageFiles())
    {
        if (Lower(path.stem().string()) == wanted)
            return path;
        std::string bytes, header;
        if (ReadBytes(path, bytes) && kiv::rules::ParsePoHeader(bytes, header))
            for (const std::string& listed : kiv::rules::HeaderLanguageNames(header))
                if (Lower(listed) == wanted)
                    return path;
    }
    Fail("no language \"" + name + "\" in " + m_folder.string());
    return std::nullopt;
}

int StoreTool::Run(std::vector<std::string> args)
{
    if (args.size() >= 2 && args[0] == "--store")
    {
        m_folder = args[1];
        args.erase(args.begin(), args.begin() + 2);
    }
    if (args.empty() || args[0] == "--help" || args[0] == "help")
    {
        (args.empty() ? m_err : m_out) << kUsage;
        return args.empty() ? 2 : 0;
    }
    if (fs::exists(m_folder) && !fs::is_directory(m_folder))
        return Fail("the store folder " + m_folder.string() + " is not a folder");
    if (!fs::is_directory(m_folder))
        return Fail("the store folder " + m_folder.string() + " does not exist");
    const std::string& command = args[0];
    if (command == "stats" && args.size() == 1)
        return Stats();
    if (command == "missing" && args.size() == 2)
        return Missing(args[1], std::string());
    if (command == "missing" && args.size() == 4 && args[2] == "--section")
        return Missing(args[1], args[3]);
    if (command == "merge" && args.size() == 3)
        return Merge(args[1], args[2]);
    if (command == "pseudo" && args.size() == 1)
        return Pseudo();
    if (command == "check")
        return Check(std::vector<std::string>(args.begin() + 1, args.end()));
    m_err << "kivstore: unknown command line\n" << kUsage;
    return 2;
}

struct Counts
{
    int total = 0, translated = 0, missing = 0, fuzzy = 0;
    void Add(const PoEntry& entry)
    {
        ++total;
        if (entry.IsFuzzy())
            ++fuzzy;
        else if (entry.msgstr.empty())
            ++missing;
        else
            ++translated;
    }
};

std::ostream& operator<<(std::ostream& out, const Counts& c)
{
    return out << c.total << " texts, " << c.translated << " translated, " << c.missing << " missing, " << c.fuzzy
               << " fuzzy";
}

int StoreTool::Stats()
{
    int status = 0;
    for (const fs::path& path : LanguageFiles())
    {
        PoCatalog catalog;
        if (!Load(path, catalog))
        {
            status = 1;
            continue;
        }
        Counts all;
        std::map<std::string, Counts> sections;
        for (const PoEntry& entry : catalog.File().entries)
            if (IsStoreEntry(entry))
            {
                all.Add(entry);
                sections[std::string(SectionOf(entry))].Add(entry);
            }
        m_out << path.stem().string() << ": " << all << "\n";
        for (const auto& [section, counts] : sections)
            m_out << "  " << section << ": " << counts << "\n";
    }
    return status;
}

int StoreTool::Missing(const std::string& language, const std::string& section)
{
    std::optional<fs::path> path = FindLanguage(language);
    PoCatalog catalog;
    if (!path || !Load(*path, catalog))
        return 1;
    for (const PoEntry& entry : catalog.File().entries)
    {
        if (!IsStoreEntry(entry) || (!entry.msgstr.empty() && !entry.IsFuzzy()))
            continue;
        if (!section.empty() && SectionOf(entry) != section)
            continue;
        std::string_view key = entry.context.substr(entry.context.find('\n') + 1);
        m_out << SectionOf(entry) << "\t" << key << "\t" << (entry.IsFuzzy() ? "fuzzy\t" : "") << entry.msgid << "\n";
    }
    return 0;
}

int StoreTool::Merge(const std::string& language, const std::string& capture)
{
    std::optional<fs::path> path = FindLanguage(language);
    PoCatalog target, captured;
    if (!path || !Load(*path, target) || !Load(capture, captured))
        return 1;  // nothing is written over a file that could not be read
    int added = 0, changed = 0;
    for (const PoEntry& entry : captured.File().entries)
    {
        if (!IsStoreEntry(entry))
            continue;
        const PoEntry* held = target.Find(entry.context);
        if (held == nullptr)
            added += target.Insert(entry.context, entry.msgid, entry.msgstr) == PoCatalog::kDone ? 1 : 0;
        else if (held->msgid != entry.msgid)
            ++changed;
    }
    if (added > 0 && !WriteBytes(*path, target.Save({path->stem().string(), Today()})))
        return Fail("cannot write " + path->string());
    m_out << path->filename().string() << ": " << added << " new texts";
    if (changed > 0)
        m_out << "; " << changed << " texts whose default text differs were left for a translator";
    m_out << "\n";
    return 0;
}

int StoreTool::Pseudo()
{
    std::map<std::string, std::string> texts;  // context -> default text, the first file's
    fs::path pseudoPath = m_folder / (std::string(kPseudoLanguage) + ".po");
    for (const fs::path& path : LanguageFiles())
    {
        PoCatalog catalog;
        if (path == pseudoPath || !Load(path, catalog))
            continue;
        for (const PoEntry& entry : catalog.File().entries)
            if (IsStoreEntry(entry) && !entry.msgid.empty())
                texts.emplace(std::string(entry.context), std::string(entry.msgid));
    }
    std::string existing;
    PoCatalog check;
    if (fs::exists(pseudoPath) && (!ReadBytes(pseudoPath, existing) || !check.Load(existing)))
        return Fail(pseudoPath.string() + " cannot be read: it is left as it is");
    PoCatalog pseudo;
    pseudo.Load("msgid \"\"\nmsgstr \"\"\n\"Language: qps-ploc\\n\"\n\"X-Language-Names: qps-ploc, Pseudo\\n\"\n");
    for (const auto& [context, text] : texts)
        pseudo.Insert(context, text, PseudoText(text));
    if (!WriteBytes(pseudoPath, pseudo.Save({kPseudoLanguage, Today()})))
        return Fail("cannot write " + pseudoPath.string());
    m_out << pseudoPath.filename().string() << ": " << texts.size() << " texts\n";
    return 0;
}

int StoreTool::Check(const std::vector<std::string>& languages)
{
    std::vector<fs::path> files;
    if (languages.empty())
        files = LanguageFiles();
    for (const std::string& language : languages)
    {
        std::optional<fs::path> path = FindLanguage(language);
        if (!path)
            return 1;
        files.push_back(*path);
    }
    bool clean = true;
    for (const fs::path& path : files)
        clean = CheckFile(path) && clean;
    return clean ? 0 : 1;
}

bool StoreTool::CheckFile(const fs::path& path)
{
    std::string name = path.filename().string();
    std::string bytes;
    if (!ReadBytes(path, bytes))
        return Fail("cannot read " + path.string()) == 0;
    if (bytes.size() >= 2 && ((bytes[0] == '\xFF' && bytes[1] == '\xFE') || (bytes[0] == '\xFE' && bytes[1] == '\xFF')))
    {
        m_out << name << ": saved as UTF-16; save it as UTF-8\n";
        return false;
    }
    std::string header;
    if (kiv::rules::ParsePoHeader(bytes, header))
    {
        std::string_view charset = kiv::rules::HeaderCharset(header);
        if (charset == "CHARSET" || kiv::rules::HeaderField(header, "Language").empty())
        {
            m_out << name << ": a template (.pot) copied in: make the language file with msginit, or fill in "
                  << "Language and the charset\n";
            return false;
        }
        if (!kiv::rules::IsReadableCharsetName(charset))
        {
            m_out << name << ": declares the charset " << charset << "; the store reads UTF-8 only: convert it "
                  << "(msgconv -t UTF-8)\n";
            return false;
        }
    }
    PoCatalog catalog;
    PoError error;
    if (!catalog.Load(bytes, &error))
    {
        m_out << name << ":" << error.line << ": " << error.message << "\n";
        return false;
    }
    int problems = 0;
    if (catalog.File().Header() == nullptr && !catalog.File().entries.empty())
    {
        m_out << name << ": has no header entry (msgfmt -c refuses it; the store writes one when it next saves "
              << "the file)\n";
        ++problems;
    }
    std::vector<bool> oneNumber;  // the plural forms that stand for one number only
    CheckPluralForms(name, catalog, header, oneNumber, problems);
    for (const PoEntry& entry : catalog.File().entries)
        if (!entry.IsHeader() && !entry.IsFuzzy())
            CheckEntry(path, entry, oneNumber, problems);
    if (problems == 0)
        m_out << name << ": ok\n";
    return problems == 0;
}

bool IsTranslated(const PoEntry& entry)
{
    if (!entry.hasPlural)
        return !entry.msgstr.empty();
    return std::any_of(entry.plurals.begin(), entry.plurals.end(), [](std::string_view s) { return !s.empty(); });
}

// The header's plural forms, checked as msgfmt checks them whenever the header has them or an
// entry has translated plural forms.
void StoreTool::CheckPluralForms(const std::string& name, const PoCatalog& catalog, const std::string& header,
                                 std::vector<bool>& oneNumber, int& problems)
{
    const auto& entries = catalog.File().entries;
    bool needed = std::any_of(entries.begin(), entries.end(),
                              [](const PoEntry& e) { return e.hasPlural && !e.IsFuzzy() && IsTranslated(e); });
    if (!needed && kiv::rules::HeaderField(header, "Plural-Forms").empty())
        return;
    PluralForms forms;
    std::string problem;
    if (kiv::rules::ParsePluralForms(header, forms, problem))
        problem = kiv::rules::CheckPluralRange(forms);
    if (!problem.empty())
    {
        m_out << name << ": " << problem << " (msgfmt -c)\n";
        ++problems;
        return;
    }
    oneNumber = kiv::rules::FormsOfOneNumber(forms);
}

std::string Where(const fs::path& path, const PoEntry& entry)
{
    std::string where = path.filename().string() + ": ";
    if (IsStoreEntry(entry))
    {
        where.append(entry.context.substr(0, entry.context.find('\n')));
        where += " ";
        return where.append(entry.context.substr(entry.context.find('\n') + 1));
    }
    std::string_view text = entry.msgid.substr(0, 40);
    return where.append("\"").append(text).append(text.size() < entry.msgid.size() ? "...\"" : "\"");
}

// Format directives as msgfmt compares them for a "c-format" entry; a store entry is compared
// without the flag, but only when its translation reads as a format at all ("50 %" is text).
std::string CheckFormat(const PoEntry& entry, const std::vector<bool>& oneNumber)
{
    bool flagged = entry.HasFlag("c-format");
    if (entry.HasFlag("no-c-format") || (!flagged && !IsStoreEntry(entry)))
        return std::string();
    std::vector<kiv::rules::FormatArgument> arguments;
    auto compare = [&](std::string_view source, std::string_view translation, bool mayOmit) {
        if (translation.empty() || (!flagged && !kiv::rules::ParseCFormat(translation, arguments)))
            return std::string();
        return kiv::rules::CompareCFormat(source, translation, mayOmit);
    };
    if (!entry.hasPlural)
        return compare(entry.msgid, entry.msgstr, false);
    for (std::size_t i = 0; i < entry.plurals.size(); ++i)
    {
        std::string problem = compare(entry.msgidPlural, entry.plurals[i], i < oneNumber.size() && oneNumber[i]);
        if (!problem.empty())
            return "msgstr[" + std::to_string(i) + "]: " + problem;
    }
    return std::string();
}

void StoreTool::CheckEntry(const fs::path& path, const PoEntry& entry, const std::vector<bool>& oneNumber,
                           int& problems)
{
    if (!IsTranslated(entry))
        return;
    std::string where = Where(path, entry);
    if (kiv::rules::HasOtherOuterLineFeeds(entry))
    {
        m_out << where << ": the translation begins or ends with a line feed its text does not (msgfmt -c)\n";
        ++problems;
    }
    if (entry.hasPlural && !oneNumber.empty() && entry.plurals.size() != oneNumber.size())
    {
        m_out << where << ": " << entry.plurals.size() << " plural forms where the header's nplurals says "
              << oneNumber.size() << " (msgfmt -c)\n";
        ++problems;
    }
    std::string format = CheckFormat(entry, oneNumber);
    if (!format.empty())
    {
        m_out << where << ": format specifiers differ between the text and its translation: " << format << "\n";
        ++problems;
    }
    std::size_t longest = Utf16Length(entry.msgstr);
    if (IsStoreEntry(entry) && longest > kLongestTranslation)
    {
        m_out << where << ": the translation has " << longest << " UTF-16 units; a dialog control shows at most "
              << kLongestTranslation << "\n";
        ++problems;
    }
}

// Accented forms of the ASCII letters, as UTF-8.
const char* Accented(char c)
{
    static const std::map<char, const char*> forms = {
        {'a', "\xC3\xA1"}, {'e', "\xC3\xA9"}, {'i', "\xC3\xAD"}, {'o', "\xC3\xB3"}, {'u', "\xC3\xBA"},
        {'c', "\xC3\xA7"}, {'n', "\xC3\xB1"}, {'y', "\xC3\xBD"}, {'A', "\xC3\x85"}, {'E', "\xC3\x89"},
        {'I', "\xC3\x8E"}, {'O', "\xC3\x96"}, {'U', "\xC3\x9C"}, {'C', "\xC3\x87"}, {'N', "\xC3\x91"}};
    auto it = forms.find(c);
    return it == forms.end() ? nullptr : it->second;
}

// Length of a format specifier starting at text[at] == '%', or 0.
std::size_t SpecifierLength(std::string_view text, std::size_t at)
{
    std::size_t end = at + 1;
    while (end < text.size() && std::string_view("-+ #0123456789.lhI").find(text[end]) != std::string_view::npos)
        ++end;
    if (end < text.size() && std::string_view("diouxXeEfgGcsSpn").find(text[end]) != std::string_view::npos)
        return end - at + 1;
    return 0;
}

}  // namespace

std::size_t Utf16Length(std::string_view utf8)
{
    std::size_t units = 0;
    for (unsigned char c : utf8)
    {
        if ((c & 0xC0) != 0x80)
            ++units;
        if (c >= 0xF0)
            ++units;  // a character outside the basic plane takes two units
    }
    return units;
}

std::vector<std::string> FormatSpecifiers(std::string_view text)
{
    std::vector<std::string> found;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        if (text[at] != '%')
            continue;
        if (at + 1 < text.size() && text[at + 1] == '%')
        {
            ++at;
            continue;
        }
        if (std::size_t length = SpecifierLength(text, at))
        {
            found.emplace_back(text.substr(at, length));
            at += length - 1;
        }
    }
    return found;
}

std::string PseudoText(std::string_view text)
{
    std::string out = "[";
    std::size_t letters = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        std::size_t specifier = text[at] == '%' ? SpecifierLength(text, at) : 0;
        if (specifier > 0)
        {
            out.append(text.substr(at, specifier));
            at += specifier - 1;
            continue;
        }
        const char* accented = Accented(text[at]);
        out += accented ? accented : std::string(1, text[at]);
        letters += (text[at] & 0xC0) != 0x80 ? 1 : 0;
    }
    out.append((letters * 35 + 99) / 100, '~');
    out += "]";
    return out;
}

int RunStoreTool(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    StoreTool tool(out, err);
    try
    {
        return tool.Run(args);
    }
    catch (const std::exception& error)
    {
        err << "kivstore: " << error.what() << "\n";
        return 1;
    }
}

}  // namespace kiv::tools
