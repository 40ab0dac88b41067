// What the library's image declares, read from its export table and resource directory: a
// host or a regular library finds these by name and id, so a missing one must fail here.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include "ImageTables.h"

#include <algorithm>

namespace {

HMODULE Library()
{
    return ::GetModuleHandleA("KivMFC64.dll");
}

bool Holds(const std::vector<std::string>& names, const char* name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool Holds(const std::vector<WORD>& ids, WORD id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

}  // namespace

TEST(KivMFC64, ExportTableNamesTheTwoCFunctionsUndecorated)
{
    std::vector<std::string> names = kiv_test::ExportNames(Library());
    EXPECT_TRUE(Holds(names, "InitKivMFCDLL"));
    EXPECT_TRUE(Holds(names, "winGetPlatformID"));
}

TEST(KivMFC64, ExportTableHoldsTheManagerAndItsSingleton)
{
    std::vector<std::string> names = kiv_test::ExportNames(Library());
    EXPECT_TRUE(Holds(names, "_ZN19LocalizationManager3GetEv"));
    EXPECT_TRUE(Holds(names, "_ZN19LocalizationManager7DisposeEv"));
    EXPECT_TRUE(Holds(names, "_ZN19LocalizationManager19m_SingletonInstanceE"));
}

TEST(KivMFC64, ResourceDirectoryHoldsBitmaps2012And2013)
{
    std::vector<WORD> bitmaps = kiv_test::ResourceIds(Library(), (WORD)(ULONG_PTR)RT_BITMAP);
    for (WORD id : {2012, 2013})
        EXPECT_TRUE(Holds(bitmaps, id)) << "bitmap " << id;
}

TEST(KivMFC64, ResourceDirectoryHoldsCursors2000To2003WithTheirImages)
{
    HMODULE library = Library();
    std::vector<WORD> groups = kiv_test::ResourceIds(library, (WORD)(ULONG_PTR)RT_GROUP_CURSOR);
    std::vector<WORD> images = kiv_test::ResourceIds(library, (WORD)(ULONG_PTR)RT_CURSOR);
    for (WORD id : {2000, 2001, 2002, 2003})
    {
        ASSERT_TRUE(Holds(groups, id)) << "cursor " << id;
        // The group names its image by id; that image must be in the directory too.
        HRSRC group = ::FindResourceA(library, MAKEINTRESOURCEA(id), RT_GROUP_CURSOR);
        ASSERT_NE(nullptr, group);
        auto* bytes = static_cast<const BYTE*>(::LockResource(::LoadResource(library, group)));
        int image = ::LookupIconIdFromDirectoryEx(const_cast<BYTE*>(bytes), FALSE, 0, 0, LR_DEFAULTCOLOR);
        EXPECT_TRUE(Holds(images, (WORD)image)) << "image of cursor " << id;
    }
}
