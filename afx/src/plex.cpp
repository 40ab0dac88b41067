// Node blocks of the collections and the string hash.
#include "afxcoll.h"
#include "StringHash.h"

CPlex* PASCAL CPlex::Create(CPlex*& pHead, UINT_PTR nMax, UINT_PTR cbElement)
{
    CPlex* p = static_cast<CPlex*>(::operator new(sizeof(CPlex) + nMax * cbElement));
    p->pNext = pHead;
    pHead = p;
    return p;
}

void CPlex::FreeDataChain()
{
    for (CPlex* p = this; p != nullptr;)
    {
        CPlex* pNext = p->pNext;
        ::operator delete(p);
        p = pNext;
    }
}

UINT AFXAPI HashKey(LPCSTR key)
{
    return kiv::rules::StringHash(key);
}
