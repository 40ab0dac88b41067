// Module state and the library chain of a console host.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "afx_tests_res.h"

TEST(AfxWinInit, NamesTheApplicationFromItsTitleString)
{
    EXPECT_STREQ("Afx Test Host", AfxGetAppName());
    EXPECT_EQ(::GetModuleHandleA(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(::GetModuleHandleA(nullptr), AfxGetResourceHandle());
    EXPECT_EQ(nullptr, AfxGetApp());
}

TEST(AfxFindResourceHandle, FallsBackToTheApplication)
{
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(MAKEINTRESOURCEA(9999), RT_BITMAP));
}

TEST(CDynLinkLibrary, JoinsTheChainNewestFirstAndLeavesOnDelete)
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    CDynLinkLibrary* before = pState->m_libraryList.GetHead();
    HMODULE hKernel = ::GetModuleHandleA("kernel32.dll");
    CDynLinkLibrary* a = new CDynLinkLibrary(hKernel, hKernel);
    CDynLinkLibrary* b = new CDynLinkLibrary(hKernel, hKernel);
    EXPECT_EQ(b, pState->m_libraryList.GetHead());
    EXPECT_EQ(a, b->m_pNextDLL);
    EXPECT_EQ(before, a->m_pNextDLL);
    delete b;
    EXPECT_EQ(a, pState->m_libraryList.GetHead());
    delete a;
    EXPECT_EQ(before, pState->m_libraryList.GetHead());
}

TEST(AfxLoadLibrary, LoadsAndFreesByName)
{
    HINSTANCE h = AfxLoadLibrary("oleaut32.dll");
    ASSERT_NE(nullptr, h);
    EXPECT_NE(nullptr, ::GetProcAddress(h, "SysStringLen"));
    EXPECT_TRUE(AfxFreeLibrary(h));
    EXPECT_EQ(nullptr, AfxLoadLibrary("no-such-library-here.dll"));
    EXPECT_FALSE(AfxFreeLibrary(nullptr));
}
