// Number-to-text steps shared by strString and strStringW: the C runtime's digit strings,
// laid out by the fixed-notation rule. Internal to the library.
#pragma once

#include <afxwin.h>

#include "FixedNotation.h"

namespace kiv::strings {

// Units of the runtime buffers: integers, _gcvt_s and _fcvt_s.
constexpr int kIntegerUnits = 12;
constexpr int kGeneralUnits = 18;
constexpr int kGeneralDigits = 16;
constexpr int kFixedUnits = 349;

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

// "-", the integer digits or "0", ".", the zeros before the first digit, the other digits.
template <typename StringT>
void ComposeFixed(StringT& out, const StringT& digits, int decpt, int sign, int decimals)
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
