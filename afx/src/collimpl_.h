// Internals shared by the collections.
#pragma once

#include "afxcoll.h"

// Chains the nodes of a new block into a free list, the block's first node first out.
template <class TNode> void AfxChainNewBlock(CPlex*& pBlocks, INT_PTR nBlockSize, TNode*& pFreeList)
{
    CPlex* pNewBlock = CPlex::Create(pBlocks, nBlockSize, sizeof(TNode));
    TNode* pNode = static_cast<TNode*>(pNewBlock->data()) + nBlockSize - 1;
    for (INT_PTR i = nBlockSize - 1; i >= 0; i--, pNode--)
    {
        pNode->pNext = pFreeList;
        pFreeList = pNode;
    }
}
