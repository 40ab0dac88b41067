#include "strString.h"

#include "strNumberText.h"

#include <stdlib.h>

using namespace kiv::strings;

strString::strString() : CString("") {}

strString::strString(const strString& src) : CString(src) {}

strString::strString(const CString& src) : CString(src) {}

strString::strString(const char* psz) : CString(psz) {}

strString::strString(unsigned int nID) : CString("")
{
    LoadString(nID);
}

strString& strString::operator=(const strString& src)
{
    CString::operator=(src);
    return *this;
}

strString& strString::operator=(const CString& src)
{
    CString::operator=(src);
    return *this;
}

strString& strString::operator=(const char* psz)
{
    CString::operator=(psz);
    return *this;
}

int strString::GetCharLength() const
{
    return GetLength();
}

int strString::FindLast(char ch) const
{
    return ReverseFind(ch);
}

strString strString::Substr(int start, int count) const
{
    if (count == -1)
        return strString(Mid(start));
    return strString(Mid(start, count));
}

strString strString::operator()(int start, int count) const
{
    return Substr(start, count);
}

double strString::ToDouble() const
{
    return atof(GetString());
}

int strString::ToInt() const
{
    return atoi(GetString());
}

long strString::ToLong() const
{
    return atol(GetString());
}

strString& strString::operator+=(char ch)
{
    CString::operator+=(ch);
    return *this;
}

strString& strString::operator+=(const char* psz)
{
    CString::operator+=(psz);
    return *this;
}

int strString::Append(const char* psz)
{
    CString::Append(psz);
    return 0;
}

char* strString::GetBuffer(int minLength)
{
    return CString::GetBuffer(minLength);
}

int strString::LowerCase()
{
    MakeLower();
    return 0;
}

int strString::UpperCase()
{
    MakeUpper();
    return 0;
}

int strString::ToAlpha(int value, int width)
{
    return ToAlpha(static_cast<long>(value), width);
}

int strString::ToAlpha(unsigned int value, int width)
{
    return ToAlpha(static_cast<unsigned long>(value), width);
}

// A text longer than 11 characters is an error of the secure print, not a cut: the string
// becomes empty, as the print leaves its buffer after that error. Asking the print to
// truncate keeps the host's invalid-parameter handler (which may end the process) out of it.
int strString::ToAlpha(long value, int width)
{
    char buffer[kIntegerUnits] = "";
    if (width == 0)
        _ltoa_s(value, buffer, kIntegerUnits, 10);
    else if (_snprintf_s(buffer, kIntegerUnits, _TRUNCATE, "%0*ld", width, value) < 0)
        buffer[0] = 0;
    CString::operator=(buffer);
    return 0;
}

int strString::ToAlpha(unsigned long value, int width)
{
    char buffer[kIntegerUnits] = "";
    if (width == 0)
        _ultoa_s(value, buffer, kIntegerUnits, 10);
    else if (_snprintf_s(buffer, kIntegerUnits, _TRUNCATE, "%0*lu", width, value) < 0)
        buffer[0] = 0;
    CString::operator=(buffer);
    return 0;
}

// -1 decimals: the runtime's shortest form; any other count: fixed notation, always with a
// point ("13." for 12.7 with 0 decimals, kept: hosts rely on the trailing point).
int strString::ToAlpha(double value, int decimals)
{
    if (decimals == -1)
    {
        CString::operator=(ConvertGeneral(value));
        return 0;
    }
    FixedDigits fixed = ConvertFixed(value, decimals);
    ComposeFixed<CString>(*this, fixed.digits, fixed.decpt, fixed.sign, decimals);
    return 0;
}
