// State private to the runtime.
#pragma once

#include "afxpriv.h"
#include "afxcmn.h"

// What the runtime keeps per thread: the message being handled, window-creation hooking,
// the handle maps and the menu being tracked.
struct AfxThreadState
{
    MSG m_lastSentMsg = {};
    CWnd* m_pWndInit = nullptr;
    HHOOK m_hHookCbt = nullptr;
    int m_nTempMapLock = 0;
    HWND m_hTrackingWindow = nullptr;
    HMENU m_hTrackingMenu = nullptr;
    CHandleMap* m_pmapHWND = nullptr;
    CHandleMap* m_pmapHMENU = nullptr;
    CHandleMap* m_pmapHDC = nullptr;
    CHandleMap* m_pmapHGDIOBJ = nullptr;
    CHandleMap* m_pmapHIMAGELIST = nullptr;
    CWinThread* m_pThread = nullptr;
};

AfxThreadState* AfxGetThreadState();

// The runtime's own module, for its window classes.
HINSTANCE AfxGetRuntimeInstance();
const char* const kAfxWndClass = "KivAfxWnd";
const char* const kAfxFrameClass = "KivAfxFrameOrView";
void AfxRegisterRuntimeClasses();

// Idle work of a pump: deletes temporary objects when no lock holds them.
void AfxDeleteTempsIfUnlocked();

// Handle maps

// Per wrapper class: its handle type, how the object holds the handle and the map it lives in.
template <class TObject> struct AfxHandleTraits;

// The common case: the handle is one member of the object.
template <class TObject, typename THandle, THandle TObject::*pHandle, CHandleMap*(AFXAPI* pfnMap)()>
struct AfxMemberHandleTraits
{
    typedef THandle Handle;
    static CHandleMap* Map() { return pfnMap(); }
    static THandle Get(const TObject* p) { return p->*pHandle; }
    static void Set(TObject* p, THandle h) { p->*pHandle = h; }
};

template <> struct AfxHandleTraits<CWnd> : AfxMemberHandleTraits<CWnd, HWND, &CWnd::m_hWnd, afxMapHWND>
{};

template <> struct AfxHandleTraits<CMenu> : AfxMemberHandleTraits<CMenu, HMENU, &CMenu::m_hMenu, afxMapHMENU>
{};

template <>
struct AfxHandleTraits<CGdiObject> : AfxMemberHandleTraits<CGdiObject, HGDIOBJ, &CGdiObject::m_hObject, afxMapHGDIOBJ>
{};

template <>
struct AfxHandleTraits<CImageList>
    : AfxMemberHandleTraits<CImageList, HIMAGELIST, &CImageList::m_hImageList, afxMapHIMAGELIST>
{};

template <> struct AfxHandleTraits<CDC> : AfxMemberHandleTraits<CDC, HDC, &CDC::m_hDC, afxMapHDC>
{
    // A context of its own handle reads attributes where it draws.
    static void Set(CDC* p, HDC h) { p->m_hDC = p->m_hAttribDC = h; }
};

// The handle-map members every wrapper class has, written once over its traits.
template <class TObject> struct CTypedHandleMap
{
    typedef AfxHandleTraits<TObject> Traits;
    typedef typename Traits::Handle Handle;

    // The thread's map of this class, made on first use.
    static CHandleMap* GetOrCreate(CHandleMap*& pSlot)
    {
        if (pSlot == nullptr)
            pSlot = new CHandleMap(NewTemporary, SetHandle);
        return pSlot;
    }

    static TObject* FromHandle(Handle h) { return static_cast<TObject*>(Traits::Map()->FromHandle(h)); }

    static TObject* FromHandlePermanent(Handle h)
    {
        return h == nullptr ? nullptr : static_cast<TObject*>(Traits::Map()->LookupPermanent(h));
    }

    static void DeleteTemp() { Traits::Map()->DeleteTemp(); }

    // Whether the object is the permanent owner of the handle it holds.
    static BOOL OwnsHandle(const TObject* p)
    {
        Handle h = Traits::Get(p);
        return h != nullptr && Traits::Map()->LookupPermanent(h) == p;
    }

    static BOOL Attach(TObject* p, Handle h)
    {
        if (h == nullptr)
            return FALSE;
        Traits::Set(p, h);
        Traits::Map()->SetPermanent(h, p);
        return TRUE;
    }

    // Another object's entry stays: only the owner gives the handle up in the map.
    static Handle Detach(TObject* p)
    {
        Handle h = Traits::Get(p);
        if (OwnsHandle(p))
            Traits::Map()->RemoveHandle(h);
        Traits::Set(p, nullptr);
        return h;
    }

private:
    static CObject* PASCAL NewTemporary() { return new TObject; }
    static void PASCAL SetHandle(CObject* p, HANDLE h) { Traits::Set(static_cast<TObject*>(p), (Handle)h); }
};

// The handle-map members of a wrapper class, each one call of its CTypedHandleMap.
#define AFX_IMPLEMENT_FROMHANDLE(TClass, THandle)                                                                      \
    TClass* PASCAL TClass::FromHandle(THandle h)                                                                       \
    {                                                                                                                  \
        return CTypedHandleMap<TClass>::FromHandle(h);                                                                 \
    }
#define AFX_IMPLEMENT_FROMHANDLEPERMANENT(TClass, THandle)                                                             \
    TClass* PASCAL TClass::FromHandlePermanent(THandle h)                                                              \
    {                                                                                                                  \
        return CTypedHandleMap<TClass>::FromHandlePermanent(h);                                                        \
    }
#define AFX_IMPLEMENT_DELETETEMPMAP(TClass)                                                                            \
    void PASCAL TClass::DeleteTempMap()                                                                                \
    {                                                                                                                  \
        CTypedHandleMap<TClass>::DeleteTemp();                                                                         \
    }
#define AFX_IMPLEMENT_ATTACH_DETACH(TClass, THandle)                                                                   \
    BOOL TClass::Attach(THandle h)                                                                                     \
    {                                                                                                                  \
        return CTypedHandleMap<TClass>::Attach(this, h);                                                               \
    }                                                                                                                  \
    THandle TClass::Detach()                                                                                           \
    {                                                                                                                  \
        return CTypedHandleMap<TClass>::Detach(this);                                                                  \
    }

// Reflected messages

// An owner-drawn control draws itself when its parent reflects WM_DRAWITEM to it; other
// messages take CWnd's reflection. No result is expected for WM_DRAWITEM.
template <class TControl>
BOOL AfxChildNotifyDrawItem(TControl* pControl, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
        return pControl->CWnd::OnChildNotify(message, wParam, lParam, pResult);
    pControl->DrawItem((LPDRAWITEMSTRUCT)lParam);
    return TRUE;
}

// Modal loops

// A modal window's end: its parent is enabled and activated before the window goes, so the
// activation does not pass to another application's window.
void AfxPostModal(CWnd* pWnd, HWND hWndParent, BOOL bEnableParent);
