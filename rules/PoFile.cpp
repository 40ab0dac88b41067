#include "PoFile.h"

#include "Utf8.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <limits>

namespace kiv::rules {

namespace {

constexpr char kContextSeparator = '\x04';
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The bytes that end a run of plain characters inside a string.
constexpr struct PlainRunEnds
{
    bool ends[256] = {};
    constexpr PlainRunEnds()
    {
        ends[static_cast<unsigned char>('"')] = ends[static_cast<unsigned char>('\\')] =
            ends[static_cast<unsigned char>('\n')] = true;
    }
    constexpr bool operator[](unsigned char c) const { return ends[c]; }
} kEndsPlainRun;

// True when a word of eight bytes holds a zero byte.
constexpr bool HasZeroByte(std::uint64_t v) noexcept
{
    return ((v - 0x0101010101010101ull) & ~v & 0x8080808080808080ull) != 0;
}

// Where the run of plain characters of a string that starts at pos ends: eight bytes at a time
// while none of them ends it.
std::size_t PlainRunEnd(std::string_view text, std::size_t pos) noexcept
{
    for (std::uint64_t word; pos + sizeof(word) <= text.size(); pos += sizeof(word))
    {
        std::memcpy(&word, text.data() + pos, sizeof(word));
        if (HasZeroByte(word ^ 0x2222222222222222ull) || HasZeroByte(word ^ 0x5C5C5C5C5C5C5C5Cull) ||
            HasZeroByte(word ^ 0x0A0A0A0A0A0A0A0Aull))
            break;
    }
    while (pos < text.size() && !kEndsPlainRun[static_cast<unsigned char>(text[pos])])
        ++pos;
    return pos;
}

bool IsSpace(char c) noexcept
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v';
}

bool IsFlagLine(std::string_view line) noexcept
{
    return line.size() >= 2 && line[0] == '#' && line[1] == ',';
}

bool HasFlag(std::string_view line, std::string_view flag) noexcept
{
    line.remove_prefix(2);
    while (!line.empty())
    {
        std::size_t comma = line.find(',');
        std::string_view item = line.substr(0, comma);
        while (!item.empty() && IsSpace(item.front()))
            item.remove_prefix(1);
        while (!item.empty() && IsSpace(item.back()))
            item.remove_suffix(1);
        if (item == flag)
            return true;
        if (comma == std::string_view::npos)
            break;
        line.remove_prefix(comma + 1);
    }
    return false;
}

// Reads entries token by token as gettext does, keeping for each where its bytes stood. A
// string written as one run without escapes is a view of the text; others are decoded into the
// file's pool.
class PoReader
{
public:
    PoReader(std::string_view text, PoFile* file) : m_text(text), m_file(file) {}

    bool ReadFile();
    bool ReadHeader(std::string& header);
    const PoError& Error() const noexcept { return m_error; }

private:
    bool AtEnd() const noexcept { return m_pos >= m_text.size(); }
    bool Fail(const char* message)
    {
        m_error.line = m_line;
        m_error.message = message;
        return false;
    }
    void SkipSpaces() noexcept
    {
        while (!AtEnd() && IsSpace(m_text[m_pos]))
            ++m_pos;
    }
    void SkipBlank() noexcept;
    bool SkipToEntry(std::vector<std::string_view>& comments);
    bool ReadEntry(PoEntry& entry);
    std::string_view ReadKeyword();
    bool ReadStrings(std::string_view& value);
    bool ReadString(bool& decoding, bool& escaped);
    bool ReadEscape();
    bool EndEntryLine();

