// The member bodies of strFilename and strFilenameW, written once over the character type.
// strFilename.cpp and strFilenameW.cpp include it with KIV_STR_CLASS, KIV_STR_BASE and
// KIV_STR_CHAR set. Internal to the library.

#include "FileNameParts.h"

namespace {

using namespace kiv::rules;

typedef KIV_STR_BASE::XCHAR Unit;
typedef CStringT<Unit> Text;
typedef int (KIV_STR_CLASS::*PartGetter)(KIV_STR_BASE*) const;

// The base string, for appends that insert no separator.
Text& TextOf(KIV_STR_CLASS& name)
{
    return name;
}

// unsigned short and wchar_t are the same 16-bit UTF-16 units; narrow units pass unchanged.
const Unit* Units(const KIV_STR_CHAR* text)
{
    return reinterpret_cast<const Unit*>(text);
}

// Writes the part into *out and answers 0, or answers -1 and leaves *out as it was. A null
// out gets nothing written and the same answer.
int TakePart(const KIV_STR_CLASS& name, FilePart (*rule)(const Unit*, int), KIV_STR_BASE* out)
{
    FilePart part = rule(name.GetString(), name.GetLength());
    if (!part.present)
        return -1;
    if (out)
        *out = name.Mid(part.first, part.count);
    return 0;
}

// The value form of a part: empty when the part is absent.
template <typename Part> Part PartValue(const KIV_STR_CLASS& name, PartGetter get)
{
    Part part;
    (name.*get)(&part);
    return part;
}

KIV_STR_CLASS Join(const KIV_STR_CLASS& head, const Text& tail)
{
    KIV_STR_CLASS joined(head);
    if (NeedsSeparator(head.GetString(), head.GetLength()))
        TextOf(joined) += Unit('\\');
    TextOf(joined) += tail;
    return joined;
}

}  // namespace

// The file-name classes add no data: construction and copies are the string's.
KIV_STR_CLASS::KIV_STR_CLASS() : KIV_STR_BASE() {}

KIV_STR_CLASS::KIV_STR_CLASS(const KIV_STR_CLASS& src) = default;

KIV_STR_CLASS::KIV_STR_CLASS(const KIV_STR_CHAR* psz) : KIV_STR_BASE(psz) {}

KIV_STR_CLASS& KIV_STR_CLASS::operator=(const KIV_STR_CLASS& src) = default;

KIV_STR_CLASS& KIV_STR_CLASS::operator=(const KIV_STR_CHAR* psz)
{
    KIV_STR_BASE::operator=(psz);
    return *this;
}

int KIV_STR_CLASS::GetDrive(KIV_STR_BASE* out) const
{
    return TakePart(*this, DrivePart<Unit>, out);
}

int KIV_STR_CLASS::GetPath(KIV_STR_BASE* out) const
{
    return TakePart(*this, PathPart<Unit>, out);
}

int KIV_STR_CLASS::GetNameExt(KIV_STR_BASE* out) const
{
    return TakePart(*this, NameExtPart<Unit>, out);
}

int KIV_STR_CLASS::GetName(KIV_STR_BASE* out) const
{
    return TakePart(*this, NamePart<Unit>, out);
}

int KIV_STR_CLASS::GetExt(KIV_STR_BASE* out) const
{
    return TakePart(*this, ExtPart<Unit>, out);
}

KIV_STR_BASE KIV_STR_CLASS::GetDrive() const
{
    return PartValue<KIV_STR_BASE>(*this, &KIV_STR_CLASS::GetDrive);
}

KIV_STR_CLASS KIV_STR_CLASS::GetPath() const
{
    return PartValue<KIV_STR_CLASS>(*this, &KIV_STR_CLASS::GetPath);
}

KIV_STR_BASE KIV_STR_CLASS::GetNameExt() const
{
    return PartValue<KIV_STR_BASE>(*this, &KIV_STR_CLASS::GetNameExt);
}

KIV_STR_BASE KIV_STR_CLASS::GetName() const
{
    return PartValue<KIV_STR_BASE>(*this, &KIV_STR_CLASS::GetName);
}

KIV_STR_BASE KIV_STR_CLASS::GetExt() const
{
    return PartValue<KIV_STR_BASE>(*this, &KIV_STR_CLASS::GetExt);
}

int KIV_STR_CLASS::IsAbsolute() const
{
    return HasDriveColon(GetString(), GetLength()) ? 0 : -1;
}

// The drive survives only inside the path, or inside the name when there is no backslash.
int KIV_STR_CLASS::SetExt(const KIV_STR_CHAR* ext)
{
    if (ext == nullptr || *ext == 0)
        return 0;
    KIV_STR_CLASS rebuilt = GetPath() + GetName();
    if (*ext != '.')
        TextOf(rebuilt) += Unit('.');
    TextOf(rebuilt) += Units(ext);
    *this = rebuilt;
    return 0;
}

// An empty extension ("file.") loses its dot; a null name counts as empty.
int KIV_STR_CLASS::SetName(const KIV_STR_CHAR* name)
{
    KIV_STR_BASE ext;
    GetExt(&ext);
    KIV_STR_CLASS rebuilt = GetPath() + name;
    if (!ext.IsEmpty())
    {
        TextOf(rebuilt) += Unit('.');
        TextOf(rebuilt) += ext;
    }
    *this = rebuilt;
    return 0;
}

int KIV_STR_CLASS::SetNameExt(const KIV_STR_CHAR* nameExt)
{
    *this = GetPath() + nameExt;
    return 0;
}

int KIV_STR_CLASS::SetPath(const KIV_STR_CHAR* path)
{
    KIV_STR_BASE nameExt = GetNameExt();
    *this = KIV_STR_CLASS(path) + nameExt;
    return 0;
}

KIV_STR_CLASS KIV_STR_CLASS::operator+(const KIV_STR_BASE& tail) const
{
    return Join(*this, tail);
}

KIV_STR_CLASS KIV_STR_CLASS::operator+(const KIV_STR_CHAR* tail) const
{
    return Join(*this, Text(Units(tail)));
}

KIV_STR_CLASS KIV_STR_CLASS::operator+(KIV_STR_CHAR ch) const
{
    KIV_STR_CLASS joined(*this);
    TextOf(joined) += static_cast<Unit>(ch);
    return joined;
}

// A copy, not a reference (kept: hosts built against the by-value signature rely on it).
KIV_STR_CLASS KIV_STR_CLASS::operator+=(KIV_STR_CHAR ch)
{
    return *this = *this + ch;
}

KIV_STR_CLASS KIV_STR_CLASS::operator+=(const KIV_STR_CHAR* tail)
{
    return *this = *this + tail;
}

#undef KIV_STR_CLASS
#undef KIV_STR_BASE
#undef KIV_STR_CHAR
