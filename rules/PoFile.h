// A gettext PO file in UTF-8, read so that writing it back gives the same bytes for every entry
// nobody changed: a file under version control then changes only where its texts changed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kiv::rules
{

struct PoEntry
{
    std::vector<std::string> comments; // the '#' lines before the entry, without line ends
    bool hasContext = false;
    std::string context; // msgctxt
    std::string msgid;
    bool hasPlural = false;
    std::string msgidPlural;
    std::vector<std::string> plurals; // msgstr[0], msgstr[1], ... of an entry with a plural
    std::string msgstr;
    // The entry's bytes in PoFile::text, with the blank lines and comments before it. An empty
    // range marks an entry that is new or changed and is written from its fields.
    std::size_t textBegin = 0;
    std::size_t textEnd = 0;

    bool IsHeader() const noexcept { return !hasContext && msgid.empty() && !hasPlural; }
    bool IsChanged() const noexcept { return textBegin == textEnd; }
    void MarkChanged() noexcept { textBegin = textEnd = 0; }
    bool IsFuzzy() const noexcept;
    // Adds the fuzzy flag, which tells translators and msgfmt that the entry needs review.
    void SetFuzzy();
    // Same comments and message; where the entry stood does not count.
    bool operator==(const PoEntry& other) const;
};

struct PoFile
{
    std::string text;           // the bytes read, without a byte order mark
    std::string newline = "\n"; // line end of written entries: the one the file already uses
    std::vector<PoEntry> entries;
    std::size_t trailerBegin = 0; // blank lines and comments after the last entry, to the end of text

    std::string_view Trailer() const noexcept { return std::string_view(text).substr(trailerBegin); }
    const PoEntry* Header() const noexcept;
    bool operator==(const PoFile& other) const;
};

struct PoError
{
    int line = 0; // 1-based line of the input where reading stopped
    std::string message;
};

// Reads a whole file. Besides the syntax it refuses what msgfmt refuses in any entry: text
// that is not UTF-8, NUL bytes, and the context separator (U+0004) in a string.
bool ParsePo(std::string_view bytes, PoFile& file, PoError* error = nullptr);

// The msgstr of the first entry when that entry is the header; reads nothing after it.
bool ParsePoHeader(std::string_view bytes, std::string& header);

// Unchanged entries as they were read, changed and new ones in the usual layout, then the trailer.
std::string WritePo(const PoFile& file);

// A string in PO syntax with its quotes, for one line: escapes for quotes, backslashes and
// control characters.
void AppendQuoted(std::string& out, std::string_view text);

} // namespace kiv::rules
