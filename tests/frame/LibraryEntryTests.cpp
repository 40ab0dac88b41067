// A host linked with the library finds the library's resources through the chain.
#include <KivMFC.h>
#include <gtest/gtest.h>

namespace {

HMODULE Library()
{
    return ::GetModuleHandleA("KivMFC64.dll");
}

int LibrariesOf(HMODULE hModule)
{
    int n = 0;
    for (CDynLinkLibrary* p = AfxGetModuleState()->m_libraryList.GetHead(); p; p = p->m_pNextDLL)
        n += p->m_hModule == hModule;
    return n;
}

}  // namespace

TEST(LibraryEntry, AttachAddsOneLibraryToTheChain)
{
    ASSERT_NE(nullptr, Library());
    EXPECT_EQ(1, LibrariesOf(Library()));
    EXPECT_TRUE(KivMFC64DLL.bInitialized);
    EXPECT_EQ(Library(), KivMFC64DLL.hModule);
    EXPECT_EQ(Library(), KivMFC64DLL.hResource);
}

TEST(LibraryEntry, BitmapsAreFoundThroughTheChain)
{
    for (int id : {IDB_KIV_COMBO_ARROW, IDB_KIV_COMBO_ARROW_DISABLED})
    {
        HINSTANCE h = AfxFindResourceHandle(MAKEINTRESOURCEA(id), RT_BITMAP);
        EXPECT_EQ(Library(), h) << id;
        HBITMAP bmp = ::LoadBitmapA(h, MAKEINTRESOURCEA(id));
        ASSERT_NE(nullptr, bmp) << id;
        BITMAP info{};
        ::GetObjectA(bmp, sizeof(info), &info);
        EXPECT_EQ(16, info.bmWidth);
        EXPECT_EQ(16, info.bmHeight);
        ::DeleteObject(bmp);
    }
}

TEST(LibraryEntry, BitmapsAreEightBitsWithAPalette)
{
    HRSRC hRes = ::FindResourceA(Library(), MAKEINTRESOURCEA(IDB_KIV_COMBO_ARROW), RT_BITMAP);
    ASSERT_NE(nullptr, hRes);
    auto* info = static_cast<const BITMAPINFOHEADER*>(::LockResource(::LoadResource(Library(), hRes)));
    EXPECT_EQ(8, info->biBitCount);
    EXPECT_EQ(16, info->biWidth);
    EXPECT_EQ(16, info->biHeight);
}

TEST(LibraryEntry, ArrowBitmapsDifferOnlyInTheArrowColour)
{
    HDC dc = ::CreateCompatibleDC(nullptr);
    COLORREF centre[2];
    COLORREF corner[2];
    int ids[2] = {IDB_KIV_COMBO_ARROW, IDB_KIV_COMBO_ARROW_DISABLED};
    for (int i = 0; i < 2; ++i)
    {
        HBITMAP bmp = ::LoadBitmapA(Library(), MAKEINTRESOURCEA(ids[i]));
        HGDIOBJ old = ::SelectObject(dc, bmp);
        centre[i] = ::GetPixel(dc, 7, 7);
        corner[i] = ::GetPixel(dc, 0, 0);
        ::SelectObject(dc, old);
        ::DeleteObject(bmp);
    }
    ::DeleteDC(dc);
    EXPECT_EQ(RGB(255, 255, 255), corner[0]);
    EXPECT_EQ(RGB(255, 255, 255), corner[1]);
    EXPECT_EQ(RGB(0, 0, 0), centre[0]);
    EXPECT_EQ(RGB(128, 128, 128), centre[1]);
}

TEST(LibraryEntry, CursorsAreFoundThroughTheChain)
{
    for (int id = IDC_KIV_HLINE_HOVER; id <= IDC_KIV_VLINE_DRAG; ++id)
    {
        HINSTANCE h = AfxFindResourceHandle(MAKEINTRESOURCEA(id), RT_GROUP_CURSOR);
        EXPECT_EQ(Library(), h) << id;
        EXPECT_NE(nullptr, ::LoadCursorW(h, MAKEINTRESOURCEW(id))) << id;
    }
}

TEST(LibraryEntry, StringsOfTheLibraryLoadThroughTheChain)
{
    CString s;
    EXPECT_TRUE(s.LoadString(IDS_KIV_LIBRARY_NAME));
    EXPECT_STREQ("KivMFC64", s);
}

TEST(LibraryEntry, EachInitKivMFCDLLAddsExactlyOneLibrary)
{
    int before = LibrariesOf(Library());
    InitKivMFCDLL();
    EXPECT_EQ(before + 1, LibrariesOf(Library()));
    InitKivMFCDLL();
    EXPECT_EQ(before + 2, LibrariesOf(Library()));
    CDynLinkLibrary* newest = AfxGetModuleState()->m_libraryList.GetHead();
    EXPECT_EQ(Library(), newest->m_hModule);
    EXPECT_FALSE(newest->m_bSystem);
    delete newest;
    delete AfxGetModuleState()->m_libraryList.GetHead();
    EXPECT_EQ(before, LibrariesOf(Library()));
}
