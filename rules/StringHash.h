// The hash of the string maps' keys: each character, taken as signed, added to the
// running hash multiplied by 33. Iteration order of the maps depends on it.
#pragma once

namespace kiv::rules {

inline unsigned int StringHash(const char* key) noexcept
{
    unsigned int hash = 0;
    while (*key)
        hash = (hash << 5) + hash + static_cast<unsigned int>(static_cast<int>(static_cast<signed char>(*key++)));
    return hash;
}

}  // namespace kiv::rules
