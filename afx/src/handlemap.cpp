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
{
}

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

namespace {

CObject* PASCAL NewWnd() { return new CWnd; }
CObject* PASCAL NewMenu() { return new CMenu; }
CObject* PASCAL NewDC() { return new CDC; }
CObject* PASCAL NewGdiObject() { return new CGdiObject; }

void PASCAL SetWndHandle(CObject* p, HANDLE h) { static_cast<CWnd*>(p)->m_hWnd = (HWND)h; }
void PASCAL SetMenuHandle(CObject* p, HANDLE h) { static_cast<CMenu*>(p)->m_hMenu = (HMENU)h; }
void PASCAL SetDCHandle(CObject* p, HANDLE h)
{
    static_cast<CDC*>(p)->m_hDC = (HDC)h;
    static_cast<CDC*>(p)->m_hAttribDC = (HDC)h;
}
void PASCAL SetGdiHandle(CObject* p, HANDLE h) { static_cast<CGdiObject*>(p)->m_hObject = (HGDIOBJ)h; }

CHandleMap* Map(CHandleMap*& slot, CHandleMap::PFN_CREATE pfnCreate, CHandleMap::PFN_SETHANDLE pfnSet)
{
    if (slot == nullptr)
        slot = new CHandleMap(pfnCreate, pfnSet);
    return slot;
}

}  // namespace

AfxThreadState* AfxGetThreadState()
{
    static thread_local AfxThreadState state;
    return &state;
}

CHandleMap* AFXAPI afxMapHWND() { return Map(AfxGetThreadState()->m_pmapHWND, NewWnd, SetWndHandle); }
CHandleMap* AFXAPI afxMapHMENU() { return Map(AfxGetThreadState()->m_pmapHMENU, NewMenu, SetMenuHandle); }
CHandleMap* AFXAPI afxMapHDC() { return Map(AfxGetThreadState()->m_pmapHDC, NewDC, SetDCHandle); }
CHandleMap* AFXAPI afxMapHGDIOBJ() { return Map(AfxGetThreadState()->m_pmapHGDIOBJ, NewGdiObject, SetGdiHandle); }

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
