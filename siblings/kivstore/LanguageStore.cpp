#include "LanguageStore.h"

#include <cstring>
#include <cwchar>

#include "StoreFiles.h"
#include "StringBlock.h"
#include "TextConversion.h"

#include "Utf8.h"

#include <cstdio>

using kiv::rules::PoCatalog;
using kiv::rules::PoChange;
using kiv::rules::PoEntry;
using kiv::rules::PoRecord;
using kiv::rules::WithoutByteOrderMark;
using namespace kiv::siblings;

namespace {

constexpr char kSideFileSuffix[] = ".pending";
// When a side file cannot be read either, the changes go to the next free one of
// "<file>.2.pending" ... so that nothing a host asked for is dropped and nobody's work is
// overwritten.
constexpr int kSideFileLimit = 100;

std::string SideFilePath(const std::string& path, int number)
{
    return number == 1 ? path + kSideFileSuffix : path + "." + std::to_string(number) + kSideFileSuffix;
}
constexpr std::size_t kHeaderReadLimit = 64 * 1024;

// The four echoed fields of a record as one string; U+0004 is in no stored text.
std::string EchoKey(std::string_view defaultText, std::string_view translation, std::string_view key,
                    std::string_view section)
{
    std::string joined;
    for (std::string_view field : {defaultText, translation, key, section})
        joined.append(field).push_back('\x04');
    return joined;
}

constexpr std::size_t kKeyShares = 1024;  // places of the keys a record's key may share

// Which earlier record's string a record's key and section share: control ids repeat from
// dialog to dialog (the last equal key that hashed to the same place), and the records of a
// section mostly follow each other.
class Shares
{
public:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    std::size_t Key(const PoRecord& record, std::size_t number)
    {
        Slot& slot = m_keys[std::hash<std::string_view>()(record.key) % kKeyShares];
        std::size_t shared = slot.record != kNone && slot.key == record.key ? slot.record : kNone;
        slot = {record.key, number};
        return shared;
    }
    std::size_t Section(const PoRecord& record, std::size_t number)
    {
        std::size_t shared = number > 0 && record.section == m_section ? number - 1 : kNone;
        m_section = record.section;
        return shared;
    }

private:
    struct Slot
    {
        std::string_view key;
        std::size_t record = kNone;
    };
    std::vector<Slot> m_keys = std::vector<Slot>(kKeyShares);
    std::string_view m_section;
};

// Of a section and key in UTF-16 (FNV-1a), for the index of a language that let its catalogue go.
std::size_t RecordHash(const wchar_t* section, std::size_t sectionLength, const wchar_t* key,
                       std::size_t keyLength) noexcept
{
    std::uint32_t hash = 2166136261u;
    auto add = [&hash](const wchar_t* units, std::size_t length) {
        for (std::size_t i = 0; i < length; ++i)
            hash = (hash ^ units[i]) * 16777619u;
    };
    add(section, sectionLength);
    hash = (hash ^ L'\n') * 16777619u;
    add(key, keyLength);
    return hash;
}

// The length of a table's string, which its header in front of the characters holds.
int HeldLength(const wchar_t* characters) noexcept
{
    return (reinterpret_cast<const CStringData*>(characters) - 1)->nDataLength;
}

bool SameText(const wchar_t* held, const CStringW& text) noexcept
{
    return HeldLength(held) == text.GetLength() && std::wmemcmp(held, text, text.GetLength()) == 0;
}

std::string EchoOf(const PoRecord& record)
{
    return EchoKey(FirstUnitEcho(record.defaultText, true), FirstUnitEcho(record.translation, false),
                   FirstUnitEcho(record.key, true), FirstUnitEcho(record.section, true));
}

}  // namespace

// One call's table of records: four strings per record, and the slots pointing at them. The
// strings go before their block, which then sees whether a copy outlives them.
struct LanguageStore::RecordTable
{
    StringBlock block;
    std::unique_ptr<CStringW[]> strings;
    std::vector<CStringW*> slots;
};

