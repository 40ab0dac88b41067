// One language of the string store: the entries of its PO file found by their context (the
// section, a line feed, the key), changed in place, and written back so that msgfmt -c
// accepts the file.
#pragma once

#include "PoFile.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kiv::rules {

// A change the store was asked for, kept so that it can be made again on a newer copy of
// the file or set aside in a side file.
struct PoChange
{
    enum Kind
    {
        kInsert,
        kUpdate
    };
    Kind kind = kInsert;
    std::string context;
    std::string msgid;  // the default text of an insertion
    std::string msgstr;
    bool operator==(const PoChange&) const = default;
};

// What a file written without a header gets in its new one.
struct PoHeaderInfo
{
    std::string language;
    std::string revisionDate;  // "YYYY-MM-DD HH:MM+0000"
};

// A store record: the four texts of one entry.
struct PoRecord
{
    std::string_view defaultText;
    std::string_view translation;
    std::string_view key;
    std::string_view section;
};

// The context of a store entry; false when the pair cannot be told apart from another one
// (a section with a line feed) or holds what a PO file cannot (NUL, the context separator).
bool MakeContext(std::string_view section, std::string_view key, std::string& context);
// The names in the field "X-Language-Names" of a header's text, comma-separated, trimmed.
std::vector<std::string> HeaderLanguageNames(std::string_view header);
// True for text a PO file can hold: UTF-8 without NUL and without the context separator.
bool IsStorableText(std::string_view text) noexcept;
// The value of a header field (names compared without case), empty when absent.
std::string_view HeaderField(std::string_view header, std::string_view name);
// The charset the header's Content-Type names, empty when none.
std::string_view HeaderCharset(std::string_view header);
// Whether the store reads a file of that charset: UTF-8, ASCII, or none named yet.
bool IsReadableCharsetName(std::string_view charset) noexcept;
// msgfmt -c refuses a translation whose leading or trailing line feed differs from its text's.
bool HasOtherOuterLineFeeds(const PoEntry& entry);

class PoCatalog
{
public:
    enum Result
    {
        kDone,
        kUnchanged,
        kNotHeld,
        kAlreadyHeld,
        kKeptTranslation
    };

    // Attributes
    const PoFile& File() const noexcept { return m_file; }
    // The entry of a context, without plural forms; the first one when a file repeats a context.
    const PoEntry* Find(std::string_view context) const;
    // The header's names of the language.
    std::vector<std::string> LanguageNames() const;
    // The records a host sees: entries with a section and a key, without plural forms; a fuzzy
    // entry's translation reads as none.
    std::vector<PoRecord> Records() const;
    // visit(const PoRecord&) for each of Records(), in its order, without making the list.
    template <typename Visit> void VisitRecords(Visit&& visit) const;
    bool IsChanged() const noexcept { return m_changed; }

    // Operations
    // Reads a file; refuses one msgfmt would refuse as a whole (syntax, encoding, a charset
    // other than UTF-8, a message defined twice) and one whose header has plural forms, which
    // Save could neither complete nor add a header beside.
    bool Load(std::string bytes, PoError* error = nullptr);
    Result Insert(std::string_view context, std::string_view msgid, std::string_view msgstr);
    // An empty text never replaces a translation: callers that know a text only by its first
    // character send empty ones for texts a translator has filled (kKeptTranslation).
    Result Update(std::string_view context, std::string_view msgstr);
    // Makes a change again on this copy: an insertion the file already holds is dropped, an
    // update of an entry the file lacks becomes an insertion with an empty default text.
    Result Apply(const PoChange& change);
    // The file to write: a header with charset UTF-8 is added or completed, and a translation
    // whose leading or trailing line feed differs from its default text is flagged fuzzy.
    std::string Save(const PoHeaderInfo& info);

    // Side file of changes set aside while the language's own file cannot be used.
    void Keep(const PoChange& change);
    std::vector<PoChange> KeptChanges() const;

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    PoEntry& Append(std::string_view context, std::string_view msgid, std::string_view msgstr);
    void PrepareHeader(const PoHeaderInfo& info);
    // The index of contexts: open addressing over entry numbers, no allocation per entry.
    std::size_t Lookup(std::string_view context) const noexcept;
    // Indexes the entry; when its context is there already, answers that entry instead.
    std::size_t AddToIndex(std::size_t entry);
    void Reindex();

    PoFile m_file;
    std::vector<std::uint32_t> m_slots;  // entry number + 1, 0 for a free slot
    std::size_t m_indexed = 0;
    bool m_sharedContexts = false;
    bool m_changed = false;
};

template <typename Visit> void PoCatalog::VisitRecords(Visit&& visit) const
{
    for (std::size_t i = 0; i < m_file.entries.size(); ++i)
    {
        const PoEntry& entry = m_file.entries[i];
        std::size_t lineFeed = entry.context.find('\n');
        if (!entry.hasContext || entry.hasPlural || lineFeed == std::string_view::npos)
            continue;
        // A context repeated by hand counts once, as Find sees it.
        if (m_sharedContexts && Lookup(entry.context) != i)
            continue;
        visit(PoRecord{entry.msgid, entry.Translation(), entry.context.substr(lineFeed + 1),
                       entry.context.substr(0, lineFeed)});
    }
}

}  // namespace kiv::rules
