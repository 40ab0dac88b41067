// CObject and run-time class information.
#include "afxwin.h"

CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr, nullptr, nullptr};

CRuntimeClass* PASCAL CObject::_GetBaseClass()
{
    return nullptr;
}
CRuntimeClass* PASCAL CObject::GetThisClass()
{
    return _RUNTIME_CLASS(CObject);
}
CRuntimeClass* CObject::GetRuntimeClass() const
{
    return _RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    for (const CRuntimeClass* p = this; p != nullptr;)
    {
        if (p == pBaseClass)
            return TRUE;
        p = p->m_pfnGetBaseClass ? p->m_pfnGetBaseClass() : nullptr;
    }
    return FALSE;
}

CObject* CRuntimeClass::CreateObject()
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

namespace {

CRuntimeClass* FindInList(CRuntimeClass* pHead, LPCSTR lpszClassName)
{
    for (CRuntimeClass* p = pHead; p != nullptr; p = p->m_pNextClass)
        if (lstrcmpA(p->m_lpszClassName, lpszClassName) == 0)
            return p;
    return nullptr;
}

}  // namespace

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == nullptr)
        return nullptr;
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    if (CRuntimeClass* p = FindInList(pState->m_classList.GetHead(), lpszClassName))
        return p;
    for (CDynLinkLibrary* pDLL = pState->m_libraryList.GetHead(); pDLL; pDLL = pDLL->m_pNextDLL)
        if (CRuntimeClass* p = FindInList(pDLL->m_classList.GetHead(), lpszClassName))
            return p;
    return nullptr;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass* p = FromName(lpszClassName);
    return p ? p->CreateObject() : nullptr;
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass)
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    pNewClass->m_pNextClass = pState->m_classList.m_pHead;
    pState->m_classList.m_pHead = pNewClass;
}

BOOL AFXAPI AfxIsValidString(LPCSTR psz, int /*nLength*/)
{
    return psz != nullptr;
}
