// The store keeps UTF-8; its callers speak the ANSI code page and UTF-16.
#pragma once

#include <afx.h>

#include <string>
#include <string_view>

// ANSI text as UTF-8; a null pointer is empty text.
std::string AnsiToUtf8(const char* text);
// UTF-16 text as UTF-8; false for a lone surrogate. A null pointer is empty text.
bool WideToUtf8(const wchar_t* text, std::string& utf8);
// Well-formed UTF-8 as UTF-16.
void AssignUtf8(CStringW& target, std::string_view utf8);
CStringW AnsiToWide(const char* text);
// Equal under the system's case mapping, as file names are compared.
bool EqualIgnoringCase(const CStringW& a, const CStringW& b);
// What a caller that keeps only the first UTF-16 unit of a text hands back for it: that unit
// as UTF-8, narrowed through the ANSI code page first when the caller keeps it narrow. A wide
// unit that is half a surrogate pair gives U+FFFD, which the caller cannot hand back.
std::string FirstUnitEcho(std::string_view utf8, bool narrow);
