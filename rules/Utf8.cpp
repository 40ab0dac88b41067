#include "Utf8.h"

#include <cstring>

namespace kiv::rules {

bool IsValidUtf8(std::string_view text) noexcept
{
    const unsigned char* p = reinterpret_cast<const unsigned char*>(text.data());
    const unsigned char* end = p + text.size();
    while (p < end)
    {
        // Most text is ASCII: eight bytes at a time while no high bit is set.
        std::uint64_t block;
        if (end - p >= 8 && (std::memcpy(&block, p, 8), (block & 0x8080808080808080ull) == 0))
        {
            p += 8;
            continue;
        }
        unsigned char c = *p++;
        if (c < 0x80)
            continue;
        int more;
        unsigned char low = 0x80, high = 0xBF;  // bounds of the byte after the lead
        if (c >= 0xC2 && c <= 0xDF)
            more = 1;
        else if (c >= 0xE0 && c <= 0xEF)
        {
            more = 2;
            if (c == 0xE0)
                low = 0xA0;  // overlong
            else if (c == 0xED)
                high = 0x9F;  // surrogates
        }
        else if (c >= 0xF0 && c <= 0xF4)
        {
            more = 3;
            if (c == 0xF0)
                low = 0x90;  // overlong
            else if (c == 0xF4)
                high = 0x8F;  // above U+10FFFF
        }
        else
            return false;
        if (end - p < more || *p < low || *p > high)
            return false;
        for (int i = 1; i < more; ++i)
            if ((p[i] & 0xC0) != 0x80)
                return false;
        p += more;
    }
    return true;
}

std::size_t Utf16Length(std::string_view utf8) noexcept
{
    std::size_t n = 0;
    for (unsigned char c : utf8)
    {
        if ((c & 0xC0) != 0x80)
            ++n;
        if (c >= 0xF0)
            ++n;  // a surrogate pair
    }
    return n;
}

std::string_view FirstCharacter(std::string_view utf8) noexcept
{
    if (utf8.empty())
        return utf8;
    unsigned char lead = static_cast<unsigned char>(utf8[0]);
    std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    return utf8.substr(0, size);
}

}  // namespace kiv::rules