    std::string_view m_text;
    PoFile* m_file;
    std::string m_decoded;  // the string being read, decoded
    std::size_t m_pos = 0;
    int m_line = 1;
    bool m_checkFields = false;  // strings are checked one by one when the whole text was not
    PoError m_error;
};

void PoReader::SkipBlank() noexcept
{
    std::size_t pos = m_pos;
    for (; pos < m_text.size(); ++pos)
    {
        char c = m_text[pos];
        if (c == '\n')
            ++m_line;
        else if (!IsSpace(c))
            break;
    }
    m_pos = pos;
}

// Blank lines and comment lines up to the next entry; false at the end of the text.
bool PoReader::SkipToEntry(std::vector<std::string_view>& comments)
{
    for (;;)
    {
        SkipSpaces();
        if (AtEnd())
            return false;
        if (m_text[m_pos] == '\n')
        {
            ++m_pos;
            ++m_line;
            continue;
        }
        if (m_text[m_pos] != '#')
            return true;
        std::size_t end = m_text.find('\n', m_pos);
        std::size_t stop = end == std::string_view::npos ? m_text.size() : end;
        std::size_t last = stop;
        while (last > m_pos && IsSpace(m_text[last - 1]))
            --last;
        comments.emplace_back(m_text.substr(m_pos, last - m_pos));
        m_pos = stop;
    }
}

bool PoReader::ReadFile()
{
    std::size_t entryBegin = 0;
    for (;;)
    {
        PoEntry entry;
        if (!SkipToEntry(entry.comments))
        {
            m_file->trailerBegin = entryBegin;
            return true;
        }
        entry.textBegin = static_cast<std::uint32_t>(entryBegin);
        if (!ReadEntry(entry))
            return false;
        entryBegin = m_pos;
        entry.textEnd = static_cast<std::uint32_t>(entryBegin);
        m_file->entries.push_back(std::move(entry));
    }
}

bool PoReader::ReadHeader(std::string& header)
{
    m_checkFields = true;
    PoEntry entry;
    if (!SkipToEntry(entry.comments) || !ReadEntry(entry) || !entry.IsHeader())
        return false;
    header.assign(entry.msgstr);
    return true;
}

std::string_view PoReader::ReadKeyword()
{
    SkipBlank();
    std::size_t start = m_pos, pos = m_pos;
    while (pos < m_text.size() && ((m_text[pos] >= 'a' && m_text[pos] <= 'z') || m_text[pos] == '_'))
        ++pos;
    m_pos = pos;
    if (!AtEnd() && m_text[m_pos] == '[' && m_pos > start)
    {
        std::size_t close = m_pos + 1;
        while (close < m_text.size() && m_text[close] >= '0' && m_text[close] <= '9' && close - m_pos < 6)
            ++close;
        if (close > m_pos + 1 && close < m_text.size() && m_text[close] == ']')
            m_pos = close + 1;
    }
    return m_text.substr(start, m_pos - start);
}

bool PoReader::ReadEntry(PoEntry& entry)
{
    std::string_view keyword = ReadKeyword();
    if (keyword == "msgctxt")
    {
        entry.hasContext = true;
        if (!ReadStrings(entry.context))
            return false;
        keyword = ReadKeyword();
    }
    if (keyword != "msgid")
        return Fail(AtEnd() || m_text[m_pos] != '#' ? "msgid expected" : "comment inside an entry");
    if (!ReadStrings(entry.msgid))
        return false;
    keyword = ReadKeyword();
    if (keyword == "msgstr")
        return ReadStrings(entry.msgstr) && EndEntryLine();
    if (keyword != "msgid_plural")
        return Fail(AtEnd() || m_text[m_pos] != '#' ? "msgstr expected" : "comment inside an entry");
    entry.hasPlural = true;
    if (!ReadStrings(entry.msgidPlural))
        return false;
    for (;;)
    {
        std::size_t pos = m_pos;
        int line = m_line;
        std::string expected = "msgstr[" + std::to_string(entry.plurals.size()) + "]";
        if (ReadKeyword() != expected)
        {
            if (entry.plurals.empty())
                return Fail("msgstr[0] expected");
            m_pos = pos;
            m_line = line;
            break;
        }
        entry.plurals.emplace_back();
        if (!ReadStrings(entry.plurals.back()))
            return false;
    }
    return EndEntryLine();
}

// One or more strings in a row, joined; the position stays after the last one.
bool PoReader::ReadStrings(std::string_view& value)
{
    SkipBlank();
    if (AtEnd() || m_text[m_pos] != '"')
        return Fail("string expected");
    std::size_t first = m_pos + 1;
    // Only strings with escapes, or made of several, are copied; the others stay views of the text.
    bool decoding = false, escaped = false;
    m_decoded.clear();
    for (;;)
    {
        if (!ReadString(decoding, escaped))
            return false;
        std::size_t pos = m_pos;
        int line = m_line;
        SkipBlank();
        if (AtEnd() || m_text[m_pos] != '"')
        {
            m_pos = pos;
            m_line = line;
            break;
        }
        if (!decoding)
            m_decoded.assign(m_text.substr(first, pos - 1 - first));
        decoding = true;
    }
    value = decoding ? m_file->Keep(m_decoded) : m_text.substr(first, m_pos - 1 - first);
    // The raw text was checked as a whole; bytes made by escapes and strings read on their own were not.
    if ((escaped || m_checkFields) && !IsValidUtf8(value))
        return Fail("string is not UTF-8");
    if (m_checkFields && value.find_first_of(std::string_view("\0\x04", 2)) != std::string_view::npos)
        return Fail("NUL or context separator in a string");
    return true;
}

bool PoReader::ReadString(bool& decoding, bool& escaped)
{
    ++m_pos;  // the opening quote
    for (;;)
    {
        std::size_t start = m_pos;
        m_pos = PlainRunEnd(m_text, m_pos);
        if (AtEnd() || m_text[m_pos] == '\n')
            return Fail("line end inside a string");
        if (m_text[m_pos] == '"' && !decoding)
        {
            ++m_pos;
            return true;
        }
        m_decoded.append(m_text.data() + start, m_pos - start);
        if (m_text[m_pos] == '"')
        {
            ++m_pos;
            return true;
        }
        decoding = escaped = true;
        if (!ReadEscape())
            return false;
    }
}

bool PoReader::ReadEscape()
{
    ++m_pos;  // the backslash
    if (AtEnd())
        return Fail("line end inside a string");
    char c = m_text[m_pos++];
    static const char kNamed[] = "n\nt\tr\ra\ab\bf\fv\v\\\\\"\"?\?''";
    for (const char* p = kNamed; *p; p += 2)
        if (c == p[0])
        {
            m_decoded += p[1];
            return true;
        }
    unsigned int code = 0;
    if (c >= '0' && c <= '7')
    {
        code = static_cast<unsigned int>(c - '0');
        for (int i = 0; i < 2 && !AtEnd() && m_text[m_pos] >= '0' && m_text[m_pos] <= '7'; ++i)
            code = code * 8 + static_cast<unsigned int>(m_text[m_pos++] - '0');
    }
    else if (c == 'x' && !AtEnd() && std::isxdigit(static_cast<unsigned char>(m_text[m_pos])))
    {
        for (; !AtEnd() && std::isxdigit(static_cast<unsigned char>(m_text[m_pos])) && code <= 0xFF; ++m_pos)
        {
            char d = m_text[m_pos];
            code = code * 16 + static_cast<unsigned int>(d <= '9' ? d - '0' : (d | 0x20) - 'a' + 10);
        }
    }
    else
        return Fail("unknown escape sequence");
    if (code == 0 || code > 0xFF || code == static_cast<unsigned char>(kContextSeparator))
        return Fail("escape gives NUL, the context separator or more than a byte");
    m_decoded += static_cast<char>(code);
    return true;
}

// An entry ends with its line: nothing but white space may follow its last string.
bool PoReader::EndEntryLine()
{
    SkipSpaces();
    if (AtEnd())
        return true;
    if (m_text[m_pos] != '\n')
        return Fail("text after the end of an entry");
    ++m_pos;
    ++m_line;
    return true;
}

bool IsCleanText(std::string_view text) noexcept
{
    // Eight bytes at a time: mostly no NUL and no context separator.
    std::size_t i = 0;
    for (std::uint64_t block; i + 8 <= text.size(); i += 8)
    {
        std::memcpy(&block, text.data() + i, 8);
        if (HasZeroByte(block) || HasZeroByte(block ^ 0x0404040404040404ull))
            break;
    }
    return std::none_of(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(),
                        [](char c) { return c == '\0' || c == kContextSeparator; }) &&
           IsValidUtf8(text);
}

int FirstUncleanLine(std::string_view text)
{
    int line = 1;
    for (std::size_t start = 0;; ++line)
    {
        std::size_t end = text.find('\n', start);
        if (!IsCleanText(text.substr(start, end == std::string_view::npos ? end : end - start)) ||
            end == std::string_view::npos)
            return line;
        start = end + 1;
    }
}

bool EndsWithBlankLine(const std::string& out) noexcept
{
    std::size_t n = out.size();
    if (n < 2 || out[n - 1] != '\n')
        return n == 0;
    return out[n - 2] == '\n' || (n >= 3 && out[n - 2] == '\r' && out[n - 3] == '\n');
}

// Texts with inner line feeds are written one line per string, as translators' tools do; a
// context names an entry and stays on one line.
void AppendField(std::string& out, std::string_view keyword, std::string_view value, const std::string& nl,
                 bool oneLine = false)
{
    out += keyword;
    out += ' ';
    std::size_t firstBreak = value.find('\n');
    if (oneLine || firstBreak == std::string_view::npos || firstBreak + 1 == value.size())
    {
        AppendQuoted(out, value);
        out += nl;
        return;
    }
    out += "\"\"";
    out += nl;
    for (std::size_t start = 0; start < value.size();)
    {
        std::size_t end = value.find('\n', start);
        end = end == std::string_view::npos ? value.size() : end + 1;
        AppendQuoted(out, value.substr(start, end - start));
        out += nl;
        start = end;
    }
}

void AppendEntry(std::string& out, const PoEntry& entry, const std::string& nl)
{
    for (std::string_view comment : entry.comments)
    {
        out += comment;
        out += nl;
    }
    if (entry.hasContext)
        AppendField(out, "msgctxt", entry.context, nl, true);
    AppendField(out, "msgid", entry.msgid, nl);
    if (!entry.hasPlural)
    {
        AppendField(out, "msgstr", entry.msgstr, nl);
        return;
    }
    AppendField(out, "msgid_plural", entry.msgidPlural, nl);
    for (std::size_t i = 0; i < entry.plurals.size(); ++i)
        AppendField(out, "msgstr[" + std::to_string(i) + "]", entry.plurals[i], nl);
}

}  // namespace

