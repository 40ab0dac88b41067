// The C runtime's own number conversions (msvcrt), called by their secure names.
#include "strNumberText.h"

#include <stdlib.h>

namespace kiv::strings {

FixedDigits ConvertFixed(double value, int decimals)
{
    char buffer[kFixedUnits] = "";
    FixedDigits out{CString(), 0, 0};
    if (_fcvt_s(buffer, kFixedUnits, value, decimals, &out.decpt, &out.sign) != 0)
        buffer[0] = 0;
    buffer[kFixedUnits - 1] = 0;
    out.digits = buffer;
    return out;
}

CString ConvertGeneral(double value)
{
    // One unit beyond the size the runtime is told: a runtime that writes its terminator
    // one past a full buffer still writes inside ours.
    char buffer[kGeneralUnits + 1] = "";
    if (_gcvt_s(buffer, kGeneralUnits, value, kGeneralDigits) != 0)
        buffer[0] = 0;
    buffer[kGeneralUnits] = 0;
    return CString(buffer);
}

CStringW WidenThreadAnsi(const CString& text)
{
    CStringW wide;
    if (text.IsEmpty())
        return wide;
    int units = ::MultiByteToWideChar(CP_THREAD_ACP, 0, text, text.GetLength(), nullptr, 0);
    if (units <= 0)
        return wide;
    wchar_t* p = wide.GetBuffer(units);
    units = ::MultiByteToWideChar(CP_THREAD_ACP, 0, text, text.GetLength(), p, units);
    wide.ReleaseBufferSetLength(units > 0 ? units : 0);
    return wide;
}

}  // namespace kiv::strings