std::unique_ptr<LanguageStore::RecordTable> LanguageStore::MakeTable(const PoCatalog* catalog,
                                                                     std::vector<const wchar_t*>* texts)
{
    auto table = std::make_unique<RecordTable>();
    // The strings' room is counted first, so that they take one piece of memory of that size.
    std::size_t records = 0, bytes = 0;
    if (catalog)
    {
        Shares shares;
        catalog->VisitRecords([&](const PoRecord& record) {
            bytes += StringBlock::MostBytes(record.defaultText) + StringBlock::MostBytes(record.translation);
            if (shares.Key(record, records) == Shares::kNone)
                bytes += StringBlock::MostBytes(record.key);
            if (shares.Section(record, records) == Shares::kNone)
                bytes += StringBlock::MostBytes(record.section);
            ++records;
        });
    }
    table->strings.reset(new CStringW[records * kRecordFields]);
    table->slots.assign(records + 1, nullptr);
    table->block.Reserve(bytes);
    if (texts)
        texts->assign(3 * records, nullptr);
    if (!catalog)
        return table;
    Shares shares;
    std::size_t i = 0;
    catalog->VisitRecords([&](const PoRecord& record) {
        CStringW* fields = &table->strings[i * kRecordFields];
        table->block.Assign(fields[kRecordDefaultText], record.defaultText);
        table->block.Assign(fields[kRecordTranslation], record.translation);
        std::size_t shared = shares.Key(record, i);
        if (shared != Shares::kNone)
            StringBlock::Share(fields[kRecordKey], table->slots[shared][kRecordKey]);
        else
            table->block.Assign(fields[kRecordKey], record.key);
        shared = shares.Section(record, i);
        if (shared != Shares::kNone)
            StringBlock::Share(fields[kRecordSection], table->slots[shared][kRecordSection]);
        else
            table->block.Assign(fields[kRecordSection], record.section);
        table->slots[i] = fields;
        if (texts)
        {
            (*texts)[3 * i] = fields[kRecordSection].GetString();
            (*texts)[3 * i + 1] = fields[kRecordKey].GetString();
            (*texts)[3 * i + 2] = fields[kRecordTranslation].GetString();
        }
        ++i;
    });
    return table;
}

struct LanguageStore::Language
{
    std::string id;  // the file name without extension, as the folder spells it
    std::string path;
    bool loaded = false;
    bool readable = false;
    PoCatalog catalog;
    // Changes since loading, kept so that they can be made again on a copy another program wrote meanwhile.
    std::vector<PoChange> changes;
    // Side files joined at loading, with their bytes, so that each is removed only if nobody
    // added to it since.
    std::vector<std::pair<std::string, std::string>> mergedSideFiles;
    std::vector<std::unique_ptr<RecordTable>> tables;  // every table handed out stays valid until unloading
    bool tableCurrent = false;
    // What a caller that keeps one unit of each field of the records hands back; made on demand.
    std::unordered_set<std::string> echoes;
    bool echoesCurrent = false;
    // Once a language nobody changed has handed out its table, the catalog is let go (a table and
    // a catalog of every record would hold several times the file). Its records are then looked
    // up through the table's strings, which no holder of the table can change (a holder that writes
    // copies first): section, key and translation of each record, and an index of them by hash of
    // section and key (record number + 1, open addressing) made on first use. A change reads the
    // file again, as another program may have written it by then.
    bool shrunk = false;
    std::vector<const wchar_t*> recordTexts;
    std::vector<std::uint32_t> recordIndex;
};

LanguageStore::LanguageStore(std::string folder) : m_folder(std::move(folder))
{
    for (const std::string& name : ListPoFiles(m_folder))
    {
        auto language = std::make_unique<Language>();
        language->path = m_folder + name;
        language->id = name.substr(0, name.size() - (sizeof(kPoExtension) - 1));
        m_languages.push_back(std::move(language));
    }
}

