// CStringT: reference-counted, copy-on-write strings of char (ANSI code page) and wchar_t
// (UTF-16), with the semantics of MFC's CString and CStringW.
#pragma once

#include "afxsubstr_.h"
#include "afxver_.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <mbstring.h>
#include <new>

// Shared header in front of every string buffer. A buffer whose nAllocLength is 0 is the
// one empty string of the runtime; it is never written and never freed.
struct CStringData
{
    long nRefs;        // -1 while the buffer is locked by LockBuffer
    int nDataLength;   // characters, without the terminator
    int nAllocLength;  // characters that fit, without the terminator
    void* data() noexcept { return this + 1; }
    bool IsNil() const noexcept { return nAllocLength == 0; }
    bool IsLocked() const noexcept { return nRefs < 0; }
    bool IsShared() const noexcept { return nRefs > 1; }
};

AFX_API CStringData* AFXAPI AfxGetNilStringData();
// Module of the string table block holding nID, searched through the resource chain.
AFX_API HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID);
// The string nID of hInst as UTF-16, not terminated; nullptr when absent.
AFX_API const WCHAR* AFXAPI AfxGetStringResource(HINSTANCE hInst, UINT nID, int* pnLength);

// Character traits: one row per character type, each a single runtime call.
template <typename T> struct ChTraitsKiv;

template <> struct ChTraitsKiv<char>
{
    typedef char XCHAR;
    typedef wchar_t YCHAR;
    static int SafeLength(const char* p) noexcept { return p ? (int)strlen(p) : 0; }
    static bool IsSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }
    static int Compare(const char* a, const char* b) noexcept { return strcmp(a, b); }
    static int CompareNoCase(const char* a, const char* b) noexcept { return _stricmp(a, b); }
    static int Collate(const char* a, const char* b) noexcept { return strcoll(a, b); }
    static void MakeUpper(char* p, int n) noexcept { _mbsupr_s((unsigned char*)p, n + 1); }
    static void MakeLower(char* p, int n) noexcept { _mbslwr_s((unsigned char*)p, n + 1); }
    static int FormatLength(const char* fmt, va_list args) noexcept { return _vscprintf(fmt, args); }
    static int Format(char* buf, int size, const char* fmt, va_list args) noexcept
    {
        return _vsnprintf(buf, size, fmt, args);
    }
    // Characters needed to hold `src` (n units of the other type) converted to this type.
    static int ConvertedLength(const wchar_t* src, int n) noexcept
    {
        return n ? WideCharToMultiByte(CP_ACP, 0, src, n, nullptr, 0, nullptr, nullptr) : 0;
    }
    static void Convert(char* dst, int dstLen, const wchar_t* src, int n) noexcept
    {
        if (n)
            WideCharToMultiByte(CP_ACP, 0, src, n, dst, dstLen, nullptr, nullptr);
    }
    static int SafeLengthOther(const wchar_t* p) noexcept { return p ? (int)wcslen(p) : 0; }
};

template <> struct ChTraitsKiv<wchar_t>
{
    typedef wchar_t XCHAR;
    typedef char YCHAR;
    static int SafeLength(const wchar_t* p) noexcept { return p ? (int)wcslen(p) : 0; }
    static bool IsSpace(wchar_t c) noexcept
    {
        if (c > L' ' && c < 0x80)
            return false;  // printable ASCII: spare the runtime's locale call on every trim
        return iswspace(c) != 0;
    }
    static int Compare(const wchar_t* a, const wchar_t* b) noexcept { return wcscmp(a, b); }
    static int CompareNoCase(const wchar_t* a, const wchar_t* b) noexcept { return _wcsicmp(a, b); }
    static int Collate(const wchar_t* a, const wchar_t* b) noexcept { return wcscoll(a, b); }
    static void MakeUpper(wchar_t* p, int n) noexcept { _wcsupr_s(p, n + 1); }
    static void MakeLower(wchar_t* p, int n) noexcept { _wcslwr_s(p, n + 1); }
    static int FormatLength(const wchar_t* fmt, va_list args) noexcept { return _vscwprintf(fmt, args); }
    static int Format(wchar_t* buf, int size, const wchar_t* fmt, va_list args) noexcept
    {
        return _vsnwprintf(buf, size, fmt, args);
    }
    static int ConvertedLength(const char* src, int n) noexcept
    {
        return n ? MultiByteToWideChar(CP_ACP, 0, src, n, nullptr, 0) : 0;
    }
    static void Convert(wchar_t* dst, int dstLen, const char* src, int n) noexcept
    {
        if (n)
            MultiByteToWideChar(CP_ACP, 0, src, n, dst, dstLen);
    }
    static int SafeLengthOther(const char* p) noexcept { return p ? (int)strlen(p) : 0; }
};

