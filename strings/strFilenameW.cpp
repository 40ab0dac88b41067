#include "strFilenameW.h"

#include "FileNameParts.h"

using namespace kiv::rules;

namespace {

// The base string, for appends that insert no separator.
CStringW& Text(strFilenameW& name)
{
    return name;
}

const wchar_t* Units(const unsigned short* psz)
{
    return reinterpret_cast<const wchar_t*>(psz);
}

// Writes the part into *out and answers 0, or answers -1 and leaves *out as it was. A null
// out gets nothing written and the same answer.
int TakePart(const CStringW& name, FilePart part, strStringW* out)
{
    if (!part.present)
        return -1;
    if (out)
        *out = name.Mid(part.first, part.count);
    return 0;
}

strFilenameW Join(const strFilenameW& head, const CStringW& tail)
{
    strFilenameW joined(head);
    if (NeedsSeparator(head.GetString(), head.GetLength()))
        Text(joined) += L'\\';
    Text(joined) += tail;
    return joined;
}

}  // namespace

strFilenameW::strFilenameW() : strStringW() {}

strFilenameW::strFilenameW(const strFilenameW& src) : strStringW(src) {}

strFilenameW::strFilenameW(const unsigned short* psz) : strStringW(psz) {}

strFilenameW& strFilenameW::operator=(const strFilenameW& src)
{
    strStringW::operator=(src);
    return *this;
}

strFilenameW& strFilenameW::operator=(const unsigned short* psz)
{
    strStringW::operator=(psz);
    return *this;
}

int strFilenameW::GetDrive(strStringW* out) const
{
    return TakePart(*this, DrivePart(GetString(), GetLength()), out);
}

strStringW strFilenameW::GetDrive() const
{
    strStringW part;
    GetDrive(&part);
    return part;
}

int strFilenameW::GetPath(strStringW* out) const
{
    return TakePart(*this, PathPart(GetString(), GetLength()), out);
}

strFilenameW strFilenameW::GetPath() const
{
    strFilenameW part;
    GetPath(&part);
    return part;
}

int strFilenameW::GetNameExt(strStringW* out) const
{
    return TakePart(*this, NameExtPart(GetString(), GetLength()), out);
}

strStringW strFilenameW::GetNameExt() const
{
    strStringW part;
    GetNameExt(&part);
    return part;
}

int strFilenameW::GetName(strStringW* out) const
{
    return TakePart(*this, NamePart(GetString(), GetLength()), out);
}

strStringW strFilenameW::GetName() const
{
    strStringW part;
    GetName(&part);
    return part;
}

int strFilenameW::GetExt(strStringW* out) const
{
    return TakePart(*this, ExtPart(GetString(), GetLength()), out);
}

strStringW strFilenameW::GetExt() const
{
    strStringW part;
    GetExt(&part);
    return part;
}

int strFilenameW::IsAbsolute() const
{
    return HasDriveColon(GetString(), GetLength()) ? 0 : -1;
}

// The drive survives only inside the path, or inside the name when there is no backslash.
int strFilenameW::SetExt(const unsigned short* ext)
{
    if (ext == nullptr || *ext == 0)
        return 0;
    strFilenameW rebuilt = GetPath() + GetName();
    if (*ext != '.')
        Text(rebuilt) += L'.';
    Text(rebuilt) += Units(ext);
    *this = rebuilt;
    return 0;
}

// An empty extension ("file.") loses its dot; a null name counts as empty.
int strFilenameW::SetName(const unsigned short* name)
{
    strStringW ext;
    GetExt(&ext);
    strFilenameW rebuilt = GetPath() + name;
    if (!ext.IsEmpty())
    {
        Text(rebuilt) += L'.';
        Text(rebuilt) += ext;
    }
    *this = rebuilt;
    return 0;
}

int strFilenameW::SetNameExt(const unsigned short* nameExt)
{
    *this = GetPath() + nameExt;
    return 0;
}

int strFilenameW::SetPath(const unsigned short* path)
{
    strStringW nameExt = GetNameExt();
    *this = strFilenameW(path) + nameExt;
    return 0;
}

strFilenameW strFilenameW::operator+(const strStringW& tail) const
{
    return Join(*this, tail);
}

strFilenameW strFilenameW::operator+(const unsigned short* tail) const
{
    return Join(*this, CStringW(Units(tail)));
}

strFilenameW strFilenameW::operator+(unsigned short ch) const
{
    strFilenameW joined(*this);
    Text(joined) += static_cast<wchar_t>(ch);
    return joined;
}

strFilenameW strFilenameW::operator+=(unsigned short ch)
{
    *this = *this + ch;
    return *this;
}

strFilenameW strFilenameW::operator+=(const unsigned short* tail)
{
    *this = *this + tail;
    return *this;
}
