// strStringW: the wide (UTF-16) twin of strString over CStringW. Its characters are
// unsigned short in the library's interface; CStringW holds them as wchar_t.
#pragma once

#include <afxwin.h>

class AFX_EXT_CLASS strStringW : public CStringW
{
public:
    // Construction
    strStringW();
    strStringW(const strStringW& src);
    strStringW(const CStringW& src);
    strStringW(const unsigned short* psz);
    // The resource string nID, translated through the LocalizationManager in translation
    // mode (section "STRINGTABLE", key nID in decimal); unlike strString(unsigned int).
    strStringW(unsigned int nID);

    strStringW& operator=(const strStringW& src);
    strStringW& operator=(const CStringW& src);
    strStringW& operator=(const unsigned short* psz);

    // Attributes
    int GetCharLength() const;
    int FindLast(unsigned short ch) const;
    strStringW Substr(int start, int count) const;
    strStringW operator()(int start, int count) const;
    double ToDouble() const;
    int ToInt() const;
    long ToLong() const;

    // Operations
    strStringW& operator+=(unsigned short ch);
    strStringW& operator+=(const unsigned short* psz);
    int Append(const unsigned short* psz);
    unsigned short* GetBuffer(int minLength);
    int LowerCase();
    int UpperCase();
    int ToAlpha(int value, int width);
    int ToAlpha(unsigned int value, int width);
    int ToAlpha(long value, int width);
    int ToAlpha(unsigned long value, int width);
    int ToAlpha(double value, int decimals);
};
