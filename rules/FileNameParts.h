// The parts of a file name in the platform's form: an optional drive ending in ':',
// directories ending in '\', a name and the extension after the last '.'. Text only:
// nothing here looks at the file system. Narrow and wide names share the rules.
#pragma once

namespace kiv::rules {

constexpr int kBackslash = 0x5C;
constexpr int kColon = 0x3A;
constexpr int kDot = 0x2E;

// A part of a name as a range of code units; an absent part has present == false.
struct FilePart
{
    bool present;
    int first;
    int count;
};

template <typename Ch> int FindFirstUnit(const Ch* text, int length, int unit) noexcept
{
    for (int i = 0; i < length; ++i)
        if (static_cast<int>(text[i]) == unit)
            return i;
    return -1;
}

template <typename Ch> int FindLastUnit(const Ch* text, int length, int unit) noexcept
{
    for (int i = length - 1; i >= 0; --i)
        if (static_cast<int>(text[i]) == unit)
            return i;
    return -1;
}

// Everything up to and including the first colon ("C:", or "file:" for "file:1").
template <typename Ch> FilePart DrivePart(const Ch* text, int length) noexcept
{
    int colon = FindFirstUnit(text, length, kColon);
    if (colon < 0)
        return {false, 0, 0};
    return {true, 0, colon + 1};
}

// Everything up to and including the last backslash.
template <typename Ch> FilePart PathPart(const Ch* text, int length) noexcept
{
    int slash = FindLastUnit(text, length, kBackslash);
    if (slash < 0)
        return {false, 0, 0};
    return {true, 0, slash + 1};
}

// Everything after the last backslash; the whole text when there is none.
template <typename Ch> FilePart NameExtPart(const Ch* text, int length) noexcept
{
    int slash = FindLastUnit(text, length, kBackslash);
    return {true, slash + 1, length - slash - 1};
}

// The name without its extension. A dot before the last backslash belongs to a directory.
template <typename Ch> FilePart NamePart(const Ch* text, int length) noexcept
{
    int dot = FindLastUnit(text, length, kDot);
    int slash = FindLastUnit(text, length, kBackslash);
    if (dot < 0 || dot < slash)
        return {true, slash + 1, length - slash - 1};
    return {true, slash + 1, dot - slash - 1};
}

// The text after the last dot, without the dot; absent when the dot is in a directory.
template <typename Ch> FilePart ExtPart(const Ch* text, int length) noexcept
{
    int dot = FindLastUnit(text, length, kDot);
    int slash = FindLastUnit(text, length, kBackslash);
    if (dot < 0 || dot < slash)
        return {false, 0, 0};
    return {true, dot + 1, length - dot - 1};
}

// A colon anywhere makes a name absolute; the string classes answer this inverted.
template <typename Ch> bool HasDriveColon(const Ch* text, int length) noexcept
{
    return FindFirstUnit(text, length, kColon) >= 0;
}

// Joining puts one backslash between a non-empty left side and the right side, unless the
// left side already ends in one; the right side's own leading backslash is not looked at.
template <typename Ch> bool NeedsSeparator(const Ch* text, int length) noexcept
{
    return length > 0 && static_cast<int>(text[length - 1]) != kBackslash;
}

}  // namespace kiv::rules
