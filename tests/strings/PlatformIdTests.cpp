// winGetPlatformID: the platform of the version record, exported under its plain name.
#include <KivMFC.h>
#include <gtest/gtest.h>

TEST(winGetPlatformID, NtFamilyWritesTwoAndAnswersZero)
{
    unsigned int platform = 0xDEADBEEF;
    EXPECT_EQ(0u, winGetPlatformID(&platform));
    EXPECT_EQ(static_cast<unsigned int>(VER_PLATFORM_WIN32_NT), platform);
    EXPECT_EQ(2u, platform);
}

TEST(winGetPlatformID, IsTheSystemsOwnIdentifier)
{
    OSVERSIONINFOA info{};
    info.dwOSVersionInfoSize = sizeof(info);
    ASSERT_TRUE(::GetVersionExA(&info));
    unsigned int platform = 0;
    ASSERT_EQ(0u, winGetPlatformID(&platform));
    EXPECT_EQ(info.dwPlatformId, platform);
}

TEST(winGetPlatformID, IsExportedUndecorated)
{
    typedef unsigned int(__cdecl * PlatformQuery)(unsigned int*);
    HMODULE library = ::GetModuleHandleA("KivMFC64.dll");
    ASSERT_NE(nullptr, library);
    auto query = reinterpret_cast<PlatformQuery>(::GetProcAddress(library, "winGetPlatformID"));
    ASSERT_NE(nullptr, query);
    unsigned int platform = 0;
    EXPECT_EQ(0u, query(&platform));
    EXPECT_EQ(2u, platform);
}

// A null target is refused rather than written through.
TEST(winGetPlatformID, NullTargetIsRefused)
{
    EXPECT_EQ(static_cast<unsigned int>(ERROR_INVALID_PARAMETER), winGetPlatformID(nullptr));
}
