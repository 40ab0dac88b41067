// strString: the library's narrow value string, a thin layer over CString with status
// results (0 means done), a sub-string that takes -1 as "to the end" and number-to-text
// conversions through the C runtime.
#pragma once

#include <afxwin.h>

class AFX_EXT_CLASS strString : public CString
{
public:
    // Construction
    strString();
    strString(const strString& src);
    strString(const CString& src);
    strString(const char* psz);
    // The resource string nID from the resource chain, untranslated.
    strString(unsigned int nID);

    strString& operator=(const strString& src);
    strString& operator=(const CString& src);
    strString& operator=(const char* psz);

    // Attributes
    int GetCharLength() const;
    int FindLast(char ch) const;
    strString Substr(int start, int count) const;
    strString operator()(int start, int count) const;
    double ToDouble() const;
    int ToInt() const;
    long ToLong() const;

    // Operations
    strString& operator+=(char ch);
    strString& operator+=(const char* psz);
    int Append(const char* psz);
    char* GetBuffer(int minLength);
    int LowerCase();
    int UpperCase();
    int ToAlpha(int value, int width);
    int ToAlpha(unsigned int value, int width);
    int ToAlpha(long value, int width);
    int ToAlpha(unsigned long value, int width);
    int ToAlpha(double value, int decimals);
};
