// Extension libraries: the module record, the library chain and library loading.
#pragma once

#include "afxstat_.h"

struct AFX_API AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
    CRuntimeClass* pFirstSharedClass;
    void* pFirstSharedFactory;
};

// One extension library in the module state's chain. The chain owns it: it is deleted by
// AfxTermExtensionModule.
class AFX_API CDynLinkLibrary : public CObject
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    // Attributes
    HMODULE m_hModule;
    HMODULE m_hResource;
    CTypedSimpleList<CRuntimeClass*> m_classList;
    CTypedSimpleList<void*> m_factoryList;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL = nullptr;

private:
    void LinkIntoChain();
};

AFX_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
AFX_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

AFX_API HINSTANCE AFXAPI AfxLoadLibrary(LPCSTR lpszModuleName);
AFX_API HINSTANCE AFXAPI AfxLoadLibraryEx(LPCSTR lpszModuleName, HANDLE hFile, DWORD dwFlags);
AFX_API BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib);
