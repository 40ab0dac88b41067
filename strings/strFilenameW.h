// strFilenameW: the wide twin of strFilename, with unsigned short characters.
#pragma once

#include "strStringW.h"

class AFX_EXT_CLASS strFilenameW : public strStringW
{
public:
    // Construction
    strFilenameW();
    strFilenameW(const strFilenameW& src);
    strFilenameW(const unsigned short* psz);

    strFilenameW& operator=(const strFilenameW& src);
    strFilenameW& operator=(const unsigned short* psz);

    // Attributes: 0 and the part in *out, or -1 with *out unchanged when the part is absent.
    int GetDrive(strStringW* out) const;
    strStringW GetDrive() const;
    int GetPath(strStringW* out) const;
    strFilenameW GetPath() const;
    int GetNameExt(strStringW* out) const;
    strStringW GetNameExt() const;
    int GetName(strStringW* out) const;
    strStringW GetName() const;
    int GetExt(strStringW* out) const;
    strStringW GetExt() const;
    // 0 when the name holds a ':' anywhere, else -1 (kept: callers test for 0).
    int IsAbsolute() const;

    // Operations
    int SetExt(const unsigned short* ext);
    int SetName(const unsigned short* name);
    int SetNameExt(const unsigned short* nameExt);
    int SetPath(const unsigned short* path);

    // Joining text inserts one '\' unless this is empty or already ends in one; a
    // character is appended as it is.
    strFilenameW operator+(const strStringW& tail) const;
    strFilenameW operator+(const unsigned short* tail) const;
    strFilenameW operator+(unsigned short ch) const;
    strFilenameW operator+=(unsigned short ch);
    strFilenameW operator+=(const unsigned short* tail);
};
