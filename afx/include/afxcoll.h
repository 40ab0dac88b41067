// Collections: CMapStringToPtr with the classic string hash and free-list blocks, CObList,
// CPtrArray and CStringArray.
#pragma once

#include "afx.h"

// Blocks of fixed-size nodes, chained; freed all at once.
struct AFX_API CPlex
{
    CPlex* pNext;
    void* data() { return this + 1; }
    static CPlex* PASCAL Create(CPlex*& head, UINT_PTR nMax, UINT_PTR cbElement);
    void FreeDataChain();
};

// The hash of a string key: multiply by 33 and add each character (characters are signed).
AFX_API UINT AFXAPI HashKey(LPCSTR key);

class AFX_API CMapStringToPtr : public CObject
{
    DECLARE_DYNAMIC(CMapStringToPtr)

protected:
    struct CAssoc
    {
        CAssoc* pNext;
        UINT nHashValue;
        CString key;
        void* value;
    };

public:
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10);
    ~CMapStringToPtr() override;

    // Attributes
    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    BOOL Lookup(LPCSTR key, void*& rValue) const;
    BOOL LookupKey(LPCSTR key, LPCSTR& rKey) const;
    UINT GetHashTableSize() const { return m_nHashTableSize; }

    // Operations
    void*& operator[](LPCSTR key);
    void SetAt(LPCSTR key, void* newValue) { (*this)[key] = newValue; }
    BOOL RemoveKey(LPCSTR key);
    void RemoveAll();
    POSITION GetStartPosition() const { return m_nCount == 0 ? nullptr : BEFORE_START_POSITION; }
    void GetNextAssoc(POSITION& rNextPosition, CString& rKey, void*& rValue) const;
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);
    UINT HashKey(LPCSTR key) const { return ::HashKey(key); }

protected:
    CAssoc** m_pHashTable = nullptr;
    UINT m_nHashTableSize = 17;
    INT_PTR m_nCount = 0;
    CAssoc* m_pFreeList = nullptr;
    CPlex* m_pBlocks = nullptr;
    INT_PTR m_nBlockSize;

    CAssoc* NewAssoc();
    void FreeAssoc(CAssoc* pAssoc);
    CAssoc* GetAssocAt(LPCSTR key, UINT& nHashBucket, UINT& nHashValue) const;
};

class AFX_API CObList : public CObject
{
    DECLARE_DYNAMIC(CObList)

protected:
    struct CNode
    {
        CNode* pNext;
        CNode* pPrev;
        CObject* data;
    };

public:
    explicit CObList(INT_PTR nBlockSize = 10);
    ~CObList() override;

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    CObject*& GetHead() { return m_pNodeHead->data; }
    CObject* GetHead() const { return m_pNodeHead->data; }
    CObject*& GetTail() { return m_pNodeTail->data; }
    CObject* GetTail() const { return m_pNodeTail->data; }

    CObject* RemoveHead();
    CObject* RemoveTail();
    POSITION AddHead(CObject* newElement);
    POSITION AddTail(CObject* newElement);
    void RemoveAll();

    POSITION GetHeadPosition() const { return (POSITION)m_pNodeHead; }
    POSITION GetTailPosition() const { return (POSITION)m_pNodeTail; }
    CObject*& GetNext(POSITION& rPosition);
    CObject* GetNext(POSITION& rPosition) const;
    CObject*& GetPrev(POSITION& rPosition);
    CObject* GetPrev(POSITION& rPosition) const;
    CObject*& GetAt(POSITION position) { return ((CNode*)position)->data; }
    CObject* GetAt(POSITION position) const { return ((CNode*)position)->data; }
    void SetAt(POSITION pos, CObject* newElement) { ((CNode*)pos)->data = newElement; }
    void RemoveAt(POSITION position);
    POSITION InsertBefore(POSITION position, CObject* newElement);
    POSITION InsertAfter(POSITION position, CObject* newElement);
    POSITION Find(CObject* searchValue, POSITION startAfter = nullptr) const;
    POSITION FindIndex(INT_PTR nIndex) const;

protected:
    CNode* m_pNodeHead = nullptr;
    CNode* m_pNodeTail = nullptr;
    INT_PTR m_nCount = 0;
    CNode* m_pNodeFree = nullptr;
    CPlex* m_pBlocks = nullptr;
    INT_PTR m_nBlockSize;

    CNode* NewNode(CNode* pPrev, CNode* pNext);
    void FreeNode(CNode* pNode);
};

class AFX_API CPtrArray : public CObject
{
    DECLARE_DYNAMIC(CPtrArray)

public:
    CPtrArray() = default;
    ~CPtrArray() override;

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() { SetSize(0); }
    void* GetAt(INT_PTR nIndex) const { return m_pData[nIndex]; }
    void SetAt(INT_PTR nIndex, void* newElement) { m_pData[nIndex] = newElement; }
    void*& ElementAt(INT_PTR nIndex) { return m_pData[nIndex]; }
    const void** GetData() const { return (const void**)m_pData; }
    void** GetData() { return m_pData; }
    void SetAtGrow(INT_PTR nIndex, void* newElement);
    INT_PTR Add(void* newElement);
    INT_PTR Append(const CPtrArray& src);
    void Copy(const CPtrArray& src);
    void* operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    void*& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    void InsertAt(INT_PTR nIndex, void* newElement, INT_PTR nCount = 1);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

protected:
    void** m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};

class AFX_API CStringArray : public CObject
{
    DECLARE_DYNAMIC(CStringArray)

public:
    CStringArray() = default;
    ~CStringArray() override;

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void RemoveAll() { SetSize(0); }
    const CString& GetAt(INT_PTR nIndex) const { return m_pData[nIndex]; }
    void SetAt(INT_PTR nIndex, LPCSTR newElement) { m_pData[nIndex] = newElement; }
    CString& ElementAt(INT_PTR nIndex) { return m_pData[nIndex]; }
    INT_PTR Add(LPCSTR newElement);
    INT_PTR Add(const CString& newElement);
    const CString& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    CString& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

protected:
    CString* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};
