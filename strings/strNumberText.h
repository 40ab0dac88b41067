// Number-to-text steps shared by strString and strStringW: the C runtime's digit strings,
// laid out by the fixed-notation rule. Internal to the library.
#pragma once

#include <afxwin.h>

#include <stdio.h>
#include <stdlib.h>

#include "FixedNotation.h"

namespace kiv::strings {

// Units of the runtime buffers: integers, _gcvt_s and _fcvt_s.
constexpr int kIntegerUnits = 12;
constexpr int kGeneralUnits = 18;
constexpr int kGeneralDigits = 16;
constexpr int kFixedUnits = 349;

// The runtime's narrow and wide calls side by side, so that one body serves both classes.
struct Runtime
{
    static double ToDouble(const char* text) { return atof(text); }
    static double ToDouble(const wchar_t* text) { return _wtof(text); }
    static int ToInt(const char* text) { return atoi(text); }
    static int ToInt(const wchar_t* text) { return _wtoi(text); }
    static long ToLong(const char* text) { return atol(text); }
    static long ToLong(const wchar_t* text) { return _wtol(text); }

    static void Radix10(long value, char* out) { _ltoa_s(value, out, kIntegerUnits, 10); }
    static void Radix10(long value, wchar_t* out) { _ltow_s(value, out, kIntegerUnits, 10); }
    static void Radix10(unsigned long value, char* out) { _ultoa_s(value, out, kIntegerUnits, 10); }
    static void Radix10(unsigned long value, wchar_t* out) { _ultow_s(value, out, kIntegerUnits, 10); }

    // Truncation is asked for only to keep the host's invalid-parameter handler out of it.
    static int Padded(char* out, int width, long value)
    {
        return _snprintf_s(out, kIntegerUnits, _TRUNCATE, "%0*ld", width, value);
    }
    static int Padded(wchar_t* out, int width, long value)
    {
        return _snwprintf_s(out, kIntegerUnits, _TRUNCATE, L"%0*ld", width, value);
    }
    static int Padded(char* out, int width, unsigned long value)
    {
        return _snprintf_s(out, kIntegerUnits, _TRUNCATE, "%0*lu", width, value);
    }
    static int Padded(wchar_t* out, int width, unsigned long value)
    {
        return _snwprintf_s(out, kIntegerUnits, _TRUNCATE, L"%0*lu", width, value);
    }
};

// Radix 10 without a width, else zero-padded to it. A text longer than 11 characters is an
// error of the secure print, not a cut: the text is empty, as the print leaves its buffer.
template <typename Ch, typename Value> CStringT<Ch> IntegerText(Value value, int width)
{
    Ch buffer[kIntegerUnits] = {};
    if (width == 0)
        Runtime::Radix10(value, buffer);
    else if (Runtime::Padded(buffer, width, value) < 0)
        buffer[0] = 0;
    return CStringT<Ch>(buffer);
}

// What _fcvt_s gives for a value and a count of decimals.
struct FixedDigits
{
    CString digits;
    int decpt;
    int sign;
};

FixedDigits ConvertFixed(double value, int decimals);
// What _gcvt_s writes with 16 significant digits.
CString ConvertGeneral(double value);
// Narrow text widened in the thread's ANSI code page; empty when that fails.
CStringW WidenThreadAnsi(const CString& text);

// The runtime's digit strings are narrow; the wide class widens them in the thread's code page.
template <typename Ch> CStringT<Ch> DigitsAs(const CString& digits)
{
    if constexpr (sizeof(Ch) == sizeof(char))
        return digits;
    else
        return WidenThreadAnsi(digits);
}

// "-", the integer digits or "0", ".", the zeros before the first digit, the other digits.
template <typename StringT> void ComposeFixed(StringT& out, const StringT& digits, int decpt, int sign, int decimals)
{
    typedef typename StringT::XCHAR Ch;
    kiv::rules::FixedLayout layout = kiv::rules::LayoutFixed(sign, decpt, decimals, digits.GetLength());
    out = StringT();
    if (layout.negative)
        out += Ch('-');
    if (layout.leadingZero)
        out += Ch('0');
    else
        out += digits.Left(layout.integerDigits);
    out += Ch('.');
    if (layout.zeros > 0)
        out += StringT(Ch('0'), layout.zeros);
    out += digits.Mid(layout.fractionFirst);
}

}  // namespace kiv::strings