LanguageStore::~LanguageStore() = default;

bool LanguageStore::Knows(const char* id)
{
    return Find(id) != nullptr;
}

CString LanguageStore::LanguageId(const CStringW& setting)
{
    CStringW wanted = setting;
    wanted.Trim();
    if (wanted.IsEmpty())
        return CString();
    for (auto& language : m_languages)
        if (EqualIgnoringCase(AnsiToWide(language->id.c_str()), wanted))
            return CString(language->id.c_str());
    for (auto& language : m_languages)
        for (const std::string& name : NamesOf(*language))
        {
            CStringW wide;
            AssignUtf8(wide, name);
            if (EqualIgnoringCase(wide, wanted))
                return CString(language->id.c_str());
        }
    return CString();
}

CStringW** LanguageStore::Strings(const char* id)
{
    Language* language = Loaded(id);
    if (!language)
        return nullptr;
    if (!language->tableCurrent)
    {
        const bool whole = Whole(*language);
        const bool shrink = whole && language->changes.empty() && language->mergedSideFiles.empty();
        language->tables.push_back(
            MakeTable(whole ? &language->catalog : nullptr, shrink ? &language->recordTexts : nullptr));
        language->tableCurrent = true;
        if (shrink)
        {
            language->catalog = PoCatalog();
            language->shrunk = true;
        }
    }
    return language->tables.back()->slots.data();
}

int LanguageStore::Get(const char* id, const std::string& context, CStringW* text)
{
    Language* language = Loaded(id);
    if (!language)
        return kStoreUnknownLanguage;
    if (language->shrunk)
    {
        const wchar_t* translation = FindRecord(*language, context);
        if (!translation)
            return kStoreNotHeld;
        if (!text)
            return kStoreRefusedText;
        // A string of its own, as from the catalog: a copy would keep the table's block alive.
        *text = CStringW(translation, HeldLength(translation));
        return kStoreOk;
    }
    // A file that cannot be read holds nothing; its strings are asked for and set aside again.
    const PoEntry* entry = language->readable ? language->catalog.Find(context) : nullptr;
    if (!entry)
        return kStoreNotHeld;
    if (!text)
        return kStoreRefusedText;
    AssignUtf8(*text, entry->Translation());
    return kStoreOk;
}

int LanguageStore::Insert(const char* id, const std::string& context, const std::string& msgid,
                          const std::string& msgstr)
{
    Language* language = Loaded(id);
    if (!language)
        return kStoreUnknownLanguage;
    PoChange change{PoChange::kInsert, context, msgid, msgstr};
    if (!Whole(*language))
    {
        language->changes.push_back(std::move(change));
        return kStoreSetAside;
    }
    if (IsEcho(*language, context, msgid, msgstr))
        return kStoreEchoNotWritten;
    if (language->catalog.Insert(context, msgid, msgstr) == PoCatalog::kAlreadyHeld)
        return kStoreAlreadyHeld;
    language->changes.push_back(std::move(change));
    language->tableCurrent = false;
    if (language->echoesCurrent)
    {
        std::string_view held(context);
        std::size_t split = held.find('\n');
        language->echoes.insert(EchoOf({msgid, msgstr, held.substr(split + 1), held.substr(0, split)}));
    }
    return kStoreOk;
}

int LanguageStore::Update(const char* id, const std::string& context, const std::string& msgstr)
{
    Language* language = Loaded(id);
    if (!language)
        return kStoreUnknownLanguage;
    PoChange change{PoChange::kUpdate, context, std::string(), msgstr};
    if (!Whole(*language))
    {
        language->changes.push_back(std::move(change));
        return kStoreSetAside;
    }
    PoCatalog::Result result = language->catalog.Update(context, msgstr);
    if (result == PoCatalog::kNotHeld)
        return kStoreNotHeld;
    if (result == PoCatalog::kKeptTranslation)
        return kStoreKeptTranslation;
    if (result == PoCatalog::kDone)
    {
        language->changes.push_back(std::move(change));
        language->tableCurrent = false;
        language->echoesCurrent = false;
    }
    return kStoreOk;
}