bool PoEntry::IsFuzzy() const noexcept
{
    return HasFlag("fuzzy");
}

bool PoEntry::HasFlag(std::string_view flag) const noexcept
{
    for (std::string_view line : comments)
        if (IsFlagLine(line) && kiv::rules::HasFlag(line, flag))
            return true;
    return false;
}

std::string_view PoFile::Keep(std::string_view text)
{
    if (text.empty())
        return std::string_view();
    if (text.size() > m_poolLeft)
    {
        std::size_t size = std::max<std::size_t>(text.size(), 64 * 1024);
        m_pool.emplace_back(new char[size]);
        m_poolNext = m_pool.back().get();
        m_poolLeft = size;
    }
    char* kept = m_poolNext;
    std::memcpy(kept, text.data(), text.size());
    m_poolNext += text.size();
    m_poolLeft -= text.size();
    return std::string_view(kept, text.size());
}

void PoFile::SetFuzzy(PoEntry& entry)
{
    if (entry.IsFuzzy())
        return;
    entry.MarkChanged();
    for (std::string_view& line : entry.comments)
        if (IsFlagLine(line))
        {
            line = Keep(std::string(line) + ", fuzzy");
            return;
        }
    // Flags go before the "#|" lines, which must stand right above the entry.
    std::size_t at = entry.comments.size();
    while (at > 0 && entry.comments[at - 1].substr(0, 2) == "#|")
        --at;
    entry.comments.insert(entry.comments.begin() + static_cast<std::ptrdiff_t>(at), "#, fuzzy");
}

