#include "PoCatalog.h"

#include "Utf8.h"

#include <algorithm>
#include <functional>
#include <unordered_set>

namespace kiv::rules {

namespace {

// Marks a side-file entry that changes a translation only: its default text is not known.
constexpr std::string_view kUpdateOnlyComment = "#. translation update; the default text is not known";
constexpr std::string_view kUtf8ContentType = "Content-Type: text/plain; charset=UTF-8";

bool EqualNoCase(std::string_view a, std::string_view b) noexcept
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return (x >= 'A' && x <= 'Z' ? x | 0x20 : x) == (y >= 'A' && y <= 'Z' ? y | 0x20 : y);
           });
}

std::string_view Trim(std::string_view s) noexcept
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

// The line of a header field: where it starts and ends in the header, and its value.
struct HeaderLine
{
    std::size_t begin = std::string_view::npos;
    std::size_t end = 0;
    std::string_view value;
};

HeaderLine FindHeaderField(std::string_view header, std::string_view name)
{
    for (std::size_t start = 0; start < header.size();)
    {
        std::size_t end = header.find('\n', start);
        end = end == std::string_view::npos ? header.size() : end;
        std::string_view line = header.substr(start, end - start);
        std::size_t colon = line.find(':');
        if (colon != std::string_view::npos && EqualNoCase(Trim(line.substr(0, colon)), name))
            return {start, end, Trim(line.substr(colon + 1))};
        start = end + 1;
    }
    return {};
}

std::string_view Charset(std::string_view header)
{
    std::string_view type = FindHeaderField(header, "Content-Type").value;
    std::size_t at = type.find("charset=");
    if (at == std::string_view::npos)
        return {};
    type.remove_prefix(at + 8);
    return type.substr(0, std::min(type.find_first_of(" \t;"), type.size()));
}

bool IsUtf8Charset(std::string_view charset) noexcept
{
    return EqualNoCase(charset, "UTF-8") || EqualNoCase(charset, "UTF8");
}

// Charsets whose files read the same as UTF-8 (all their text is ASCII) or that name none yet.
bool IsReadableCharset(std::string_view charset) noexcept
{
    return charset.empty() || IsUtf8Charset(charset) || charset == "CHARSET" || EqualNoCase(charset, "ASCII") ||
           EqualNoCase(charset, "US-ASCII") || EqualNoCase(charset, "ANSI_X3.4-1968");
}

bool StartsWithBreak(std::string_view s) noexcept
{
    return !s.empty() && s.front() == '\n';
}
bool EndsWithBreak(std::string_view s) noexcept
{
    return !s.empty() && s.back() == '\n';
}

// msgfmt refuses a translated entry whose strings disagree about a leading or trailing line feed.
bool HasRefusedLineFeeds(const PoEntry& entry)
{
    if (entry.msgid.empty())
        return false;
    auto differs = [&](std::string_view s) {
        return StartsWithBreak(s) != StartsWithBreak(entry.msgid) || EndsWithBreak(s) != EndsWithBreak(entry.msgid);
    };
    if (!entry.hasPlural)
        return !entry.msgstr.empty() && differs(entry.msgstr);
    if (entry.plurals.empty() || entry.plurals[0].empty())
        return false;
    return differs(entry.msgidPlural) || std::any_of(entry.plurals.begin(), entry.plurals.end(), differs);
}

// msgfmt refuses a file that defines a message (context and msgid) twice.
bool HasTwiceDefinedMessage(const PoFile& file, const std::vector<std::size_t>& suspects)
{
    std::unordered_set<std::string> seen;
    for (std::size_t i : suspects)
    {
        const PoEntry& entry = file.entries[i];
        std::string key(entry.hasContext ? "c" : "-");
        key.append(entry.context).append(1, '\x04').append(entry.msgid);
        if (!seen.insert(std::move(key)).second)
            return true;
    }
    return false;
}

std::string NewHeader(const PoHeaderInfo& info)
{
    return "Project-Id-Version: \n"
           "PO-Revision-Date: " +
           info.revisionDate +
           "\n"
           "Last-Translator: \n"
           "Language-Team: \n"
           "Language: " +
           info.language +
           "\n"
           "MIME-Version: 1.0\n" +
           std::string(kUtf8ContentType) +
           "\n"
           "Content-Transfer-Encoding: 8bit\n";
}

}  // namespace

bool IsStorableText(std::string_view text) noexcept
{
    return IsValidUtf8(text) && text.find_first_of(std::string_view("\0\x04", 2)) == std::string_view::npos;
}

std::string_view HeaderField(std::string_view header, std::string_view name)
{
    return FindHeaderField(header, name).value;
}

std::string_view HeaderCharset(std::string_view header)
{
    return Charset(header);
}

