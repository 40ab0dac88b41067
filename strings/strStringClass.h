// The members of strString and strStringW, declared once over the character type so that
// the twins cannot drift apart. Read once per class (hence no include guard) by strString.h
// and strStringW.h, which set KIV_STR_CLASS, KIV_STR_BASE and KIV_STR_CHAR.

class AFX_EXT_CLASS KIV_STR_CLASS : public KIV_STR_BASE
{
public:
    // Construction
    KIV_STR_CLASS();
    KIV_STR_CLASS(const KIV_STR_CLASS& src);
    KIV_STR_CLASS(const KIV_STR_BASE& src);
    KIV_STR_CLASS(const KIV_STR_CHAR* psz);
    // The resource string nID: untranslated in strString; strStringW translates it through
    // the LocalizationManager in translation mode (section "STRINGTABLE", key nID in decimal).
    KIV_STR_CLASS(unsigned int nID);

    KIV_STR_CLASS& operator=(const KIV_STR_CLASS& src);
    KIV_STR_CLASS& operator=(const KIV_STR_BASE& src);
    KIV_STR_CLASS& operator=(const KIV_STR_CHAR* psz);

    // Attributes
    int GetCharLength() const;
    int FindLast(KIV_STR_CHAR ch) const;
    KIV_STR_CLASS Substr(int start, int count) const;
    KIV_STR_CLASS operator()(int start, int count) const;
    double ToDouble() const;
    int ToInt() const;
    long ToLong() const;

    // Operations
    KIV_STR_CLASS& operator+=(KIV_STR_CHAR ch);
    KIV_STR_CLASS& operator+=(const KIV_STR_CHAR* psz);
    int Append(const KIV_STR_CHAR* psz);
    KIV_STR_CHAR* GetBuffer(int minLength);
    int LowerCase();
    int UpperCase();
    int ToAlpha(int value, int width);
    int ToAlpha(unsigned int value, int width);
    int ToAlpha(long value, int width);
    int ToAlpha(unsigned long value, int width);
    int ToAlpha(double value, int decimals);
};

#undef KIV_STR_CLASS
#undef KIV_STR_BASE
#undef KIV_STR_CHAR
