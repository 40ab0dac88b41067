// Core of the runtime: objects with run-time class information, strings, collections of
// the core and the module state.
#pragma once

#include "afxver_.h"
#include "afxstr.h"

class CObject;
class CArchive;

struct AFX_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject*(PASCAL* m_pfnCreateObject)();
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass;  // linked list of registered classes
    const void* m_pClassInit;

    CObject* CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
};

// Adds a class to the current module state's class list when its module's static
// constructors run.
struct AFX_API AFX_CLASSINIT
{
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
};

class AFX_API CObject
{
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    BOOL IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }
    virtual void AssertValid() const {}

    static CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL _GetBaseClass();
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject() = default;

private:
    CObject(const CObject&) = delete;
    void operator=(const CObject&) = delete;
};

#define _RUNTIME_CLASS(class_name) ((CRuntimeClass*)(&class_name::class##class_name))
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                                    \
protected:                                                                                                             \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                                      \
                                                                                                                       \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    static CRuntimeClass* PASCAL GetThisClass();                                                                       \
    virtual CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* PASCAL CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                           \
    CRuntimeClass* PASCAL class_name::_GetBaseClass()                                                                  \
    {                                                                                                                  \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    CRuntimeClass class_name::class##class_name = {                                                                    \
        #class_name, sizeof(class class_name), wSchema, pfnNew, &class_name::_GetBaseClass, nullptr, nullptr};         \
    CRuntimeClass* PASCAL class_name::GetThisClass()                                                                   \
    {                                                                                                                  \
        return _RUNTIME_CLASS(class_name);                                                                             \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return _RUNTIME_CLASS(class_name);                                                                             \
    }                                                                                                                  \
    static const AFX_CLASSINIT _init_##class_name(_RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* PASCAL class_name::CreateObject()                                                                         \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)

#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    ((object) != nullptr && (object)->IsKindOf(RUNTIME_CLASS(class_name)) ? static_cast<class_name*>(object) : nullptr)

// Simple intrusive list used by the module state for class, factory and library lists.
template <class TYPE> class CTypedSimpleList
{
public:
    TYPE m_pHead = nullptr;
    TYPE GetHead() const { return m_pHead; }
    BOOL IsEmpty() const { return m_pHead == nullptr; }
};

AFX_API BOOL AFXAPI AfxIsValidString(LPCSTR psz, int nLength = -1);