bool IsReadableCharsetName(std::string_view charset) noexcept
{
    return IsReadableCharset(charset);
}

bool HasOtherOuterLineFeeds(const PoEntry& entry)
{
    return HasRefusedLineFeeds(entry);
}

bool MakeContext(std::string_view section, std::string_view key, std::string& context)
{
    if (section.find('\n') != std::string_view::npos || !IsStorableText(section) || !IsStorableText(key))
        return false;
    context.assign(section).append(1, '\n').append(key);
    return true;
}

const PoEntry* PoCatalog::Find(std::string_view context) const
{
    std::size_t at = Lookup(context);
    if (at == kNone || m_file.entries[at].hasPlural)
        return nullptr;
    return &m_file.entries[at];
}

std::vector<std::string> PoCatalog::LanguageNames() const
{
    const PoEntry* header = m_file.Header();
    return header ? HeaderLanguageNames(header->msgstr) : std::vector<std::string>();
}

std::vector<std::string> HeaderLanguageNames(std::string_view header)
{
    std::vector<std::string> names;
    std::string_view list = FindHeaderField(header, "X-Language-Names").value;
    while (!list.empty())
    {
        std::size_t comma = list.find(',');
        std::string_view name = Trim(list.substr(0, comma));
        if (!name.empty())
            names.emplace_back(name);
        list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
    }
    return names;
}

std::vector<PoRecord> PoCatalog::Records() const
{
    std::vector<PoRecord> records;
    records.reserve(m_file.entries.size());
    VisitRecords([&records](const PoRecord& record) { records.push_back(record); });
    return records;
}

bool PoCatalog::Load(std::string bytes, PoError* error)
{
    PoCatalog loaded;
    if (!ParsePo(std::move(bytes), loaded.m_file, error))
        return false;
    const PoEntry* header = loaded.m_file.Header();
    if (header && !IsReadableCharset(Charset(header->msgstr)))
    {
        if (error)
            *error = {1, "the header names a charset other than UTF-8"};
        return false;
    }
    // The index is made as large as its entries need at once, instead of growing while they are added.
    std::size_t slots = 64;
    while (slots < 2 * (loaded.m_file.entries.size() + 1))
        slots *= 2;
    loaded.m_slots.assign(slots, 0);
    std::vector<std::size_t> suspects;
    for (std::size_t i = 0; i < loaded.m_file.entries.size(); ++i)
    {
        const PoEntry& entry = loaded.m_file.entries[i];
        // msgfmt takes any entry without context and with an empty msgid for the header; one with
        // plural forms is not a header here, so saving would add a second definition beside it.
        if (!entry.hasContext && entry.msgid.empty() && entry.hasPlural)
        {
            if (error)
                *error = {1, "the header has plural forms"};
            return false;
        }
        if (!entry.hasContext)
        {
            suspects.push_back(i);
            continue;
        }
        std::size_t first = loaded.AddToIndex(i);
        if (first != i)
        {
            loaded.m_sharedContexts = true;
            suspects.push_back(i);
            suspects.push_back(first);
        }
    }
    std::sort(suspects.begin(), suspects.end());
    suspects.erase(std::unique(suspects.begin(), suspects.end()), suspects.end());
    if (HasTwiceDefinedMessage(loaded.m_file, suspects))
    {
        if (error)
            *error = {1, "a message is defined twice"};
        return false;
    }
    *this = std::move(loaded);
    return true;
}

PoCatalog::Result PoCatalog::Insert(std::string_view context, std::string_view msgid, std::string_view msgstr)
{
    if (Lookup(context) != kNone)
        return kAlreadyHeld;
    Append(context, msgid, msgstr);
    return kDone;
}

PoCatalog::Result PoCatalog::Update(std::string_view context, std::string_view msgstr)
{
    std::size_t at = Lookup(context);
    if (at == kNone || m_file.entries[at].hasPlural)
        return kNotHeld;
    PoEntry& entry = m_file.entries[at];
    if (entry.msgstr == msgstr)
        return kUnchanged;
    if (msgstr.empty())
        return kKeptTranslation;
    entry.msgstr = m_file.Keep(msgstr);
    entry.MarkChanged();
    m_changed = true;
    return kDone;
}

PoCatalog::Result PoCatalog::Apply(const PoChange& change)
{
    if (change.kind == PoChange::kInsert)
        return Insert(change.context, change.msgid, change.msgstr);
    Result result = Update(change.context, change.msgstr);
    return result == kNotHeld ? Insert(change.context, std::string_view(), change.msgstr) : result;
}

std::string PoCatalog::Save(const PoHeaderInfo& info)
{
    PrepareHeader(info);
    for (PoEntry& entry : m_file.entries)
        if (!entry.IsHeader() && HasRefusedLineFeeds(entry))
            m_file.SetFuzzy(entry);
    return WritePo(m_file);
}

