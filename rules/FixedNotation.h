// Layout of a real number in fixed notation from the runtime's digit string (the digits of
// _fcvt_s with the position of the decimal point and the sign): "-", the integer digits or
// "0", ".", zeros up to the first digit, then the remaining digits.
#pragma once

namespace kiv::rules {

struct FixedLayout
{
    bool negative;
    bool leadingZero;   // a single "0" before the point: the value is below 1
    int integerDigits;  // digits before the point otherwise, as far as the digit string goes
    int zeros;          // '0' characters between the point and the digits
    int fractionFirst;  // index of the first digit after the point
};

// A negative decpt means -decpt zeros stand between the point and the first digit (0.05
// with 2 decimals: digits "5", decpt -1, text "0.05"); never more zeros than the decimals
// leave room for beside the digits, whatever decpt a runtime reports for a value that
// rounds to nothing. Digit ranges never reach past the digit string.
inline FixedLayout LayoutFixed(int sign, int decpt, int decimals, int digitsLength) noexcept
{
    FixedLayout layout{sign != 0, decpt < 1, 0, 0, 0};
    if (digitsLength < 0)
        digitsLength = 0;
    if (decpt >= 1)
        layout.integerDigits = decpt < digitsLength ? decpt : digitsLength;
    if (decpt < 0)
    {
        long long missing = static_cast<long long>(decimals) - digitsLength;
        long long zeros = -static_cast<long long>(decpt);
        if (zeros > missing)
            zeros = missing;
        layout.zeros = zeros > 0 ? static_cast<int>(zeros) : 0;
    }
    layout.fractionFirst = decpt <= 0 ? 0 : (decpt < digitsLength ? decpt : digitsLength);
    return layout;
}

}  // namespace kiv::rules
