// strFilename: a narrow string that knows the parts of a file name in the platform's form
// (drive "C:", directories ending in '\', name, extension after the last '.') and rebuilds
// it with one part replaced. Pure text: nothing touches the file system.
#pragma once

#include "strString.h"

class AFX_EXT_CLASS strFilename : public strString
{
public:
    // Construction
    strFilename();
    strFilename(const strFilename& src);
    strFilename(const char* psz);

    strFilename& operator=(const strFilename& src);
    strFilename& operator=(const char* psz);

    // Attributes: 0 and the part in *out, or -1 with *out unchanged when the part is absent.
    int GetDrive(strString* out) const;
    strString GetDrive() const;
    int GetPath(strString* out) const;
    strFilename GetPath() const;
    int GetNameExt(strString* out) const;
    strString GetNameExt() const;
    int GetName(strString* out) const;
    strString GetName() const;
    int GetExt(strString* out) const;
    strString GetExt() const;
    // 0 when the name holds a ':' anywhere, else -1 (kept: callers test for 0).
    int IsAbsolute() const;

    // Operations
    int SetExt(const char* ext);
    int SetName(const char* name);
    int SetNameExt(const char* nameExt);
    int SetPath(const char* path);

    // Joining text inserts one '\' unless this is empty or already ends in one; a
    // character is appended as it is.
    strFilename operator+(const strString& tail) const;
    strFilename operator+(const char* tail) const;
    strFilename operator+(char ch) const;
    strFilename operator+=(char ch);
    strFilename operator+=(const char* tail);
};