bool PoEntry::operator==(const PoEntry& other) const
{
    return comments == other.comments && hasContext == other.hasContext && context == other.context &&
           msgid == other.msgid && hasPlural == other.hasPlural && msgidPlural == other.msgidPlural &&
           plurals == other.plurals && msgstr == other.msgstr;
}

const PoEntry* PoFile::Header() const noexcept
{
    for (const PoEntry& entry : entries)
        if (entry.IsHeader())
            return &entry;
    return nullptr;
}

bool PoFile::operator==(const PoFile& other) const
{
    return entries == other.entries && Trailer() == other.Trailer();
}

bool ParsePo(std::string bytes, PoFile& file, PoError* error)
{
    file = PoFile();
    // Entries keep where they stood in 32 bits.
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max())
    {
        if (error)
            *error = {1, "the file is 4 GB or larger"};
        return false;
    }
    std::string_view text = WithoutByteOrderMark(bytes);
    if (!IsCleanText(text))
    {
        if (error)
        {
            error->line = FirstUncleanLine(text);
            error->message = "not UTF-8, or a NUL or context separator in the file";
        }
        return false;
    }
    if (text.size() != bytes.size())
    {
        bytes.erase(0, bytes.size() - text.size());
        text = bytes;  // the view moved with the bytes
    }
    // Lines ended by a carriage return alone, which msgfmt reads too: read as line feeds and
    // written back with carriage returns.
    bool carriageReturnsOnly = text.find('\n') == std::string_view::npos && text.find('\r') != std::string_view::npos;
    if (carriageReturnsOnly)
        std::replace(bytes.begin(), bytes.end(), '\r', '\n');
    file.m_text = std::make_unique<std::string>(std::move(bytes));
    text = *file.m_text;
    std::size_t firstBreak = text.find('\n');
    if (carriageReturnsOnly)
        file.m_newline = "\r";
    else if (firstBreak != std::string_view::npos && firstBreak > 0 && text[firstBreak - 1] == '\r')
        file.m_newline = "\r\n";
    file.entries.reserve(text.size() / 64);  // an entry of the store takes about that much
    PoReader reader(text, &file);
    if (reader.ReadFile())
        return true;
    if (error)
        *error = reader.Error();
    file = PoFile();
    return false;
}

