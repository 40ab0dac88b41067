// CPtrArray and CStringArray: growable arrays.
#include "afxcoll.h"

#include <utility>

IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CStringArray, CObject)

namespace {

// Growth as the classic arrays do it: an eighth of the size, between 4 and 1024.
INT_PTR GrowStep(INT_PTR nGrowBy, INT_PTR nSize)
{
    if (nGrowBy > 0)
        return nGrowBy;
    INT_PTR step = nSize / 8;
    return step < 4 ? 4 : (step > 1024 ? 1024 : step);
}

// Resizes an array's storage; new elements are value-initialised, dropped ones emptied.
template <typename T> void ResizeArray(T*& pData, INT_PTR& nSize, INT_PTR& nMaxSize, INT_PTR nGrowBy, INT_PTR nNewSize)
{
    if (nNewSize <= 0)
    {
        delete[] pData;
        pData = nullptr;
        nSize = nMaxSize = 0;
        return;
    }
    if (nNewSize > nMaxSize)
    {
        INT_PTR nNewMax = nMaxSize + GrowStep(nGrowBy, nSize);
        if (nNewMax < nNewSize)
            nNewMax = nNewSize;
        T* pNewData = new T[nNewMax]();
        for (INT_PTR i = 0; i < nSize; ++i)
            pNewData[i] = std::move(pData[i]);
        delete[] pData;
        pData = pNewData;
        nMaxSize = nNewMax;
    }
    for (INT_PTR i = nNewSize; i < nSize; ++i)
        pData[i] = T();
    for (INT_PTR i = nSize; i < nNewSize; ++i)
        pData[i] = T();
    nSize = nNewSize;
}

// Moves the elements after a removed run down over it; answers how many were removed.
template <typename T> INT_PTR CloseGap(T* pData, INT_PTR nSize, INT_PTR nIndex, INT_PTR nCount)
{
    if (nIndex < 0 || nCount <= 0 || nIndex >= nSize)
        return 0;
    if (nCount > nSize - nIndex)
        nCount = nSize - nIndex;
    for (INT_PTR i = nIndex; i + nCount < nSize; ++i)
        pData[i] = pData[i + nCount];
    return nCount;
}

}  // namespace

CPtrArray::~CPtrArray()
{
    delete[] m_pData;
}

void CPtrArray::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    ResizeArray(m_pData, m_nSize, m_nMaxSize, m_nGrowBy, nNewSize);
}

void CPtrArray::FreeExtra()
{
    if (m_nSize == m_nMaxSize)
        return;
    void** pNewData = m_nSize ? new void*[m_nSize] : nullptr;
    for (INT_PTR i = 0; i < m_nSize; ++i)
        pNewData[i] = m_pData[i];
    delete[] m_pData;
    m_pData = pNewData;
    m_nMaxSize = m_nSize;
}

void CPtrArray::SetAtGrow(INT_PTR nIndex, void* newElement)
{
    if (nIndex >= m_nSize)
        SetSize(nIndex + 1);
    m_pData[nIndex] = newElement;
}

INT_PTR CPtrArray::Add(void* newElement)
{
    INT_PTR nIndex = m_nSize;
    SetAtGrow(nIndex, newElement);
    return nIndex;
}

INT_PTR CPtrArray::Append(const CPtrArray& src)
{
    INT_PTR nOldSize = m_nSize;
    INT_PTR nSrc = src.m_nSize;  // src may be *this
    SetSize(m_nSize + nSrc);
    for (INT_PTR i = 0; i < nSrc; ++i)
        m_pData[nOldSize + i] = src.m_pData[i];
    return nOldSize;
}

void CPtrArray::Copy(const CPtrArray& src)
{
    if (&src == this)
        return;
    SetSize(src.m_nSize);
    for (INT_PTR i = 0; i < m_nSize; ++i)
        m_pData[i] = src.m_pData[i];
}

void CPtrArray::InsertAt(INT_PTR nIndex, void* newElement, INT_PTR nCount)
{
    if (nIndex < 0 || nCount <= 0)
        return;
    INT_PTR nOldSize = m_nSize;
    if (nIndex >= m_nSize)
        SetSize(nIndex + nCount);
    else
    {
        SetSize(m_nSize + nCount);
        for (INT_PTR i = nOldSize - 1; i >= nIndex; --i)
            m_pData[i + nCount] = m_pData[i];
    }
    for (INT_PTR i = 0; i < nCount; ++i)
        m_pData[nIndex + i] = newElement;
}

void CPtrArray::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    m_nSize -= CloseGap(m_pData, m_nSize, nIndex, nCount);
}

CStringArray::~CStringArray()
{
    delete[] m_pData;
}

void CStringArray::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    ResizeArray(m_pData, m_nSize, m_nMaxSize, m_nGrowBy, nNewSize);
}

INT_PTR CStringArray::Add(LPCSTR newElement)
{
    INT_PTR nIndex = m_nSize;
    SetSize(nIndex + 1);
    m_pData[nIndex] = newElement;
    return nIndex;
}

INT_PTR CStringArray::Add(const CString& newElement)
{
    INT_PTR nIndex = m_nSize;
    SetSize(nIndex + 1);
    m_pData[nIndex] = newElement;
    return nIndex;
}

void CStringArray::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    // Through SetSize, so the strings left past the end are emptied.
    if (INT_PTR nRemoved = CloseGap(m_pData, m_nSize, nIndex, nCount))
        SetSize(m_nSize - nRemoved);
}
