// Loading and unloading the library at run time.
#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

int LibrariesOf(HMODULE hModule)
{
    int n = 0;
    for (CDynLinkLibrary* p = AfxGetModuleState()->m_libraryList.GetHead(); p; p = p->m_pNextDLL)
        n += p->m_hModule == hModule;
    return n;
}

int ChainLength()
{
    int n = 0;
    for (CDynLinkLibrary* p = AfxGetModuleState()->m_libraryList.GetHead(); p; p = p->m_pNextDLL)
        ++n;
    return n;
}

}  // namespace

TEST(LibraryEntry, LoadAddsOneLibraryAndKeepsTheApplicationClassList)
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    CRuntimeClass* classesBefore = pState->m_classList.GetHead();
    HMODULE h = ::LoadLibraryA("KivMFC64.dll");
    ASSERT_NE(nullptr, h);
    EXPECT_EQ(1, LibrariesOf(h));
    EXPECT_EQ(classesBefore, pState->m_classList.GetHead());
    // Whatever classes the library registers while it starts are on its own list.
    for (CRuntimeClass* c = pState->m_libraryList.GetHead()->m_classList.GetHead(); c; c = c->m_pNextClass)
        EXPECT_EQ(c, CRuntimeClass::FromName(c->m_lpszClassName));
    EXPECT_TRUE(::FreeLibrary(h));
}

TEST(LibraryEntry, InitKivMFCDLLIsExportedUndecorated)
{
    HMODULE h = ::LoadLibraryA("KivMFC64.dll");
    ASSERT_NE(nullptr, h);
    auto init = reinterpret_cast<void (*)()>(::GetProcAddress(h, "InitKivMFCDLL"));
    ASSERT_NE(nullptr, init);
    init();
    init();
    EXPECT_EQ(3, LibrariesOf(h));
    EXPECT_TRUE(::FreeLibrary(h));
}

TEST(LibraryEntry, DetachRemovesOnlyTheLibrarysOwnEntries)
{
    HMODULE hKernel = ::GetModuleHandleA("kernel32.dll");
    CDynLinkLibrary* other = new CDynLinkLibrary(hKernel, hKernel);
    int chainBefore = ChainLength();
    HMODULE h = ::LoadLibraryA("KivMFC64.dll");
    ASSERT_NE(nullptr, h);
    auto init = reinterpret_cast<void (*)()>(::GetProcAddress(h, "InitKivMFCDLL"));
    init();
    // Its own two entries (the sibling it derives its dialogs from adds one of its own).
    EXPECT_EQ(2, LibrariesOf(h));
    EXPECT_TRUE(::FreeLibrary(h));
    EXPECT_EQ(nullptr, ::GetModuleHandleA("KivMFC64.dll"));
    EXPECT_EQ(chainBefore, ChainLength());
    EXPECT_EQ(other, AfxGetModuleState()->m_libraryList.GetHead());
    delete other;
}

TEST(LibraryEntry, ResourcesAreFoundOnlyWhileTheLibraryIsLoaded)
{
    HMODULE h = ::LoadLibraryA("KivMFC64.dll");
    ASSERT_NE(nullptr, h);
    EXPECT_EQ(h, AfxFindResourceHandle(MAKEINTRESOURCEA(2012), RT_BITMAP));
    EXPECT_TRUE(::FreeLibrary(h));
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(MAKEINTRESOURCEA(2012), RT_BITMAP));
}