void PoCatalog::Keep(const PoChange& change)
{
    std::size_t at = Lookup(change.context);
    if (at == kNone)
    {
        PoEntry& entry = Append(change.context, change.msgid, change.msgstr);
        if (change.kind == PoChange::kUpdate)
            entry.comments.push_back(kUpdateOnlyComment);
        return;
    }
    PoEntry& entry = m_file.entries[at];
    if (change.kind == PoChange::kInsert)
    {
        entry.msgid = m_file.Keep(change.msgid);
        std::erase(entry.comments, kUpdateOnlyComment);
    }
    entry.msgstr = m_file.Keep(change.msgstr);
    entry.MarkChanged();
    m_changed = true;
}

std::vector<PoChange> PoCatalog::KeptChanges() const
{
    std::vector<PoChange> changes;
    for (const PoEntry& entry : m_file.entries)
    {
        if (!entry.hasContext || entry.hasPlural)
            continue;
        bool updateOnly =
            std::find(entry.comments.begin(), entry.comments.end(), kUpdateOnlyComment) != entry.comments.end();
        changes.push_back({updateOnly ? PoChange::kUpdate : PoChange::kInsert, std::string(entry.context),
                           updateOnly ? std::string() : std::string(entry.msgid), std::string(entry.msgstr)});
    }
    return changes;
}

PoEntry& PoCatalog::Append(std::string_view context, std::string_view msgid, std::string_view msgstr)
{
    PoEntry& entry = m_file.entries.emplace_back();
    entry.hasContext = true;
    entry.context = m_file.Keep(context);
    entry.msgid = m_file.Keep(msgid);
    entry.msgstr = m_file.Keep(msgstr);
    AddToIndex(m_file.entries.size() - 1);
    m_changed = true;
    return entry;
}

std::size_t PoCatalog::Lookup(std::string_view context) const noexcept
{
    if (m_slots.empty())
        return kNone;
    std::size_t mask = m_slots.size() - 1;
    for (std::size_t slot = std::hash<std::string_view>()(context) & mask;; slot = (slot + 1) & mask)
    {
        std::uint32_t entry = m_slots[slot];
        if (entry == 0)
            return kNone;
        if (m_file.entries[entry - 1].context == context)
            return entry - 1;
    }
}

std::size_t PoCatalog::AddToIndex(std::size_t entry)
{
    // At most half full, so that probes stay short; growing indexes the earlier entries again.
    if (2 * (m_indexed + 1) > m_slots.size())
    {
        std::size_t size = 64;
        while (size < 4 * (m_indexed + 1))
            size *= 2;
        m_slots.assign(size, 0);
        m_indexed = 0;
        for (std::size_t i = 0; i < entry; ++i)
            if (m_file.entries[i].hasContext)
                AddToIndex(i);
    }
    const PoEntry& added = m_file.entries[entry];
    std::size_t mask = m_slots.size() - 1;
    for (std::size_t slot = std::hash<std::string_view>()(added.context) & mask;; slot = (slot + 1) & mask)
    {
        std::uint32_t other = m_slots[slot];
        if (other == 0)
        {
            m_slots[slot] = static_cast<std::uint32_t>(entry + 1);
            ++m_indexed;
            return entry;
        }
        if (m_file.entries[other - 1].context == added.context)
            return other - 1;
    }
}

void PoCatalog::Reindex()
{
    m_slots.clear();
    m_indexed = 0;
    for (std::size_t i = 0; i < m_file.entries.size(); ++i)
        if (m_file.entries[i].hasContext)
            AddToIndex(i);
}

void PoCatalog::PrepareHeader(const PoHeaderInfo& info)
{
    auto header = std::find_if(m_file.entries.begin(), m_file.entries.end(),
                               [](const PoEntry& entry) { return entry.IsHeader(); });
    if (header == m_file.entries.end())
    {
        PoEntry entry;
        entry.msgstr = m_file.Keep(NewHeader(info));
        m_file.entries.insert(m_file.entries.begin(), std::move(entry));
        Reindex();
        return;
    }
    std::string text(header->msgstr);
    if (IsUtf8Charset(Charset(text)))
        return;
    HeaderLine line = FindHeaderField(text, "Content-Type");
    if (line.begin != std::string_view::npos)
        text.replace(line.begin, line.end - line.begin, kUtf8ContentType);
    else
    {
        if (!text.empty() && text.back() != '\n')
            text += '\n';
        text.append(kUtf8ContentType).append(1, '\n');
    }
    header->msgstr = m_file.Keep(text);
    header->MarkChanged();
}

}  // namespace kiv::rules
