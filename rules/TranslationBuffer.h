// The fixed buffer that a translated caption passes through on its way to a window: 256
// UTF-16 units with the terminating NUL. A longer translation is cut to what fits, never in
// the middle of a surrogate pair, so a window gets the start of the text rather than nothing.
#pragma once

#include <cstddef>

namespace kiv::rules {

inline constexpr std::size_t kTranslationBufferUnits = 256;

// How many units of a text of `length` units are copied into the buffer.
template <typename Unit> constexpr std::size_t TranslationCopyLength(const Unit* text, std::size_t length) noexcept
{
    if (length < kTranslationBufferUnits)
        return length;
    std::size_t units = kTranslationBufferUnits - 1;
    auto last = static_cast<unsigned>(text[units - 1]) & 0xFFFFu;
    if (last >= 0xD800u && last <= 0xDBFFu)
        --units;  // a high surrogate whose partner does not fit
    return units;
}

}  // namespace kiv::rules
