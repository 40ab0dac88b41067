// CMapStringToPtr: chained hash table of CString keys, nodes taken from blocks.
#include "collimpl_.h"

IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)

CMapStringToPtr::CMapStringToPtr(INT_PTR nBlockSize) : m_nBlockSize(nBlockSize > 0 ? nBlockSize : 10) {}

CMapStringToPtr::~CMapStringToPtr()
{
    RemoveAll();
}

void CMapStringToPtr::InitHashTable(UINT nHashSize, BOOL bAllocNow)
{
    delete[] m_pHashTable;
    m_pHashTable = nullptr;
    if (bAllocNow)
        m_pHashTable = new CAssoc*[nHashSize]();
    m_nHashTableSize = nHashSize;
}

void CMapStringToPtr::RemoveAll()
{
    if (m_pHashTable != nullptr)
    {
        for (UINT nHash = 0; nHash < m_nHashTableSize; nHash++)
            for (CAssoc* pAssoc = m_pHashTable[nHash]; pAssoc != nullptr; pAssoc = pAssoc->pNext)
                pAssoc->key.~CString();
        delete[] m_pHashTable;
        m_pHashTable = nullptr;
    }
    m_nCount = 0;
    m_pFreeList = nullptr;
    if (m_pBlocks != nullptr)
        m_pBlocks->FreeDataChain();
    m_pBlocks = nullptr;
}

CMapStringToPtr::CAssoc* CMapStringToPtr::NewAssoc()
{
    if (m_pFreeList == nullptr)
        AfxChainNewBlock(m_pBlocks, m_nBlockSize, m_pFreeList);
    CAssoc* pAssoc = m_pFreeList;
    m_pFreeList = m_pFreeList->pNext;
    m_nCount++;
    new (&pAssoc->key) CString();
    pAssoc->value = nullptr;
    return pAssoc;
}

void CMapStringToPtr::FreeAssoc(CAssoc* pAssoc)
{
    pAssoc->key.~CString();
    pAssoc->pNext = m_pFreeList;
    m_pFreeList = pAssoc;
    m_nCount--;
    if (m_nCount == 0)
        RemoveAll();  // the last association gone: give all memory back
}

CMapStringToPtr::CAssoc* CMapStringToPtr::GetAssocAt(LPCSTR key, UINT& nHashBucket, UINT& nHashValue) const
{
    nHashValue = HashKey(key);
    nHashBucket = nHashValue % m_nHashTableSize;
    if (m_pHashTable == nullptr)
        return nullptr;
    for (CAssoc* pAssoc = m_pHashTable[nHashBucket]; pAssoc != nullptr; pAssoc = pAssoc->pNext)
        if (pAssoc->nHashValue == nHashValue && pAssoc->key == key)
            return pAssoc;
    return nullptr;
}

BOOL CMapStringToPtr::Lookup(LPCSTR key, void*& rValue) const
{
    UINT nHashBucket, nHashValue;
    CAssoc* pAssoc = GetAssocAt(key, nHashBucket, nHashValue);
    if (pAssoc == nullptr)
        return FALSE;
    rValue = pAssoc->value;
    return TRUE;
}

BOOL CMapStringToPtr::LookupKey(LPCSTR key, LPCSTR& rKey) const
{
    UINT nHashBucket, nHashValue;
    CAssoc* pAssoc = GetAssocAt(key, nHashBucket, nHashValue);
    if (pAssoc == nullptr)
        return FALSE;
    rKey = pAssoc->key;
    return TRUE;
}

void*& CMapStringToPtr::operator[](LPCSTR key)
{
    UINT nHashBucket, nHashValue;
    CAssoc* pAssoc = GetAssocAt(key, nHashBucket, nHashValue);
    if (pAssoc == nullptr)
    {
        if (m_pHashTable == nullptr)
            InitHashTable(m_nHashTableSize);
        pAssoc = NewAssoc();
        pAssoc->nHashValue = nHashValue;
        pAssoc->key = key;
        pAssoc->pNext = m_pHashTable[nHashBucket];  // newest first within a bucket
        m_pHashTable[nHashBucket] = pAssoc;
    }
    return pAssoc->value;
}

BOOL CMapStringToPtr::RemoveKey(LPCSTR key)
{
    if (m_pHashTable == nullptr)
        return FALSE;
    UINT nHashValue = HashKey(key);
    CAssoc** ppAssocPrev = &m_pHashTable[nHashValue % m_nHashTableSize];
    for (CAssoc* pAssoc = *ppAssocPrev; pAssoc != nullptr; pAssoc = pAssoc->pNext)
    {
        if (pAssoc->nHashValue == nHashValue && pAssoc->key == key)
        {
            *ppAssocPrev = pAssoc->pNext;
            FreeAssoc(pAssoc);
            return TRUE;
        }
        ppAssocPrev = &pAssoc->pNext;
    }
    return FALSE;
}

void CMapStringToPtr::GetNextAssoc(POSITION& rNextPosition, CString& rKey, void*& rValue) const
{
    CAssoc* pAssocRet = (CAssoc*)rNextPosition;
    if (pAssocRet == (CAssoc*)BEFORE_START_POSITION)
    {
        pAssocRet = nullptr;
        for (UINT nBucket = 0; m_pHashTable && nBucket < m_nHashTableSize && !pAssocRet; nBucket++)
            pAssocRet = m_pHashTable[nBucket];
        if (pAssocRet == nullptr)
        {
            rNextPosition = nullptr;
            return;
        }
    }
    CAssoc* pAssocNext = pAssocRet->pNext;
    if (pAssocNext == nullptr)
        for (UINT nBucket = pAssocRet->nHashValue % m_nHashTableSize + 1; nBucket < m_nHashTableSize; nBucket++)
            if ((pAssocNext = m_pHashTable[nBucket]) != nullptr)
                break;
    rNextPosition = (POSITION)pAssocNext;
    rKey = pAssocRet->key;
    rValue = pAssocRet->value;
}