std::string_view WithoutByteOrderMark(std::string_view bytes) noexcept
{
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        bytes.remove_prefix(kByteOrderMark.size());
    return bytes;
}

bool ParsePoHeader(std::string_view bytes, std::string& header)
{
    PoFile pool;  // keeps the decoded strings while the entry is read
    PoReader reader(WithoutByteOrderMark(bytes), &pool);
    return reader.ReadHeader(header);
}

std::string WritePo(const PoFile& file)
{
    // A file of carriage returns alone is kept with line feeds and turned back at the end.
    const bool carriageReturnsOnly = file.Newline() == "\r";
    const std::string nl = carriageReturnsOnly ? std::string("\n") : file.Newline();
    std::string out;
    out.reserve(file.Text().size() + 4096);
    bool afterWritten = false;  // the last entry was written from its fields
    for (const PoEntry& entry : file.entries)
    {
        bool changed = entry.IsChanged();
        if (!out.empty() && out.back() != '\n')
            out += nl;
        std::string_view text =
            changed ? std::string_view() : file.Text().substr(entry.textBegin, entry.textEnd - entry.textBegin);
        // A blank line between entries, unless the entry's own bytes bring one.
        bool bringsBlank =
            !changed && (text.front() == '\n' || (text.front() == '\r' && text.size() > 1 && text[1] == '\n'));
        if (!out.empty() && (changed || afterWritten) && !bringsBlank && !EndsWithBlankLine(out))
            out += nl;
        if (changed)
            AppendEntry(out, entry, nl);
        else
            out += text;
        afterWritten = changed;
    }
    std::string_view trailer = file.Trailer();
    if (!trailer.empty() && !out.empty() && out.back() != '\n')
        out += nl;
    out += trailer;
    if (carriageReturnsOnly)
        std::replace(out.begin(), out.end(), '\n', '\r');
    return out;
}

void AppendQuoted(std::string& out, std::string_view text)
{
    out += '"';
    for (char c : text)
    {
        switch (c)
        {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\a':
            out += "\\a";
            break;
        case '\b':
            out += "\\b";
            break;
        case '\f':
            out += "\\f";
            break;
        case '\v':
            out += "\\v";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20)
            {
                // Three octal digits, so a digit that follows is never taken into the escape.
                unsigned char u = static_cast<unsigned char>(c);
                out += '\\';
                out += static_cast<char>('0' + (u >> 6));
                out += static_cast<char>('0' + ((u >> 3) & 7));
                out += static_cast<char>('0' + (u & 7));
            }
            else
                out += c;
        }
    }
    out += '"';
}

}  // namespace kiv::rules
