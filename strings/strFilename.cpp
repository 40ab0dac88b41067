#include "strFilename.h"

#include "FileNameParts.h"

using namespace kiv::rules;

namespace {

// The base string, for appends that insert no separator.
CString& Text(strFilename& name)
{
    return name;
}

// Writes the part into *out and answers 0, or answers -1 and leaves *out as it was. A null
// out gets nothing written and the same answer.
int TakePart(const CString& name, FilePart part, strString* out)
{
    if (!part.present)
        return -1;
    if (out)
        *out = name.Mid(part.first, part.count);
    return 0;
}

strFilename Join(const strFilename& head, const CString& tail)
{
    strFilename joined(head);
    if (NeedsSeparator(head.GetString(), head.GetLength()))
        Text(joined) += '\\';
    Text(joined) += tail;
    return joined;
}

}  // namespace

strFilename::strFilename() : strString() {}

strFilename::strFilename(const strFilename& src) : strString(src) {}

strFilename::strFilename(const char* psz) : strString(psz) {}

strFilename& strFilename::operator=(const strFilename& src)
{
    strString::operator=(src);
    return *this;
}

strFilename& strFilename::operator=(const char* psz)
{
    strString::operator=(psz);
    return *this;
}

int strFilename::GetDrive(strString* out) const
{
    return TakePart(*this, DrivePart(GetString(), GetLength()), out);
}

strString strFilename::GetDrive() const
{
    strString part;
    GetDrive(&part);
    return part;
}

int strFilename::GetPath(strString* out) const
{
    return TakePart(*this, PathPart(GetString(), GetLength()), out);
}

strFilename strFilename::GetPath() const
{
    strFilename part;
    GetPath(&part);
    return part;
}

int strFilename::GetNameExt(strString* out) const
{
    return TakePart(*this, NameExtPart(GetString(), GetLength()), out);
}

strString strFilename::GetNameExt() const
{
    strString part;
    GetNameExt(&part);
    return part;
}

int strFilename::GetName(strString* out) const
{
    return TakePart(*this, NamePart(GetString(), GetLength()), out);
}

strString strFilename::GetName() const
{
    strString part;
    GetName(&part);
    return part;
}

int strFilename::GetExt(strString* out) const
{
    return TakePart(*this, ExtPart(GetString(), GetLength()), out);
}

strString strFilename::GetExt() const
{
    strString part;
    GetExt(&part);
    return part;
}

int strFilename::IsAbsolute() const
{
    return HasDriveColon(GetString(), GetLength()) ? 0 : -1;
}

// The drive survives only inside the path, or inside the name when there is no backslash.
int strFilename::SetExt(const char* ext)
{
    if (ext == nullptr || *ext == 0)
        return 0;
    strFilename rebuilt = GetPath() + GetName();
    if (*ext != '.')
        Text(rebuilt) += '.';
    Text(rebuilt) += ext;
    *this = rebuilt;
    return 0;
}

// An empty extension ("file.") loses its dot; a null name counts as empty.
int strFilename::SetName(const char* name)
{
    strString ext;
    GetExt(&ext);
    strFilename rebuilt = GetPath() + name;
    if (!ext.IsEmpty())
    {
        Text(rebuilt) += '.';
        Text(rebuilt) += ext;
    }
    *this = rebuilt;
    return 0;
}

int strFilename::SetNameExt(const char* nameExt)
{
    *this = GetPath() + nameExt;
    return 0;
}

int strFilename::SetPath(const char* path)
{
    strString nameExt = GetNameExt();
    *this = strFilename(path) + nameExt;
    return 0;
}

strFilename strFilename::operator+(const strString& tail) const
{
    return Join(*this, tail);
}

strFilename strFilename::operator+(const char* tail) const
{
    return Join(*this, CString(tail));
}

strFilename strFilename::operator+(char ch) const
{
    strFilename joined(*this);
    Text(joined) += ch;
    return joined;
}

strFilename strFilename::operator+=(char ch)
{
    *this = *this + ch;
    return *this;
}

strFilename strFilename::operator+=(const char* tail)
{
    *this = *this + tail;
    return *this;
}
