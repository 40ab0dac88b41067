// The member bodies of strString and strStringW, written once over the character type.
// strString.cpp and strStringW.cpp include it with KIV_STR_CLASS, KIV_STR_BASE and
// KIV_STR_CHAR set; each class keeps its own constructor from a resource identifier.
// Internal to the library.

#include "strNumberText.h"

namespace {

typedef KIV_STR_BASE::XCHAR Unit;

// unsigned short and wchar_t are the same 16-bit UTF-16 units; narrow units pass unchanged.
template <typename To, typename From> To* UnitsAs(From* text)
{
    return reinterpret_cast<To*>(text);
}

const Unit kNoText[] = {0};

}  // namespace

KIV_STR_CLASS::KIV_STR_CLASS() : KIV_STR_BASE(kNoText) {}

KIV_STR_CLASS::KIV_STR_CLASS(const KIV_STR_CLASS& src) = default;

KIV_STR_CLASS::KIV_STR_CLASS(const KIV_STR_BASE& src) : KIV_STR_BASE(src) {}

KIV_STR_CLASS::KIV_STR_CLASS(const KIV_STR_CHAR* psz) : KIV_STR_BASE(UnitsAs<const Unit>(psz)) {}

KIV_STR_CLASS& KIV_STR_CLASS::operator=(const KIV_STR_CLASS& src) = default;

KIV_STR_CLASS& KIV_STR_CLASS::operator=(const KIV_STR_BASE& src)
{
    KIV_STR_BASE::operator=(src);
    return *this;
}

KIV_STR_CLASS& KIV_STR_CLASS::operator=(const KIV_STR_CHAR* psz)
{
    KIV_STR_BASE::operator=(UnitsAs<const Unit>(psz));
    return *this;
}

int KIV_STR_CLASS::GetCharLength() const
{
    return GetLength();
}

int KIV_STR_CLASS::FindLast(KIV_STR_CHAR ch) const
{
    return ReverseFind(static_cast<Unit>(ch));
}

KIV_STR_CLASS KIV_STR_CLASS::Substr(int start, int count) const
{
    if (count == -1)
        return KIV_STR_CLASS(Mid(start));
    return KIV_STR_CLASS(Mid(start, count));
}

KIV_STR_CLASS KIV_STR_CLASS::operator()(int start, int count) const
{
    return Substr(start, count);
}

double KIV_STR_CLASS::ToDouble() const
{
    return kiv::strings::Runtime::ToDouble(GetString());
}

int KIV_STR_CLASS::ToInt() const
{
    return kiv::strings::Runtime::ToInt(GetString());
}

long KIV_STR_CLASS::ToLong() const
{
    return kiv::strings::Runtime::ToLong(GetString());
}

KIV_STR_CLASS& KIV_STR_CLASS::operator+=(KIV_STR_CHAR ch)
{
    KIV_STR_BASE::operator+=(static_cast<Unit>(ch));
    return *this;
}

KIV_STR_CLASS& KIV_STR_CLASS::operator+=(const KIV_STR_CHAR* psz)
{
    KIV_STR_BASE::operator+=(UnitsAs<const Unit>(psz));
    return *this;
}

int KIV_STR_CLASS::Append(const KIV_STR_CHAR* psz)
{
    KIV_STR_BASE::Append(UnitsAs<const Unit>(psz));
    return 0;
}

KIV_STR_CHAR* KIV_STR_CLASS::GetBuffer(int minLength)
{
    return UnitsAs<KIV_STR_CHAR>(KIV_STR_BASE::GetBuffer(minLength));
}

int KIV_STR_CLASS::LowerCase()
{
    MakeLower();
    return 0;
}

int KIV_STR_CLASS::UpperCase()
{
    MakeUpper();
    return 0;
}

int KIV_STR_CLASS::ToAlpha(int value, int width)
{
    return ToAlpha(static_cast<long>(value), width);
}

int KIV_STR_CLASS::ToAlpha(unsigned int value, int width)
{
    return ToAlpha(static_cast<unsigned long>(value), width);
}

int KIV_STR_CLASS::ToAlpha(long value, int width)
{
    KIV_STR_BASE::operator=(kiv::strings::IntegerText<Unit>(value, width));
    return 0;
}

int KIV_STR_CLASS::ToAlpha(unsigned long value, int width)
{
    KIV_STR_BASE::operator=(kiv::strings::IntegerText<Unit>(value, width));
    return 0;
}

// -1 decimals: the runtime's shortest form; any other count: fixed notation, always with a
// point ("13." for 12.7 with 0 decimals, kept: hosts rely on the trailing point).
int KIV_STR_CLASS::ToAlpha(double value, int decimals)
{
    using namespace kiv::strings;
    if (decimals == -1)
    {
        KIV_STR_BASE::operator=(DigitsAs<Unit>(ConvertGeneral(value)));
        return 0;
    }
    FixedDigits fixed = ConvertFixed(value, decimals);
    ComposeFixed<KIV_STR_BASE>(*this, DigitsAs<Unit>(fixed.digits), fixed.decpt, fixed.sign, decimals);
    return 0;
}

#undef KIV_STR_CLASS
#undef KIV_STR_BASE
#undef KIV_STR_CHAR