void LanguageStore::Flush()
{
    for (auto& language : m_languages)
        if (language->loaded && (!language->changes.empty() || !language->mergedSideFiles.empty()))
            FlushLanguage(*language);
}

LanguageStore::Language* LanguageStore::Find(const char* id)
{
    // Only a bare name of the folder: an id that walks out of it ("..", a separator, a drive)
    // is no language, whatever the folder holds.
    if (!id || !*id || std::strstr(id, "..") || std::strpbrk(id, "\\/:"))
        return nullptr;
    for (auto& language : m_languages)
        if (::lstrcmpiA(language->id.c_str(), id) == 0)
            return language.get();
    return nullptr;
}

LanguageStore::Language* LanguageStore::Loaded(const char* id)
{
    Language* language = Find(id);
    if (language && !language->loaded)
        Load(*language);
    return language;
}

void LanguageStore::Load(Language& language)
{
    language.loaded = true;
    std::string bytes;
    language.readable = ReadWholeFile(language.path, bytes) && language.catalog.Load(std::move(bytes));
    if (!language.readable)
        return;
    // Changes set aside while the file could not be used join it now that it can.
    for (int number = 1; number <= kSideFileLimit; ++number)
    {
        std::string sidePath = SideFilePath(language.path, number), side;
        PoCatalog kept;
        if (!ReadWholeFile(sidePath, side) || !kept.Load(side))
            continue;
        for (PoChange& change : kept.KeptChanges())
        {
            language.catalog.Apply(change);
            language.changes.push_back(std::move(change));
        }
        language.mergedSideFiles.emplace_back(std::move(sidePath), std::move(side));
    }
}

bool LanguageStore::Whole(Language& language)
{
    if (language.shrunk)
    {
        language.shrunk = false;
        language.recordTexts = std::vector<const wchar_t*>();
        language.recordIndex = std::vector<std::uint32_t>();
        language.tableCurrent = false;
        language.echoesCurrent = false;
        Load(language);
    }
    return language.readable;
}

const wchar_t* LanguageStore::FindRecord(Language& language, std::string_view context)
{
    const std::vector<const wchar_t*>& texts = language.recordTexts;
    const std::size_t records = texts.size() / 3;
    if (language.recordIndex.empty())
    {
        std::size_t size = 16;
        while (size < 2 * records)
            size *= 2;
        language.recordIndex.assign(size, 0);
        for (std::size_t i = 0; i < records; ++i)
        {
            std::size_t slot =
                RecordHash(texts[3 * i], HeldLength(texts[3 * i]), texts[3 * i + 1], HeldLength(texts[3 * i + 1]));
            for (slot &= size - 1; language.recordIndex[slot] != 0; slot = (slot + 1) & (size - 1))
                ;
            language.recordIndex[slot] = (std::uint32_t)(i + 1);
        }
    }
    // A context is UTF-8; the section ends before its first line feed.
    std::size_t split = context.find('\n');
    if (split == std::string_view::npos || !kiv::rules::IsValidUtf8(context))
        return nullptr;
    CStringW section, key;
    AssignUtf8(section, context.substr(0, split));
    AssignUtf8(key, context.substr(split + 1));
    const std::size_t mask = language.recordIndex.size() - 1;
    for (std::size_t slot = RecordHash(section, section.GetLength(), key, key.GetLength()) & mask;;
         slot = (slot + 1) & mask)
    {
        std::uint32_t record = language.recordIndex[slot];
        if (record == 0)
            return nullptr;
        const wchar_t* const* fields = &texts[3 * (record - 1)];
        if (SameText(fields[0], section) && SameText(fields[1], key))
            return fields[2];
    }
}

