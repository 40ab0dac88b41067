// Extension library records and CDynLinkLibrary.
#include "afxwin.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (state.bInitialized)
        return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    // The classes the library's constructors registered become its own list; the
    // application's list is restored from what the raw entry saved.
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    state.pFirstSharedClass = pState->m_classList.GetHead();
    pState->m_classList.m_pHead = pState->m_pClassInit;
    state.pFirstSharedFactory = pState->m_factoryList.GetHead();
    pState->m_factoryList.m_pHead = pState->m_pFactoryInit;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    if (!state.bInitialized)
        return;
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    for (CDynLinkLibrary* pDLL = pState->m_libraryList.GetHead(); pDLL != nullptr;)
    {
        CDynLinkLibrary* pNext = pDLL->m_pNextDLL;
        if (bAll || pDLL->m_hModule == state.hModule)
            delete pDLL;  // unlinks itself
        pDLL = pNext;
    }
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem)
{
    m_classList.m_pHead = state.pFirstSharedClass;
    m_factoryList.m_pHead = state.pFirstSharedFactory;
    LinkIntoChain();
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE)
{
    LinkIntoChain();
}

void CDynLinkLibrary::LinkIntoChain()
{
    // Newest first, so a library loaded later is searched before the older ones.
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    m_pNextDLL = pState->m_libraryList.m_pHead;
    pState->m_libraryList.m_pHead = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    for (CDynLinkLibrary** pp = &pState->m_libraryList.m_pHead; *pp != nullptr; pp = &(*pp)->m_pNextDLL)
        if (*pp == this)
        {
            *pp = m_pNextDLL;
            break;
        }
}
