// The records of a "_TIPTEXT" resource: no header, no alignment, each record a 16-bit
// little-endian control id followed by a zero-terminated narrow text. The text's parts are
// separated by line feeds, as in a string resource; part 1 is the tooltip.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace kiv::rules {

struct TipTextRecord
{
    unsigned int id;
    std::string_view text;  // inside the resource data; cut off at the end when unterminated
};

// Hands each record to visit(const TipTextRecord&) and answers how many it handed over. The
// walk stops when fewer than 3 bytes remain; nothing is read at or past data + size, so a
// last text without its zero ends at the end of the data.
template <typename Visit> std::size_t WalkTipTextRecords(const void* data, std::size_t size, Visit&& visit)
{
    const unsigned char* p = static_cast<const unsigned char*>(data);
    const unsigned char* const end = p + size;
    std::size_t handed = 0;
    while (end - p >= 3)
    {
        unsigned int id = static_cast<unsigned int>(p[0]) | (static_cast<unsigned int>(p[1]) << 8);
        const unsigned char* text = p + 2;
        std::size_t room = static_cast<std::size_t>(end - text);
        const void* zero = std::memchr(text, 0, room);
        std::size_t length = zero ? static_cast<std::size_t>(static_cast<const unsigned char*>(zero) - text) : room;
        visit(TipTextRecord{id, std::string_view(reinterpret_cast<const char*>(text), length)});
        ++handed;
        p = zero ? text + length + 1 : end;
    }
    return handed;
}

// Part `index` of a text whose parts are separated by `separator`; false when the text has
// fewer parts. Part 1 of "Opens the file\nOpen" is "Open"; "Open" has no part 1.
inline bool TextPart(std::string_view text, int index, char separator, std::string_view& part)
{
    for (; index > 0; --index)
    {
        std::size_t at = text.find(separator);
        if (at == std::string_view::npos)
            return false;
        text.remove_prefix(at + 1);
    }
    part = text.substr(0, text.find(separator));
    return true;
}

}  // namespace kiv::rules
