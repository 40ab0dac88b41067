// String-table access and AfxExtractSubString.
#include "afxwin.h"

const WCHAR* AFXAPI AfxGetStringResource(HINSTANCE hInst, UINT nID, int* pnLength)
{
    HRSRC hRes = ::FindResourceW(hInst, MAKEINTRESOURCEW((nID >> 4) + 1), (LPCWSTR)RT_STRING);
    if (hRes == nullptr)
        return nullptr;
    HGLOBAL hGlobal = ::LoadResource(hInst, hRes);
    const WCHAR* p = hGlobal ? static_cast<const WCHAR*>(::LockResource(hGlobal)) : nullptr;
    if (p == nullptr)
        return nullptr;
    // A block is 16 counted strings; never read past the resource's end.
    const WCHAR* pEnd = p + ::SizeofResource(hInst, hRes) / sizeof(WCHAR);
    for (UINT i = 0; i < (nID & 15); ++i)
    {
        if (p >= pEnd)
            return nullptr;
        p += 1 + *p;
    }
    if (p >= pEnd || *p == 0 || p + 1 + *p > pEnd)
        return nullptr;
    *pnLength = *p;
    return p + 1;
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID)
{
    int nLength = 0;
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    HINSTANCE hApp = AfxGetResourceHandle();
    if (!pState->m_bSystem && hApp && AfxGetStringResource(hApp, nID, &nLength))
        return hApp;
    for (int pass = 0; pass < 2; ++pass)
    {
        BOOL bSystem = pass == 1;
        for (CDynLinkLibrary* pDLL = pState->m_libraryList.GetHead(); pDLL; pDLL = pDLL->m_pNextDLL)
            if (pDLL->m_bSystem == bSystem && pDLL->m_hResource &&
                AfxGetStringResource(pDLL->m_hResource, nID, &nLength))
                return pDLL->m_hResource;
    }
    return nullptr;
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCSTR lpszFullString, int iSubString, char chSep)
{
    if (lpszFullString == nullptr)
        return FALSE;
    while (iSubString--)
    {
        lpszFullString = strchr(lpszFullString, chSep);
        if (lpszFullString == nullptr)
        {
            rString.Empty();
            return FALSE;
        }
        ++lpszFullString;
    }
    LPCSTR lpchEnd = strchr(lpszFullString, chSep);
    int nLen = lpchEnd == nullptr ? lstrlenA(lpszFullString) : (int)(lpchEnd - lpszFullString);
    rString = CString(lpszFullString, nLen);
    return TRUE;
}
