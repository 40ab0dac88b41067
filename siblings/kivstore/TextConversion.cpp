#include "TextConversion.h"

#include "Utf8.h"

#include <cstring>
#include <cwchar>

CStringW AnsiToWide(const char* text)
{
    CStringW wide;
    int length = text ? (int)std::strlen(text) : 0;
    if (length == 0)
        return wide;
    int n = ::MultiByteToWideChar(CP_ACP, 0, text, length, nullptr, 0);
    if (n <= 0)
        return wide;
    ::MultiByteToWideChar(CP_ACP, 0, text, length, wide.GetBuffer(n), n);
    wide.ReleaseBuffer(n);
    return wide;
}

std::string AnsiToUtf8(const char* text)
{
    CStringW wide = AnsiToWide(text);
    std::string utf8;
    // Every unit made by the code page conversion is a whole character.
    kiv::rules::AppendUtf8(wide.GetString(), (std::size_t)wide.GetLength(), utf8);
    return utf8;
}

bool WideToUtf8(const wchar_t* text, std::string& utf8)
{
    utf8.clear();
    return !text || kiv::rules::AppendUtf8(text, std::wcslen(text), utf8);
}

void AssignUtf8(CStringW& target, std::string_view utf8)
{
    int n = (int)kiv::rules::Utf16Length(utf8);
    if (n == 0)
    {
        target.Empty();
        return;
    }
    kiv::rules::DecodeUtf8(utf8, target.GetBuffer(n));
    target.ReleaseBuffer(n);
}

bool EqualIgnoringCase(const CStringW& a, const CStringW& b)
{
    return ::CompareStringOrdinal(a, a.GetLength(), b, b.GetLength(), TRUE) == CSTR_EQUAL;
}

std::string FirstUnitEcho(std::string_view utf8, bool narrow)
{
    CStringW first;
    AssignUtf8(first, kiv::rules::FirstCharacter(utf8));
    if (first.IsEmpty())
        return std::string();
    wchar_t unit = first[0];
    std::string echo;
    if (!narrow)
    {
        if (unit >= 0xD800 && unit <= 0xDFFF)
            return "\xEF\xBF\xBD";
        kiv::rules::AppendUtf8(&unit, 1, echo);
        return echo;
    }
    char ansi[8] = {};
    int n = ::WideCharToMultiByte(CP_ACP, 0, &unit, 1, ansi, sizeof(ansi) - 1, nullptr, nullptr);
    ansi[n > 0 ? n : 0] = 0;
    return AnsiToUtf8(ansi);
}
