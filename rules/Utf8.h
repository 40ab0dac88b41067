// UTF-8 checks and conversions between UTF-8 and UTF-16 code units, for texts that are kept
// in UTF-8 files and handed to callers as wide strings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace kiv::rules {

// True when text is well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view text) noexcept;

// Appends the UTF-8 form of n UTF-16 units. A lone surrogate is not text: the call then
// answers false and out is left as it was.
template <typename Unit> bool AppendUtf8(const Unit* units, std::size_t n, std::string& out)
{
    const std::size_t start = out.size();
    for (std::size_t i = 0; i < n; ++i)
    {
        char32_t c = static_cast<std::uint16_t>(units[i]);
        if (c >= 0xD800 && c <= 0xDFFF)
        {
            char32_t low = i + 1 < n ? static_cast<std::uint16_t>(units[i + 1]) : 0;
            if (c > 0xDBFF || low < 0xDC00 || low > 0xDFFF)
            {
                out.resize(start);
                return false;
            }
            c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
            ++i;
        }
        if (c < 0x80)
            out += static_cast<char>(c);
        else if (c < 0x800)
        {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
        else if (c < 0x10000)
        {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
        else
        {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return true;
}

// UTF-16 units needed for well-formed UTF-8 text.
std::size_t Utf16Length(std::string_view utf8) noexcept;

// The first character of well-formed UTF-8 text (empty for empty text).
std::string_view FirstCharacter(std::string_view utf8) noexcept;

// Writes the UTF-16 form of well-formed UTF-8 text to out, which holds Utf16Length(utf8) units
// (never more than utf8.size()); answers the end of what it wrote.
template <typename Unit> Unit* DecodeUtf8(std::string_view utf8, Unit* out) noexcept
{
    const unsigned char* p = reinterpret_cast<const unsigned char*>(utf8.data());
    const unsigned char* end = p + utf8.size();
    while (p < end)
    {
        // Runs of ASCII, most of a store's text, eight bytes at a time.
        while (end - p >= 8)
        {
            std::uint64_t word;
            std::memcpy(&word, p, sizeof(word));
            if (word & 0x8080808080808080ull)
                break;
            for (int i = 0; i < 8; ++i)
                out[i] = static_cast<Unit>(p[i]);
            p += 8;
            out += 8;
        }
        if (p == end)
            break;
        char32_t c = *p++;
        if (c >= 0xF0)
        {
            c = ((c & 0x07) << 18) | ((p[0] & 0x3Fu) << 12) | ((p[1] & 0x3Fu) << 6) | (p[2] & 0x3Fu);
            p += 3;
            c -= 0x10000;
            *out++ = static_cast<Unit>(0xD800 + (c >> 10));
            *out++ = static_cast<Unit>(0xDC00 + (c & 0x3FF));
            continue;
        }
        if (c >= 0xE0)
        {
            c = ((c & 0x0F) << 12) | ((p[0] & 0x3Fu) << 6) | (p[1] & 0x3Fu);
            p += 2;
        }
        else if (c >= 0xC0)
            c = ((c & 0x1F) << 6) | (*p++ & 0x3Fu);
        *out++ = static_cast<Unit>(c);
    }
    return out;
}

}  // namespace kiv::rules
