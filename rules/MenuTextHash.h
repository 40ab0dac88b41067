// The translation key of a menu item that opens a sub-menu: such an item has no command id,
// so its key is a hash of its text exactly as read (ampersands and tab part included). The
// arithmetic is 32-bit and wraps; translators' files carry these keys, so it never changes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kiv::rules {

constexpr std::uint32_t MenuTextHash(const unsigned char* text, std::size_t length) noexcept
{
    if (length == 0)
        return 0;
    std::uint32_t first = text[0];
    std::uint32_t last = text[length - 1];
    if (length <= 3)
        return first + 1u + 16u * last;
    std::uint32_t middle = (static_cast<std::uint32_t>(text[3]) * 64u + text[1]) * 64u + text[2];
    return first + 8u * (last + 8u * middle) + 1u;
}

}  // namespace kiv::rules
