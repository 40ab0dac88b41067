// Runtime internals that hosts and tests may look at: the handle maps.
#pragma once

#include "afxwin.h"

// One kind of handle mapped to its objects: permanent objects own their handle, temporary
// ones are made on demand by FromHandle and deleted when the temporary maps are unlocked.
class AFX_API CHandleMap
{
public:
    typedef CObject*(PASCAL* PFN_CREATE)();
    typedef void(PASCAL* PFN_SETHANDLE)(CObject* pObject, HANDLE h);

    CHandleMap(PFN_CREATE pfnCreate, PFN_SETHANDLE pfnSetHandle);
    ~CHandleMap();

    CObject* FromHandle(HANDLE h);
    CObject* LookupPermanent(HANDLE h) const;
    CObject* LookupTemporary(HANDLE h) const;
    void SetPermanent(HANDLE h, CObject* permOb);
    void RemoveHandle(HANDLE h);
    void DeleteTemp();
    INT_PTR GetTemporaryCount() const;

private:
    struct Impl;
    Impl* m_pImpl;
    PFN_CREATE m_pfnCreate;
    PFN_SETHANDLE m_pfnSetHandle;
    CHandleMap(const CHandleMap&) = delete;
    void operator=(const CHandleMap&) = delete;
};

// The maps of the calling thread.
AFX_API CHandleMap* AFXAPI afxMapHWND();
AFX_API CHandleMap* AFXAPI afxMapHMENU();
AFX_API CHandleMap* AFXAPI afxMapHDC();
AFX_API CHandleMap* AFXAPI afxMapHGDIOBJ();
AFX_API CHandleMap* AFXAPI afxMapHIMAGELIST();