template <typename BaseType> class CStringT
{
public:
    typedef BaseType XCHAR;
    typedef XCHAR* PXSTR;
    typedef const XCHAR* PCXSTR;
    typedef typename ChTraitsKiv<BaseType>::YCHAR YCHAR;
    typedef const YCHAR* PCYSTR;
    typedef ChTraitsKiv<BaseType> Traits;

    // Attributes
    CStringT() noexcept : m_pszData((PXSTR)AfxGetNilStringData()->data()) {}
    CStringT(const CStringT& src) noexcept : m_pszData(nullptr) { Attach(CloneData(src.GetData())); }
    CStringT(CStringT&& src) noexcept : m_pszData(src.m_pszData)
    {
        src.m_pszData = (PXSTR)AfxGetNilStringData()->data();
    }
    CStringT(PCXSTR psz) : CStringT()
    {
        if (!CheckResourceName(psz))
            SetString(psz, Traits::SafeLength(psz));
    }
    CStringT(PCYSTR psz) : CStringT()
    {
        if (!CheckResourceName(psz))
            SetOther(psz, Traits::SafeLengthOther(psz));
    }
    CStringT(const unsigned char* psz) : CStringT((const char*)psz) {}
    CStringT(PCXSTR pch, int nLength) : CStringT() { SetString(pch, nLength); }
    CStringT(PCYSTR pch, int nLength) : CStringT() { SetOther(pch, nLength); }
    explicit CStringT(XCHAR ch, int nRepeat = 1) : CStringT()
    {
        if (nRepeat > 0)
        {
            PXSTR p = GetBuffer(nRepeat);
            for (int i = 0; i < nRepeat; ++i)
                p[i] = ch;
            ReleaseBufferSetLength(nRepeat);
        }
    }
    CStringT(const CStringT<YCHAR>& src) : CStringT() { SetOther(src.GetString(), src.GetLength()); }
    ~CStringT() noexcept { Release(GetData()); }

    int GetLength() const noexcept { return GetData()->nDataLength; }
    int GetAllocLength() const noexcept { return GetData()->nAllocLength; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    void Empty() noexcept
    {
        CStringData* pData = GetData();
        if (pData->nDataLength == 0)
            return;
        if (pData->IsLocked())
            SetLength(0);
        else
        {
            Release(pData);
            m_pszData = (PXSTR)AfxGetNilStringData()->data();
        }
    }
    PCXSTR GetString() const noexcept { return m_pszData; }
    operator PCXSTR() const noexcept { return m_pszData; }
    XCHAR GetAt(int iChar) const noexcept { return m_pszData[iChar]; }
    XCHAR operator[](int iChar) const noexcept { return m_pszData[iChar]; }
    void SetAt(int iChar, XCHAR ch)
    {
        if (iChar < 0 || iChar >= GetLength())
            return;
        int n = GetLength();
        PXSTR p = GetBuffer();
        p[iChar] = ch;
        ReleaseBufferSetLength(n);
    }

    // Buffer access
    PXSTR GetBuffer() { return PrepareWrite(GetLength()); }
    PXSTR GetBuffer(int nMinBufferLength)
    {
        return PrepareWrite(nMinBufferLength > GetLength() ? nMinBufferLength : GetLength());
    }
    PXSTR GetBufferSetLength(int nLength)
    {
        PXSTR p = GetBuffer(nLength);
        SetLength(nLength);
        return p;
    }
    void ReleaseBuffer(int nNewLength = -1)
    {
        if (nNewLength == -1)
        {
            int nAlloc = GetData()->nAllocLength;
            nNewLength = 0;
            while (nNewLength < nAlloc && m_pszData[nNewLength] != 0)
                ++nNewLength;
        }
        SetLength(nNewLength);
    }
    void ReleaseBufferSetLength(int nNewLength) { SetLength(nNewLength); }
    PXSTR LockBuffer()
    {
        PXSTR p = GetBuffer();
        GetData()->nRefs = -1;
        return p;
    }
    void UnlockBuffer() noexcept
    {
        if (GetData()->IsLocked())
            GetData()->nRefs = 1;
    }
    void Preallocate(int nLength)
    {
        GetBuffer(nLength);
        ReleaseBuffer(GetLength());
    }
    void FreeExtra()
    {
        if (GetData()->IsNil() || GetLength() == GetData()->nAllocLength)
            return;
        CStringT copy(GetString(), GetLength());
        *this = copy;
    }

    // Assignment and concatenation
    CStringT& operator=(const CStringT& src)
    {
        CStringData* pOld = GetData();
        CStringData* pNew = src.GetData();
        if (pOld == pNew)
            return *this;
        if (pOld->IsLocked() || pNew->IsLocked())
            SetString(src.GetString(), src.GetLength());
        else
        {
            Attach(CloneData(pNew));
            Release(pOld);
        }
        return *this;
    }
    CStringT& operator=(CStringT&& src) noexcept
    {
        if (this != &src)
        {
            Release(GetData());
            m_pszData = src.m_pszData;
            src.m_pszData = (PXSTR)AfxGetNilStringData()->data();
        }
        return *this;
    }
    CStringT& operator=(PCXSTR psz)
    {
        SetString(psz, Traits::SafeLength(psz));
        return *this;
    }
    CStringT& operator=(PCYSTR psz)
    {
        SetOther(psz, Traits::SafeLengthOther(psz));
        return *this;
    }
    CStringT& operator=(const CStringT<YCHAR>& src)
    {
        SetOther(src.GetString(), src.GetLength());
        return *this;
    }
    CStringT& operator=(const unsigned char* psz) { return operator=((const char*)psz); }
    CStringT& operator=(XCHAR ch)
    {
        SetString(&ch, 1);
        return *this;
    }
    CStringT& operator+=(const CStringT& s)
    {
        Append(s.GetString(), s.GetLength());
        return *this;
    }
    CStringT& operator+=(PCXSTR psz)
    {
        Append(psz, Traits::SafeLength(psz));
        return *this;
    }
    CStringT& operator+=(PCYSTR psz) { return operator+=(CStringT(psz)); }
    CStringT& operator+=(XCHAR ch)
    {
        AppendChar(ch);
        return *this;
    }
    void Append(PCXSTR psz) { Append(psz, Traits::SafeLength(psz)); }
    void Append(const CStringT& s) { Append(s.GetString(), s.GetLength()); }
    void Append(PCXSTR pch, int nLength)
    {
        if (nLength <= 0 || pch == nullptr)
            return;
        int nOld = GetLength();
        // The source may live inside our own buffer, which the growth can move.
        intptr_t offset = pch - m_pszData;
        bool inside = offset >= 0 && offset <= nOld;
        PXSTR p = GetBuffer(nOld + nLength);
        if (inside)
            pch = p + offset;
        memmove(p + nOld, pch, nLength * sizeof(XCHAR));
        ReleaseBufferSetLength(nOld + nLength);
    }
    void AppendChar(XCHAR ch)
    {
        int nOld = GetLength();
        PXSTR p = GetBuffer(nOld + 1);
        p[nOld] = ch;
        ReleaseBufferSetLength(nOld + 1);
    }
    void SetString(PCXSTR psz) { SetString(psz, Traits::SafeLength(psz)); }
    void SetString(PCXSTR pch, int nLength)
    {
        if (nLength <= 0 || pch == nullptr)
        {
            Empty();
            return;
        }
        intptr_t offset = pch - m_pszData;
        bool inside = offset >= 0 && offset <= GetLength();
        if (inside && !GetData()->IsShared())
        {
            memmove(m_pszData, pch, nLength * sizeof(XCHAR));
            SetLength(nLength);
            return;
        }
        PXSTR p = GetBuffer(nLength);  // a shared source stays alive in the other owner
        memcpy(p, pch, nLength * sizeof(XCHAR));
        ReleaseBufferSetLength(nLength);
    }

    friend CStringT operator+(const CStringT& a, const CStringT& b) { return Concat(a, b.GetString(), b.GetLength()); }
    friend CStringT operator+(const CStringT& a, PCXSTR b) { return Concat(a, b, Traits::SafeLength(b)); }
    friend CStringT operator+(PCXSTR a, const CStringT& b)
    {
        CStringT r(a);
        r.Append(b);
        return r;
    }
    friend CStringT operator+(const CStringT& a, XCHAR ch) { return Concat(a, &ch, 1); }
    friend CStringT operator+(XCHAR ch, const CStringT& b)
    {
        CStringT r(ch, 1);
        r.Append(b);
        return r;
    }

    // Comparison
    int Compare(PCXSTR psz) const { return Traits::Compare(GetString(), psz); }
    int CompareNoCase(PCXSTR psz) const { return Traits::CompareNoCase(GetString(), psz); }
    int Collate(PCXSTR psz) const { return Traits::Collate(GetString(), psz); }
    friend bool operator==(const CStringT& a, const CStringT& b) noexcept
    {
        return a.GetLength() == b.GetLength() && memcmp(a.m_pszData, b.m_pszData, a.GetLength() * sizeof(XCHAR)) == 0;
    }
    friend bool operator==(const CStringT& a, PCXSTR b) { return a.Compare(b ? b : Empty_()) == 0; }
    friend bool operator==(PCXSTR a, const CStringT& b) { return b.Compare(a ? a : Empty_()) == 0; }
    friend bool operator==(const CStringT& a, XCHAR ch) { return a.GetLength() == 1 && a[0] == ch; }
    friend bool operator!=(const CStringT& a, const CStringT& b) { return !(a == b); }
    friend bool operator!=(const CStringT& a, PCXSTR b) { return !(a == b); }
    friend bool operator!=(PCXSTR a, const CStringT& b) { return !(a == b); }
    friend bool operator<(const CStringT& a, const CStringT& b) { return a.Compare(b) < 0; }
    friend bool operator<(const CStringT& a, PCXSTR b) { return a.Compare(b) < 0; }
    friend bool operator>(const CStringT& a, const CStringT& b) { return a.Compare(b) > 0; }
    friend bool operator>(const CStringT& a, PCXSTR b) { return a.Compare(b) > 0; }
    friend bool operator<=(const CStringT& a, const CStringT& b) { return a.Compare(b) <= 0; }
    friend bool operator<=(const CStringT& a, PCXSTR b) { return a.Compare(b) <= 0; }
    friend bool operator>=(const CStringT& a, const CStringT& b) { return a.Compare(b) >= 0; }
    friend bool operator>=(const CStringT& a, PCXSTR b) { return a.Compare(b) >= 0; }

    // Extraction
    CStringT Mid(int iFirst) const
    {
        if (iFirst < 0)
            iFirst = 0;  // same clamp as Mid(iFirst, count), without overflowing the count
        return Mid(iFirst, GetLength() - iFirst);
    }
    CStringT Mid(int iFirst, int nCount) const
    {
        kiv::rules::SubstringRange r = kiv::rules::ClampSubstring(GetLength(), iFirst, nCount);
        if (r.first == 0 && r.count == GetLength())
            return *this;
        return CStringT(GetString() + r.first, r.count);
    }
    CStringT Left(int nCount) const
    {
        if (nCount < 0)
            nCount = 0;
        if (nCount >= GetLength())
            return *this;
        return CStringT(GetString(), nCount);
    }
    CStringT Right(int nCount) const
    {
        if (nCount < 0)
            nCount = 0;
        int nLength = GetLength();
        if (nCount >= nLength)
            return *this;
        return CStringT(GetString() + nLength - nCount, nCount);
    }
    CStringT SpanIncluding(PCXSTR set) const
    {
        int n = 0;
        while (n < GetLength() && Contains(set, m_pszData[n]))
            ++n;
        return Left(n);
    }
    CStringT SpanExcluding(PCXSTR set) const
    {
        int n = 0;
        while (n < GetLength() && !Contains(set, m_pszData[n]))
            ++n;
        return Left(n);
    }

    // Searching
    int Find(XCHAR ch, int iStart = 0) const noexcept
    {
        if (iStart < 0 || iStart >= GetLength())
            return -1;
        for (int i = iStart; i < GetLength(); ++i)
            if (m_pszData[i] == ch)
                return i;
        return -1;
    }
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept
    {
        if (pszSub == nullptr || iStart < 0 || iStart > GetLength())
            return -1;
        int nSub = Traits::SafeLength(pszSub);
        for (int i = iStart; i + nSub <= GetLength(); ++i)
            if (memcmp(m_pszData + i, pszSub, nSub * sizeof(XCHAR)) == 0)
                return i;
        return -1;
    }
    int ReverseFind(XCHAR ch) const noexcept
    {
        for (int i = GetLength() - 1; i >= 0; --i)
            if (m_pszData[i] == ch)
                return i;
        return -1;
    }
    int FindOneOf(PCXSTR set) const noexcept
    {
        for (int i = 0; i < GetLength(); ++i)
            if (Contains(set, m_pszData[i]))
                return i;
        return -1;
    }
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const
    {
        if (iStart < 0)
            iStart = GetLength();
        while (iStart < GetLength() && Contains(pszTokens, m_pszData[iStart]))
            ++iStart;
        if (iStart >= GetLength())
        {
            iStart = -1;
            return CStringT();
        }
        int iEnd = iStart;
        while (iEnd < GetLength() && !Contains(pszTokens, m_pszData[iEnd]))
            ++iEnd;
        CStringT token = Mid(iStart, iEnd - iStart);
        iStart = iEnd + 1;
        return token;
    }

    // Modification
    CStringT& MakeUpper()
    {
        int n = GetLength();
        Traits::MakeUpper(GetBuffer(), n);
        ReleaseBufferSetLength(n);
        return *this;
    }
    CStringT& MakeLower()
    {
        int n = GetLength();
        Traits::MakeLower(GetBuffer(), n);
        ReleaseBufferSetLength(n);
        return *this;
    }
    CStringT& MakeReverse()
    {
        int n = GetLength();
        PXSTR p = GetBuffer();
        for (int i = 0, j = n - 1; i < j; ++i, --j)
        {
            XCHAR t = p[i];
            p[i] = p[j];
            p[j] = t;
        }
        ReleaseBufferSetLength(n);
        return *this;
    }
    CStringT& TrimRight()
    {
        int n = GetLength();
        while (n > 0 && Traits::IsSpace(m_pszData[n - 1]))
            --n;
        return TruncateTo(n);
    }
    CStringT& TrimRight(XCHAR ch)
    {
        int n = GetLength();
        while (n > 0 && m_pszData[n - 1] == ch)
            --n;
        return TruncateTo(n);
    }
    CStringT& TrimRight(PCXSTR set)
    {
        int n = GetLength();
        while (n > 0 && Contains(set, m_pszData[n - 1]))
            --n;
        return TruncateTo(n);
    }
    CStringT& TrimLeft()
    {
        int n = 0;
        while (n < GetLength() && Traits::IsSpace(m_pszData[n]))
            ++n;
        return DropFront(n);
    }
    CStringT& TrimLeft(XCHAR ch)
    {
        int n = 0;
        while (n < GetLength() && m_pszData[n] == ch)
            ++n;
        return DropFront(n);
    }
    CStringT& TrimLeft(PCXSTR set)
    {
        int n = 0;
        while (n < GetLength() && Contains(set, m_pszData[n]))
            ++n;
        return DropFront(n);
    }
    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& Trim(XCHAR ch) { return TrimRight(ch).TrimLeft(ch); }
    CStringT& Trim(PCXSTR set) { return TrimRight(set).TrimLeft(set); }
    int Replace(XCHAR chOld, XCHAR chNew)
    {
        int nCount = 0;
        if (chOld == chNew || Find(chOld) < 0)
            return 0;
        int n = GetLength();
        PXSTR p = GetBuffer();
        for (int i = 0; i < n; ++i)
            if (p[i] == chOld)
            {
                p[i] = chNew;
                ++nCount;
            }
        ReleaseBufferSetLength(n);
        return nCount;
    }
    int Replace(PCXSTR pszOld, PCXSTR pszNew)
    {
        int nOld = Traits::SafeLength(pszOld);
        if (nOld == 0)
            return 0;
        int nCount = 0;
        CStringT result;
        int i = 0;
        for (int hit = Find(pszOld, 0); hit >= 0; hit = Find(pszOld, i))
        {
            result.Append(m_pszData + i, hit - i);
            result.Append(pszNew);
            i = hit + nOld;
            ++nCount;
        }
        if (nCount == 0)
            return 0;
        result.Append(m_pszData + i, GetLength() - i);
        *this = result;
        return nCount;
    }
    int Remove(XCHAR ch)
    {
        int n = GetLength();
        if (Find(ch) < 0)
            return 0;
        PXSTR p = GetBuffer();
        int j = 0;
        for (int i = 0; i < n; ++i)
            if (p[i] != ch)
                p[j++] = p[i];
        ReleaseBufferSetLength(j);
        return n - j;
    }
    int Insert(int iIndex, PCXSTR psz)
    {
        if (iIndex < 0)
            iIndex = 0;
        if (iIndex > GetLength())
            iIndex = GetLength();
        CStringT tail = Mid(iIndex);
        TruncateTo(iIndex);
        Append(psz);
        Append(tail);
        return GetLength();
    }
    int Insert(int iIndex, XCHAR ch) { return Insert(iIndex, CStringT(ch, 1).GetString()); }
    int Delete(int iIndex, int nCount = 1)
    {
        if (iIndex < 0)
            iIndex = 0;
        if (nCount < 0)
            nCount = 0;
        int n = GetLength();
        if (iIndex >= n || nCount == 0)
            return n;
        if (nCount > n - iIndex)
            nCount = n - iIndex;
        PXSTR p = GetBuffer();
        memmove(p + iIndex, p + iIndex + nCount, (n - iIndex - nCount) * sizeof(XCHAR));
        ReleaseBufferSetLength(n - nCount);
        return n - nCount;
    }

    // Formatting: the runtime's own printf rules (%s is the string's own character type).
    void __cdecl Format(PCXSTR pszFormat, ...)
    {
        va_list args;
        va_start(args, pszFormat);
        FormatV(pszFormat, args);
        va_end(args);
    }
    void __cdecl AppendFormat(PCXSTR pszFormat, ...)
    {
        va_list args;
        va_start(args, pszFormat);
        AppendFormatV(pszFormat, args);
        va_end(args);
    }
    void FormatV(PCXSTR pszFormat, va_list args)
    {
        CStringT result;
        result.AppendFormatV(pszFormat, args);
        *this = result;
    }
    void AppendFormatV(PCXSTR pszFormat, va_list args)
    {
        va_list copy;
        va_copy(copy, args);
        int nLength = Traits::FormatLength(pszFormat, copy);
        va_end(copy);
        if (nLength <= 0)
            return;
        int nOld = GetLength();
        PXSTR p = GetBuffer(nOld + nLength);
        Traits::Format(p + nOld, nLength + 1, pszFormat, args);
        ReleaseBufferSetLength(nOld + nLength);
    }

    // Resources and OLE strings
    BOOL LoadString(UINT nID) { return LoadString(AfxFindStringResourceHandle(nID), nID); }
    BOOL LoadString(HINSTANCE hInstance, UINT nID)
    {
        int nLength = 0;
        const WCHAR* p = hInstance ? AfxGetStringResource(hInstance, nID, &nLength) : nullptr;
        if (p == nullptr)
            return FALSE;
        SetFromWide(p, nLength);
        return TRUE;
    }
    BSTR AllocSysString() const
    {
        CStringT<wchar_t> wide(*this);
        return ::SysAllocStringLen(wide.GetString(), wide.GetLength());
    }
    BSTR SetSysString(BSTR* pbstr) const
    {
        CStringT<wchar_t> wide(*this);
        ::SysReAllocStringLen(pbstr, wide.GetString(), wide.GetLength());
        return *pbstr;
    }

private:
    PXSTR m_pszData;

    CStringData* GetData() const noexcept { return reinterpret_cast<CStringData*>(m_pszData) - 1; }
    void Attach(CStringData* pData) noexcept { m_pszData = (PXSTR)pData->data(); }
    static const XCHAR* Empty_() noexcept { return (const XCHAR*)AfxGetNilStringData()->data(); }

    static bool Contains(PCXSTR set, XCHAR ch) noexcept
    {
        for (; set && *set; ++set)
            if (*set == ch)
                return true;
        return false;
    }
    bool CheckResourceName(PCXSTR psz)
    {
        if (psz == nullptr || !IS_INTRESOURCE(psz))
            return false;
        LoadString((UINT)LOWORD((ULONG_PTR)psz));  // MAKEINTRESOURCE ids load the string
        return true;
    }
    bool CheckResourceName(PCYSTR psz)
    {
        if (psz == nullptr || !IS_INTRESOURCE(psz))
            return false;
        LoadString((UINT)LOWORD((ULONG_PTR)psz));
        return true;
    }

    static CStringData* Allocate(int nChars)
    {
        size_t bytes = sizeof(CStringData) + (size_t)(nChars + 1) * sizeof(XCHAR);
        CStringData* pData = static_cast<CStringData*>(malloc(bytes));
        if (pData == nullptr)
            throw std::bad_alloc();
        pData->nRefs = 1;
        pData->nDataLength = 0;
        pData->nAllocLength = nChars;
        static_cast<XCHAR*>(pData->data())[0] = 0;
        return pData;
    }
    static void Release(CStringData* pData) noexcept
    {
        if (pData->IsNil())
            return;
        if (pData->IsLocked() || InterlockedDecrement(&pData->nRefs) <= 0)
            free(pData);
    }
    static CStringData* CloneData(CStringData* pData)
    {
        if (pData->IsNil())
            return pData;
        if (pData->IsLocked())
        {
            CStringData* pNew = Allocate(pData->nDataLength);
            memcpy(pNew->data(), pData->data(), (pData->nDataLength + 1) * sizeof(XCHAR));
            pNew->nDataLength = pData->nDataLength;
            return pNew;
        }
        InterlockedIncrement(&pData->nRefs);
        return pData;
    }
    PXSTR PrepareWrite(int nLength)
    {
        CStringData* pOld = GetData();
        if (pOld->IsShared() || pOld->IsNil())
        {
            if (nLength == 0 && pOld->IsNil())
                return m_pszData;  // writing nothing into the empty string needs no buffer
            CStringData* pNew = Allocate(nLength > pOld->nDataLength ? nLength : pOld->nDataLength);
            int nCopy = pOld->nDataLength;
            memcpy(pNew->data(), pOld->data(), (nCopy + 1) * sizeof(XCHAR));
            pNew->nDataLength = nCopy;
            Release(pOld);
            Attach(pNew);
        }
        else if (pOld->nAllocLength < nLength)
        {
            int nGrow = pOld->nAllocLength + pOld->nAllocLength / 2;
            int nNew = nLength > nGrow ? nLength : nGrow;
            bool locked = pOld->IsLocked();
            size_t bytes = sizeof(CStringData) + (size_t)(nNew + 1) * sizeof(XCHAR);
            CStringData* pNew = static_cast<CStringData*>(realloc(pOld, bytes));
            if (pNew == nullptr)
                throw std::bad_alloc();
            pNew->nAllocLength = nNew;
            pNew->nRefs = locked ? -1 : 1;
            Attach(pNew);
        }
        return m_pszData;
    }
    void SetLength(int nLength) noexcept
    {
        CStringData* pData = GetData();
        if (pData->IsNil())
            return;
        if (nLength < 0)
            nLength = 0;
        if (nLength > pData->nAllocLength)
            nLength = pData->nAllocLength;
        pData->nDataLength = nLength;
        m_pszData[nLength] = 0;
    }
    CStringT& TruncateTo(int n)
    {
        if (n < GetLength())
        {
            GetBuffer();
            SetLength(n);
        }
        return *this;
    }
    CStringT& DropFront(int n)
    {
        if (n > 0)
        {
            int nLength = GetLength() - n;
            PXSTR p = GetBuffer();
            memmove(p, p + n, nLength * sizeof(XCHAR));
            SetLength(nLength);
        }
        return *this;
    }
    void SetOther(PCYSTR psz, int nLength)
    {
        int nNeeded = Traits::ConvertedLength(psz, nLength);
        if (nNeeded <= 0)
        {
            Empty();
            return;
        }
        PXSTR p = GetBuffer(nNeeded);
        Traits::Convert(p, nNeeded, psz, nLength);
        ReleaseBufferSetLength(nNeeded);
    }
    void SetFromWide(const wchar_t* p, int nLength)
    {
        if constexpr (sizeof(XCHAR) == sizeof(wchar_t))
            SetString((PCXSTR)p, nLength);
        else
            SetOther((PCYSTR)p, nLength);
    }
    static CStringT Concat(const CStringT& a, PCXSTR b, int nb)
    {
        CStringT r;
        int na = a.GetLength();
        PXSTR p = r.GetBuffer(na + nb);
        memcpy(p, a.GetString(), na * sizeof(XCHAR));
        if (nb > 0)
            memcpy(p + na, b, nb * sizeof(XCHAR));
        r.ReleaseBufferSetLength(na + nb);
        return r;
    }
};

typedef CStringT<char> CStringA;
typedef CStringT<wchar_t> CStringW;
typedef CStringA CString;  // multi-byte build

// Narrow/wide conversion of a whole string in the ANSI code page.
template <typename T> inline CStringT<T> AfxConvertString(const CStringT<T>& s)
{
    return s;
}

// Extracts the iSubString-th field of lpszFullString separated by chSep.
AFX_API BOOL AFXAPI AfxExtractSubString(CString& rString, LPCSTR lpszFullString, int iSubString, char chSep = '\n');
