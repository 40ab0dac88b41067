#include "mfcCStringMap.h"

#include "StringMapRecords.h"

#include <stdlib.h>
#include <string.h>

namespace {

const char kStringMapType[] = "_STRINGMAP";

// What the map holds for each name: the name as stored and its identifier.
struct StringMapEntry
{
    char* text;
    unsigned int id;
};

LPCSTR ResourceName(unsigned int nID)
{
    return MAKEINTRESOURCEA(LOWORD(nID));
}

}  // namespace

mfcCStringMap::mfcCStringMap() : CMapStringToPtr(10) {}

mfcCStringMap::mfcCStringMap(unsigned int nID) : CMapStringToPtr(10)
{
    Construct(ResourceName(nID));
}

mfcCStringMap::mfcCStringMap(const char* lpszName) : CMapStringToPtr(10)
{
    Construct(lpszName);
}

mfcCStringMap::~mfcCStringMap()
{
    RemoveAll();
}

void mfcCStringMap::Construct(const char* lpszName)
{
    LoadResource(lpszName);
}

int mfcCStringMap::Lookup(const char* name, unsigned int* id) const
{
    CString key(name);
    key.MakeUpper();
    void* value = nullptr;
    if (!CMapStringToPtr::Lookup(key, value))
        return 0;
    if (id)  // a null id only answers whether the name is there
        *id = static_cast<StringMapEntry*>(value)->id;
    return 1;
}

const char* mfcCStringMap::operator[](unsigned int id) const
{
    POSITION pos = GetStartPosition();
    while (pos)
    {
        CString key;
        void* value = nullptr;
        GetNextAssoc(pos, key, value);
        const StringMapEntry* entry = static_cast<const StringMapEntry*>(value);
        if (entry->id == id)
            return entry->text;
    }
    return nullptr;
}

int mfcCStringMap::GetCount() const
{
    return static_cast<int>(CMapStringToPtr::GetCount());
}

int mfcCStringMap::IsEmpty() const
{
    return CMapStringToPtr::IsEmpty();
}

int mfcCStringMap::LoadResource(unsigned int nID)
{
    return LoadResource(ResourceName(nID));
}

// A later name in any case replaces the earlier entry under its key; the replaced entry is
// not freed (kept: hosts may still hold its text).
int mfcCStringMap::LoadResource(const char* lpszName)
{
    HINSTANCE hModule = AfxGetModuleState()->m_hCurrentResourceHandle;
    HRSRC hResource = ::FindResourceA(hModule, lpszName, kStringMapType);
    if (hResource == nullptr)
        return kResourceNotFound;
    HGLOBAL hData = ::LoadResource(hModule, hResource);
    if (hData == nullptr)
        return kResourceNotLoadable;
    const void* data = ::LockResource(hData);
    if (data == nullptr)
        return kResourceNotLockable;
    DWORD size = ::SizeofResource(hModule, hResource);
    kiv::rules::WalkStringMapRecords(data, size, [this](const kiv::rules::StringMapRecord& record) {
        CString name(record.name, static_cast<int>(record.length));
        StringMapEntry* entry = new StringMapEntry{_strdup(name), record.id};
        name.MakeUpper();
        CMapStringToPtr::operator[](name) = entry;
    });
    return 0;
}

void mfcCStringMap::RemoveAll()
{
    POSITION pos = GetStartPosition();
    while (pos)
    {
        CString key;
        void* value = nullptr;
        GetNextAssoc(pos, key, value);
        StringMapEntry* entry = static_cast<StringMapEntry*>(value);
        free(entry->text);
        delete entry;
    }
    CMapStringToPtr::RemoveAll();
}
