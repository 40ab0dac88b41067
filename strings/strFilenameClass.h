// The members of strFilename and strFilenameW, declared once over the character type so
// that the twins cannot drift apart. Read once per class (hence no include guard) by
// strFilename.h and strFilenameW.h, which set KIV_STR_CLASS, KIV_STR_BASE (the string class
// it derives from, which also holds the parts) and KIV_STR_CHAR.

class AFX_EXT_CLASS KIV_STR_CLASS : public KIV_STR_BASE
{
public:
    // Construction
    KIV_STR_CLASS();
    KIV_STR_CLASS(const KIV_STR_CLASS& src);
    KIV_STR_CLASS(const KIV_STR_CHAR* psz);

    KIV_STR_CLASS& operator=(const KIV_STR_CLASS& src);
    KIV_STR_CLASS& operator=(const KIV_STR_CHAR* psz);

    // Attributes: 0 and the part in *out, or -1 with *out unchanged when the part is absent.
    int GetDrive(KIV_STR_BASE* out) const;
    KIV_STR_BASE GetDrive() const;
    int GetPath(KIV_STR_BASE* out) const;
    KIV_STR_CLASS GetPath() const;
    int GetNameExt(KIV_STR_BASE* out) const;
    KIV_STR_BASE GetNameExt() const;
    int GetName(KIV_STR_BASE* out) const;
    KIV_STR_BASE GetName() const;
    int GetExt(KIV_STR_BASE* out) const;
    KIV_STR_BASE GetExt() const;
    // 0 when the name holds a ':' anywhere, else -1 (kept: callers test for 0).
    int IsAbsolute() const;

    // Operations
    int SetExt(const KIV_STR_CHAR* ext);
    int SetName(const KIV_STR_CHAR* name);
    int SetNameExt(const KIV_STR_CHAR* nameExt);
    int SetPath(const KIV_STR_CHAR* path);

    // Joining text inserts one '\' unless this is empty or already ends in one; a
    // character is appended as it is.
    KIV_STR_CLASS operator+(const KIV_STR_BASE& tail) const;
    KIV_STR_CLASS operator+(const KIV_STR_CHAR* tail) const;
    KIV_STR_CLASS operator+(KIV_STR_CHAR ch) const;
    KIV_STR_CLASS operator+=(KIV_STR_CHAR ch);
    KIV_STR_CLASS operator+=(const KIV_STR_CHAR* tail);
};

#undef KIV_STR_CLASS
#undef KIV_STR_BASE
#undef KIV_STR_CHAR
