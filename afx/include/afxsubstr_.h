// The clamping of a sub-string request (first, count) against a text of a given length,
// as the string classes do it: never a range outside the text, never an overflow. A rule
// without <windows.h>, kept beside the string header that uses it and tested natively.
#pragma once

namespace kiv::rules {

struct SubstringRange
{
    int first;
    int count;
};

inline SubstringRange ClampSubstring(int length, int first, int count) noexcept
{
    if (first < 0)
        first = 0;
    if (count < 0)
        count = 0;
    if (first > length)
        return {length, 0};
    if (count > length - first)
        count = length - first;
    return {first, count};
}

}  // namespace kiv::rules
