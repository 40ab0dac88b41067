// CObList: doubly linked list of CObject pointers, nodes taken from blocks.
#include "collimpl_.h"

IMPLEMENT_DYNAMIC(CObList, CObject)

CObList::CObList(INT_PTR nBlockSize) : m_nBlockSize(nBlockSize > 0 ? nBlockSize : 10) {}

CObList::~CObList()
{
    RemoveAll();
}

void CObList::RemoveAll()
{
    m_nCount = 0;
    m_pNodeHead = m_pNodeTail = m_pNodeFree = nullptr;
    if (m_pBlocks != nullptr)
        m_pBlocks->FreeDataChain();
    m_pBlocks = nullptr;
}

CObList::CNode* CObList::NewNode(CNode* pPrev, CNode* pNext)
{
    if (m_pNodeFree == nullptr)
        AfxChainNewBlock(m_pBlocks, m_nBlockSize, m_pNodeFree);
    CNode* pNode = m_pNodeFree;
    m_pNodeFree = m_pNodeFree->pNext;
    pNode->pPrev = pPrev;
    pNode->pNext = pNext;
    pNode->data = nullptr;
    m_nCount++;
    return pNode;
}

void CObList::FreeNode(CNode* pNode)
{
    pNode->pNext = m_pNodeFree;
    m_pNodeFree = pNode;
    m_nCount--;
    if (m_nCount == 0)
        RemoveAll();
}

POSITION CObList::AddHead(CObject* newElement)
{
    CNode* pNewNode = NewNode(nullptr, m_pNodeHead);
    pNewNode->data = newElement;
    if (m_pNodeHead != nullptr)
        m_pNodeHead->pPrev = pNewNode;
    else
        m_pNodeTail = pNewNode;
    m_pNodeHead = pNewNode;
    return (POSITION)pNewNode;
}

POSITION CObList::AddTail(CObject* newElement)
{
    CNode* pNewNode = NewNode(m_pNodeTail, nullptr);
    pNewNode->data = newElement;
    if (m_pNodeTail != nullptr)
        m_pNodeTail->pNext = pNewNode;
    else
        m_pNodeHead = pNewNode;
    m_pNodeTail = pNewNode;
    return (POSITION)pNewNode;
}

CObject* CObList::RemoveHead()
{
    CNode* pOldNode = m_pNodeHead;
    CObject* returnValue = pOldNode->data;
    m_pNodeHead = pOldNode->pNext;
    if (m_pNodeHead != nullptr)
        m_pNodeHead->pPrev = nullptr;
    else
        m_pNodeTail = nullptr;
    FreeNode(pOldNode);
    return returnValue;
}

CObject* CObList::RemoveTail()
{
    CNode* pOldNode = m_pNodeTail;
    CObject* returnValue = pOldNode->data;
    m_pNodeTail = pOldNode->pPrev;
    if (m_pNodeTail != nullptr)
        m_pNodeTail->pNext = nullptr;
    else
        m_pNodeHead = nullptr;
    FreeNode(pOldNode);
    return returnValue;
}

CObject*& CObList::GetNext(POSITION& rPosition)
{
    CNode* pNode = (CNode*)rPosition;
    rPosition = (POSITION)pNode->pNext;
    return pNode->data;
}

CObject* CObList::GetNext(POSITION& rPosition) const
{
    CNode* pNode = (CNode*)rPosition;
    rPosition = (POSITION)pNode->pNext;
    return pNode->data;
}

CObject*& CObList::GetPrev(POSITION& rPosition)
{
    CNode* pNode = (CNode*)rPosition;
    rPosition = (POSITION)pNode->pPrev;
    return pNode->data;
}

CObject* CObList::GetPrev(POSITION& rPosition) const
{
    CNode* pNode = (CNode*)rPosition;
    rPosition = (POSITION)pNode->pPrev;
    return pNode->data;
}

void CObList::RemoveAt(POSITION position)
{
    CNode* pOldNode = (CNode*)position;
    if (pOldNode == m_pNodeHead)
        m_pNodeHead = pOldNode->pNext;
    else
        pOldNode->pPrev->pNext = pOldNode->pNext;
    if (pOldNode == m_pNodeTail)
        m_pNodeTail = pOldNode->pPrev;
    else
        pOldNode->pNext->pPrev = pOldNode->pPrev;
    FreeNode(pOldNode);
}

POSITION CObList::InsertBefore(POSITION position, CObject* newElement)
{
    if (position == nullptr)
        return AddHead(newElement);
    CNode* pOldNode = (CNode*)position;
    CNode* pNewNode = NewNode(pOldNode->pPrev, pOldNode);
    pNewNode->data = newElement;
    if (pOldNode->pPrev != nullptr)
        pOldNode->pPrev->pNext = pNewNode;
    else
        m_pNodeHead = pNewNode;
    pOldNode->pPrev = pNewNode;
    return (POSITION)pNewNode;
}

POSITION CObList::InsertAfter(POSITION position, CObject* newElement)
{
    if (position == nullptr)
        return AddTail(newElement);
    CNode* pOldNode = (CNode*)position;
    CNode* pNewNode = NewNode(pOldNode, pOldNode->pNext);
    pNewNode->data = newElement;
    if (pOldNode->pNext != nullptr)
        pOldNode->pNext->pPrev = pNewNode;
    else
        m_pNodeTail = pNewNode;
    pOldNode->pNext = pNewNode;
    return (POSITION)pNewNode;
}

POSITION CObList::Find(CObject* searchValue, POSITION startAfter) const
{
    CNode* pNode = startAfter == nullptr ? m_pNodeHead : ((CNode*)startAfter)->pNext;
    for (; pNode != nullptr; pNode = pNode->pNext)
        if (pNode->data == searchValue)
            return (POSITION)pNode;
    return nullptr;
}

POSITION CObList::FindIndex(INT_PTR nIndex) const
{
    if (nIndex < 0 || nIndex >= m_nCount)
        return nullptr;
    CNode* pNode = m_pNodeHead;
    while (nIndex--)
        pNode = pNode->pNext;
    return (POSITION)pNode;
}
