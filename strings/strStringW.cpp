#include "strStringW.h"

#include "LocalizationManager.h"
#include "strNumberText.h"

#include <stdlib.h>

using namespace kiv::strings;

namespace {

const wchar_t* Units(const unsigned short* psz)
{
    return reinterpret_cast<const wchar_t*>(psz);
}

}  // namespace

strStringW::strStringW() : CStringW(L"") {}

strStringW::strStringW(const strStringW& src) : CStringW(src) {}

strStringW::strStringW(const CStringW& src) : CStringW(src) {}

strStringW::strStringW(const unsigned short* psz) : CStringW(Units(psz)) {}

// A translation that exists wins even over an empty resource string; without one the
// resource text is widened in the ANSI code page.
strStringW::strStringW(unsigned int nID) : CStringW(L"")
{
    CString text;
    text.LoadString(nID);
    LocalizationManager* manager = LocalizationManager::Get();
    if (!manager->IsTranslationMode())
    {
        Format(L"%s", CStringW(text).GetString());
        return;
    }
    CString key;
    key.Format("%d", nID);
    CStringW translation = manager->GetWideTranslation(text, key, "STRINGTABLE");
    if (translation != L"")
        Format(L"%s", translation.GetString());
    else
        Format(L"%s", CStringW(text).GetString());
}

strStringW& strStringW::operator=(const strStringW& src)
{
    CStringW::operator=(src);
    return *this;
}

strStringW& strStringW::operator=(const CStringW& src)
{
    CStringW::operator=(src);
    return *this;
}

strStringW& strStringW::operator=(const unsigned short* psz)
{
    CStringW::operator=(Units(psz));
    return *this;
}

int strStringW::GetCharLength() const
{
    return GetLength();
}

int strStringW::FindLast(unsigned short ch) const
{
    return ReverseFind(static_cast<wchar_t>(ch));
}

strStringW strStringW::Substr(int start, int count) const
{
    if (count == -1)
        return strStringW(Mid(start));
    return strStringW(Mid(start, count));
}

strStringW strStringW::operator()(int start, int count) const
{
    return Substr(start, count);
}

double strStringW::ToDouble() const
{
    return _wtof(GetString());
}

int strStringW::ToInt() const
{
    return _wtoi(GetString());
}

long strStringW::ToLong() const
{
    return _wtol(GetString());
}

strStringW& strStringW::operator+=(unsigned short ch)
{
    CStringW::operator+=(static_cast<wchar_t>(ch));
    return *this;
}

strStringW& strStringW::operator+=(const unsigned short* psz)
{
    CStringW::operator+=(Units(psz));
    return *this;
}

int strStringW::Append(const unsigned short* psz)
{
    CStringW::Append(Units(psz));
    return 0;
}

unsigned short* strStringW::GetBuffer(int minLength)
{
    return reinterpret_cast<unsigned short*>(CStringW::GetBuffer(minLength));
}

int strStringW::LowerCase()
{
    MakeLower();
    return 0;
}

int strStringW::UpperCase()
{
    MakeUpper();
    return 0;
}

int strStringW::ToAlpha(int value, int width)
{
    return ToAlpha(static_cast<long>(value), width);
}

int strStringW::ToAlpha(unsigned int value, int width)
{
    return ToAlpha(static_cast<unsigned long>(value), width);
}

// As the narrow twin: a text longer than 11 characters leaves the string empty.
int strStringW::ToAlpha(long value, int width)
{
    wchar_t buffer[kIntegerUnits] = L"";
    if (width == 0)
        _ltow_s(value, buffer, kIntegerUnits, 10);
    else if (_snwprintf_s(buffer, kIntegerUnits, _TRUNCATE, L"%0*ld", width, value) < 0)
        buffer[0] = 0;
    CStringW::operator=(buffer);
    return 0;
}

int strStringW::ToAlpha(unsigned long value, int width)
{
    wchar_t buffer[kIntegerUnits] = L"";
    if (width == 0)
        _ultow_s(value, buffer, kIntegerUnits, 10);
    else if (_snwprintf_s(buffer, kIntegerUnits, _TRUNCATE, L"%0*lu", width, value) < 0)
        buffer[0] = 0;
    CStringW::operator=(buffer);
    return 0;
}

// The runtime's digit strings are narrow; they are widened in the thread's code page.
int strStringW::ToAlpha(double value, int decimals)
{
    if (decimals == -1)
    {
        CStringW::operator=(WidenThreadAnsi(ConvertGeneral(value)));
        return 0;
    }
    FixedDigits fixed = ConvertFixed(value, decimals);
    ComposeFixed<CStringW>(*this, WidenThreadAnsi(fixed.digits), fixed.decpt, fixed.sign, decimals);
    return 0;
}
