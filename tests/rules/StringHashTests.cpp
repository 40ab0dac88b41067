#include "StringHash.h"
#include "afxsubstr_.h"

#include <gtest/gtest.h>

using kiv::rules::ClampSubstring;
using kiv::rules::StringHash;

TEST(StringHash, EmptyKeyHashesToZero)
{
    EXPECT_EQ(0u, StringHash(""));
}

TEST(StringHash, MultipliesByThirtyThreeAndAdds)
{
    EXPECT_EQ(97u, StringHash("a"));
    EXPECT_EQ(97u * 33u + 98u, StringHash("ab"));
    EXPECT_EQ((97u * 33u + 98u) * 33u + 99u, StringHash("abc"));
}

TEST(StringHash, HighCharactersCountAsNegative)
{
    EXPECT_EQ(static_cast<unsigned int>(-28), StringHash("\xe4"));
    EXPECT_EQ(97u * 33u + static_cast<unsigned int>(-1), StringHash("a\xff"));
}

TEST(StringHash, LongKeysWrapAround)
{
    std::string key(10000, 'z');
    unsigned int expected = 0;
    for (char c : key)
        expected = expected * 33u + static_cast<unsigned int>(c);
    EXPECT_EQ(expected, StringHash(key.c_str()));
}

TEST(SubstringRange, NegativeFirstCountsFromTheStart)
{
    auto r = ClampSubstring(6, -3, 2);
    EXPECT_EQ(0, r.first);
    EXPECT_EQ(2, r.count);
}

TEST(SubstringRange, FirstBeyondTheEndGivesNothing)
{
    EXPECT_EQ(0, ClampSubstring(6, 10, 2).count);
    EXPECT_EQ(0, ClampSubstring(6, 6, 2).count);
}

TEST(SubstringRange, NegativeCountGivesNothing)
{
    EXPECT_EQ(0, ClampSubstring(6, 2, -2).count);
}

TEST(SubstringRange, CountStopsAtTheEndWithoutOverflow)
{
    auto r = ClampSubstring(6, 4, 2147483647);
    EXPECT_EQ(4, r.first);
    EXPECT_EQ(2, r.count);
    auto s = ClampSubstring(2147483647, 2147483647, 2147483647);
    EXPECT_EQ(0, s.count);
}
