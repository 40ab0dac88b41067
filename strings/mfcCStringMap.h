// mfcCStringMap: names to numeric identifiers, filled from "_STRINGMAP" resources of the
// current resource module. Keys are the names in upper case, so look-ups ignore case; the
// map owns every entry and its text.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

class AFX_EXT_CLASS mfcCStringMap : public CMapStringToPtr
{
public:
    // Codes of LoadResource besides 0.
    enum
    {
        kResourceNotFound = 899,
        kResourceNotLoadable = 898,
        kResourceNotLockable = 897
    };

    // Construction: an empty map, filled from the resource when one is named; the result
    // of that load is not kept.
    mfcCStringMap();
    mfcCStringMap(unsigned int nID);
    mfcCStringMap(const char* lpszName);
    ~mfcCStringMap() override;

    // Attributes
    int Lookup(const char* name, unsigned int* id) const;
    // The stored text of the first entry with this identifier in the map's order, or null.
    const char* operator[](unsigned int id) const;
    int GetCount() const;
    int IsEmpty() const;

    // Operations
    int LoadResource(unsigned int nID);
    int LoadResource(const char* lpszName);
    void RemoveAll();

private:
    void Construct(const char* lpszName);
};
