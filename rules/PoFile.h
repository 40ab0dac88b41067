// A gettext PO file in UTF-8, read so that writing it back gives the same bytes for every entry
// nobody changed: a file under version control then changes only where its texts changed.
//
// Reading a store of a hundred thousand entries must not cost an allocation per string: the
// strings of an entry are views into buffers that its PoFile owns (the bytes read, and a pool for
// strings with escapes and strings set later), valid as long as the PoFile, also after a move.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kiv::rules {

class PoFile;

struct PoError
{
    int line = 0;  // 1-based line of the input where reading stopped
    std::string message;
};

// Reads a whole file. Besides the syntax it refuses what msgfmt refuses in any entry: text
// that is not UTF-8, NUL bytes, and the context separator (U+0004) in a string; and a text of
// 4 GB or more.
// The file keeps the bytes it was read from.
bool ParsePo(std::string bytes, PoFile& file, PoError* error = nullptr);

struct PoEntry
{
    // A store holds a hundred thousand of these: the members are ordered so that none is padded.
    std::vector<std::string_view> comments;  // the '#' lines before the entry, without line ends
    std::string_view context;                // msgctxt
    std::string_view msgid;
    std::string_view msgidPlural;
    std::vector<std::string_view> plurals;  // msgstr[0], msgstr[1], ... of an entry with a plural
    std::string_view msgstr;
    // The entry's bytes in PoFile::Text() (which ParsePo keeps under 4 GB), with the blank lines
    // and comments before it. An empty range marks an entry that is new or changed and is
    // written from its fields.
    std::uint32_t textBegin = 0;
    std::uint32_t textEnd = 0;
    bool hasContext = false;
    bool hasPlural = false;

    bool IsHeader() const noexcept { return !hasContext && msgid.empty() && !hasPlural; }
    bool IsChanged() const noexcept { return textBegin == textEnd; }
    void MarkChanged() noexcept { textBegin = textEnd = 0; }
    bool IsFuzzy() const noexcept;
    // A flag of its "#," lines: "fuzzy", "c-format", "no-c-format", ...
    bool HasFlag(std::string_view flag) const noexcept;
    // The translation as gettext uses it at run time: none while the entry is fuzzy, which
    // means no translator has confirmed it yet.
    std::string_view Translation() const noexcept { return IsFuzzy() ? std::string_view() : msgstr; }
    // Same comments and message; where the entry stood does not count.
    bool operator==(const PoEntry& other) const;
};

class PoFile
{
public:
    PoFile() = default;
    PoFile(PoFile&&) = default;
    PoFile& operator=(PoFile&&) = default;
    PoFile(const PoFile&) = delete;
    PoFile& operator=(const PoFile&) = delete;

    // Attributes
    // The bytes read; a file with carriage returns alone for line ends reads with line feeds.
    std::string_view Text() const noexcept { return m_text ? std::string_view(*m_text) : std::string_view(); }
    const std::string& Newline() const noexcept { return m_newline; }  // the file's own line end
    std::string_view Trailer() const noexcept { return Text().substr(trailerBegin); }
    const PoEntry* Header() const noexcept;
    bool operator==(const PoFile& other) const;  // entries and trailer

    // Operations
    // A lasting copy of text, for the strings of new and changed entries.
    std::string_view Keep(std::string_view text);
    // Adds the fuzzy flag, which tells translators and msgfmt that the entry needs review.
    void SetFuzzy(PoEntry& entry);

    std::vector<PoEntry> entries;
    std::size_t trailerBegin = 0;  // blank lines and comments after the last entry, to the end of the text

private:
    friend bool ParsePo(std::string bytes, PoFile& file, PoError* error);

    std::unique_ptr<std::string> m_text;  // the bytes read, without byte order mark; stays put when the file moves
    std::vector<std::unique_ptr<char[]>> m_pool;
    char* m_poolNext = nullptr;
    std::size_t m_poolLeft = 0;
    std::string m_newline = "\n";
};

// The bytes without a leading UTF-8 byte order mark, which some editors write and msgfmt refuses.
std::string_view WithoutByteOrderMark(std::string_view bytes) noexcept;

// The msgstr of the first entry when that entry is the header; reads nothing after it.
bool ParsePoHeader(std::string_view bytes, std::string& header);

// Unchanged entries as they were read, changed and new ones in the usual layout, then the trailer.
std::string WritePo(const PoFile& file);

// A string in PO syntax with its quotes, for one line: escapes for quotes, backslashes and
// control characters.
void AppendQuoted(std::string& out, std::string_view text);

}  // namespace kiv::rules
