// Handle maps and the per-thread state that holds them.
#include "afximpl_.h"

#include <unordered_map>

struct CHandleMap::Impl
{
    std::unordered_map<HANDLE, CObject*> permanent;
    std::unordered_map<HANDLE, CObject*> temporary;
};

CHandleMap::CHandleMap(PFN_CREATE pfnCreate, PFN_SETHANDLE pfnSetHandle)
    : m_pImpl(new Impl), m_pfnCreate(pfnCreate), m_pfnSetHandle(pfnSetHandle)
{}

CHandleMap::~CHandleMap()
{
    DeleteTemp();
    delete m_pImpl;
}

CObject* CHandleMap::FromHandle(HANDLE h)
{
    if (h == nullptr)
        return nullptr;
    if (CObject* p = LookupPermanent(h))
        return p;
    if (CObject* p = LookupTemporary(h))
        return p;
    CObject* p = m_pfnCreate();
    m_pfnSetHandle(p, h);
    m_pImpl->temporary[h] = p;
    return p;
}

CObject* CHandleMap::LookupPermanent(HANDLE h) const
{
    auto it = m_pImpl->permanent.find(h);
    return it == m_pImpl->permanent.end() ? nullptr : it->second;
}

CObject* CHandleMap::LookupTemporary(HANDLE h) const
{
    auto it = m_pImpl->temporary.find(h);
    return it == m_pImpl->temporary.end() ? nullptr : it->second;
}

void CHandleMap::SetPermanent(HANDLE h, CObject* permOb)
{
    m_pImpl->permanent[h] = permOb;
}

void CHandleMap::RemoveHandle(HANDLE h)
{
    m_pImpl->permanent.erase(h);
    m_pImpl->temporary.erase(h);
}

void CHandleMap::DeleteTemp()
{
    // The objects lose their handles first, so their destructors release nothing.
    std::unordered_map<HANDLE, CObject*> temps;
    temps.swap(m_pImpl->temporary);
    for (auto& entry : temps)
    {
        m_pfnSetHandle(entry.second, nullptr);
        delete entry.second;
    }
}

INT_PTR CHandleMap::GetTemporaryCount() const
{
    return (INT_PTR)m_pImpl->temporary.size();
}

AfxThreadState* AfxGetThreadState()
{
    static thread_local AfxThreadState state;
    return &state;
}

CHandleMap* AFXAPI afxMapHWND()
{
    return CTypedHandleMap<CWnd>::GetOrCreate(AfxGetThreadState()->m_pmapHWND);
}

CHandleMap* AFXAPI afxMapHMENU()
{
    return CTypedHandleMap<CMenu>::GetOrCreate(AfxGetThreadState()->m_pmapHMENU);
}

CHandleMap* AFXAPI afxMapHDC()
{
    return CTypedHandleMap<CDC>::GetOrCreate(AfxGetThreadState()->m_pmapHDC);
}

CHandleMap* AFXAPI afxMapHGDIOBJ()
{
    return CTypedHandleMap<CGdiObject>::GetOrCreate(AfxGetThreadState()->m_pmapHGDIOBJ);
}

CHandleMap* AFXAPI afxMapHIMAGELIST()
{
    return CTypedHandleMap<CImageList>::GetOrCreate(AfxGetThreadState()->m_pmapHIMAGELIST);
}

void AFXAPI AfxLockTempMaps()
{
    ++AfxGetThreadState()->m_nTempMapLock;
}

BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps)
{
    AfxThreadState* pState = AfxGetThreadState();
    if (pState->m_nTempMapLock > 0 && --pState->m_nTempMapLock == 0)
    {
        if (bDeleteTemps)
        {
            CWnd::DeleteTempMap();
            CMenu::DeleteTempMap();
            CDC::DeleteTempMap();
            CGdiObject::DeleteTempMap();
            CTypedHandleMap<CImageList>::DeleteTemp();
        }
        return TRUE;
    }
    return pState->m_nTempMapLock == 0;
}

void AfxDeleteTempsIfUnlocked()
{
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
}