std::vector<std::string> LanguageStore::NamesOf(Language& language)
{
    if (language.loaded && language.readable && !language.shrunk)
        return language.catalog.LanguageNames();
    // Only the header is read: naming a language must not cost reading all of its strings.
    std::string bytes, header;
    if (!ReadWholeFile(language.path, bytes, kHeaderReadLimit) || !kiv::rules::ParsePoHeader(bytes, header))
        return {};
    return kiv::rules::HeaderLanguageNames(header);
}

void LanguageStore::FlushLanguage(Language& language)
{
    if (!language.readable)
    {
        SetAside(language);
        return;
    }
    PoCatalog* target = &language.catalog;
    PoCatalog fresh;
    std::string current;
    bool read = ReadWholeFile(language.path, current);
    // Another program wrote the file since it was read: the changes are made again on its copy.
    if (!read || WithoutByteOrderMark(current) != language.catalog.File().Text())
    {
        if (!read || !fresh.Load(current))
        {
            SetAside(language);
            return;
        }
        for (const PoChange& change : language.changes)
            fresh.Apply(change);
        target = &fresh;
    }
    if (target->IsChanged() && !ReplaceWholeFile(m_folder, language.path, target->Save(HeaderInfo(language))))
    {
        SetAside(language);
        return;
    }
    for (const auto& [sidePath, merged] : language.mergedSideFiles)
    {
        std::string side;
        if (ReadWholeFile(sidePath, side) && side == merged)
            ::DeleteFileA(sidePath.c_str());
    }
    language.mergedSideFiles.clear();
    language.changes.clear();
}

bool LanguageStore::SetAside(Language& language)
{
    language.mergedSideFiles.clear();
    for (int number = 1; number <= kSideFileLimit; ++number)
    {
        std::string sidePath = SideFilePath(language.path, number), side;
        PoCatalog kept;
        // A side file that cannot be read is somebody's work too, and is not overwritten.
        if (ReadWholeFile(sidePath, side) && !kept.Load(side))
            continue;
        for (const PoChange& change : language.changes)
            kept.Keep(change);
        if (ReplaceWholeFile(m_folder, sidePath, kept.Save(HeaderInfo(language))))
        {
            language.changes.clear();
            return true;
        }
    }
    return false;
}

// A caller that keeps only the first unit of each field of the records it read hands those
// back as new texts. Such an insertion (every field at most one unit, a section and key the
// file lacks, the four units of one of its records) is not written; a real text always is.
bool LanguageStore::IsEcho(Language& language, const std::string& context, const std::string& msgid,
                           const std::string& msgstr)
{
    std::size_t split = context.find('\n');
    std::string_view section = std::string_view(context).substr(0, split);
    std::string_view key = std::string_view(context).substr(split + 1);
    for (std::string_view field : {std::string_view(msgid), std::string_view(msgstr), key, section})
        if (kiv::rules::Utf16Length(field) > 1)
            return false;
    if (language.catalog.Find(context) != nullptr)
        return false;
    if (!language.echoesCurrent)
    {
        language.echoes.clear();
        for (const PoRecord& record : language.catalog.Records())
            language.echoes.insert(EchoOf(record));
        language.echoesCurrent = true;
    }
    return language.echoes.count(EchoKey(msgid, msgstr, key, section)) != 0;
}

kiv::rules::PoHeaderInfo LanguageStore::HeaderInfo(const Language& language) const
{
    SYSTEMTIME now;
    ::GetSystemTime(&now);
    char date[32];
    std::snprintf(date, sizeof(date), "%04u-%02u-%02u %02u:%02u+0000", now.wYear, now.wMonth, now.wDay, now.wHour,
                  now.wMinute);
    return {AnsiToUtf8(language.id.c_str()), date};
}
